// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldEditors.h"
#include "FuzzTarget.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QApplication>
#include <QLineEdit>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

namespace {

/// Counts what a slider has it write.
class Owner : public CrvFieldEditors {
public:
    void updateFromField() override { }
    void setFieldUpdateEnabled(bool) override { }
    void swapFieldValues(int, int) override { }
    void setFieldValue(int, int, QString text) override
    {
        told = text;
        ++writes;
    }
    void setFieldColor(int, const void*) override { }
    void applyChanges() override { }

    QString told;
    int writes = 0;
};

template <class Slider>
struct OpenSlider : Slider {
    using Slider::m_base;
    using Slider::Slider;
};

/// One slider in a table's cell, as its owner sees it.
template <class Slider>
class Case {
public:
    using Value = decltype(std::declval<Slider>().getValue());

    Case(std::unique_ptr<OpenSlider<Slider>> slider, Owner& owner,
        const std::vector<std::string_view>& range)
        : m_owner(owner)
        , m_slider(std::move(slider))
        , m_scale(m_slider->template findChild<QSlider*>())
    {
        const Value from = number(range[1]);
        const Value to = number(range[2]);
        m_slider->setRange(std::min(from, to), std::max(from, to), range[3] == "bounded");
    }

    /// "=" before a text is a refresh with it, ">" is typing it, "@" before a number drags there.
    void act(std::string_view line)
    {
        const int writes = m_owner.writes;
        const QString text = QString::fromUtf8(line.data() + 1, qsizetype(line.size()) - 1);
        switch (line.front()) {
        case '=':
            show(text);
            require(m_owner.writes == writes, "a refresh wrote", line);
            m_hasValue = m_hasValue || lineReads();
            break;
        case '>':
            type(text, line);
            break;
        case '@':
            m_scale->setValue(text.toInt());
            break;
        default:
            return;
        }
        requireInRange(line);
    }

private:
    static Value number(std::string_view text)
    {
        const double value = QByteArray(text.data(), qsizetype(text.size())).toDouble();
        if constexpr (std::is_same_v<Value, double>)
            return std::isnan(value) ? 0.0 : value;
        using Limits = std::numeric_limits<Value>;
        if (std::isnan(value))
            return 0;
        return static_cast<Value>(std::clamp<double>(value, Limits::lowest(), Limits::max()));
    }

    void show(const QString& text)
    {
        if constexpr (std::is_same_v<Value, double>)
            m_slider->setValue(text.toDouble());
        else
            m_slider->setValue(text);
    }

    /// What a person types is told once, and what was told brings the same value back.
    void type(const QString& text, std::string_view line)
    {
        QLineEdit* const edit = m_slider->m_lineEdit;
        const int writes = m_owner.writes;
        edit->selectAll();
        edit->insert(text);
        if (!m_hasValue || !edit->isModified() || !edit->hasAcceptableInput())
            return;
        m_slider->changeValueFromEdit();
        require(m_owner.writes == writes + 1, "what was typed wasn't told once", line);
        if (!lineReads())
            return;
        const Value value = m_slider->getValue();
        show(m_owner.told);
        const Value again = m_slider->getValue();
        // A slider of reals rounds what it is to show.
        if constexpr (std::is_same_v<Value, double>)
            m_slider->setValue(value);
        const Value expected = std::is_same_v<Value, double> ? m_slider->getValue() : value;
        require(again == expected || isNan(value), "what was told brings another value back",
            m_owner.told.toStdString());
    }

    /// Whether the line's text is a number in the slider's base.
    bool lineReads() const
    {
        const QString text = m_slider->m_lineEdit->text();
        bool reads = false;
        if constexpr (std::is_same_v<Value, double>)
            text.toDouble(&reads);
        else if constexpr (std::is_unsigned_v<Value>)
            text.toUInt(&reads, m_slider->m_base);
        else
            text.toInt(&reads, m_slider->m_base);
        return reads;
    }

    static bool isNan(Value value)
    {
        if constexpr (std::is_same_v<Value, double>)
            return std::isnan(value);
        else
            return false;
    }

    /// Dragged to an infinite end, a slider stops at the largest number of its type.
    static bool isBeyond(Value a, Value b)
    {
        if constexpr (std::is_same_v<Value, double>)
            return a > b && std::isfinite(a) && std::isfinite(b);
        else
            return a > b;
    }

    void requireInRange(std::string_view line)
    {
        const Value value = m_slider->getValue();
        require(m_scale->value() >= m_scale->minimum() && m_scale->value() <= m_scale->maximum(),
            "the handle is off the scale", line);
        if (!m_hasValue || isNan(value))
            return;
        require(
            !isBeyond(m_slider->getMinimum(), value) && !isBeyond(value, m_slider->getMaximum()),
            "the value is outside its range", line);
        if constexpr (!std::is_same_v<Value, double>)
            require(Slider::positionOf(value) == m_scale->value(), "the handle is elsewhere", line);
    }

    Owner& m_owner;
    std::unique_ptr<OpenSlider<Slider>> m_slider;
    QSlider* m_scale;
    bool m_hasValue = false;
};

using Lines = std::vector<std::string_view>;

template <class Slider>
void run(std::unique_ptr<OpenSlider<Slider>> slider, Owner& owner, const Lines& range,
    const Lines& lines)
{
    Case<Slider> one(std::move(slider), owner, range);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (!lines[i].empty())
            one.act(lines[i]);
    }
}

template <class Slider>
void runInteger(int kind, const Lines& range, const Lines& lines)
{
    Owner owner;
    run<Slider>(
        std::make_unique<OpenSlider<Slider>>(kind, WfSlider::InTable, &owner, nullptr, 2, 3), owner,
        range, lines);
}

void runReal(bool isFloat, const Lines& range, const Lines& lines)
{
    using Slider = OpenSlider<WfRealSlider>;
    Owner owner;
    run<WfRealSlider>(std::make_unique<Slider>(WfSlider::InTable, &owner, nullptr, isFloat, 2, 3),
        owner, range, lines);
}

} // namespace

/// The first line says the kind of slider and its range, as in "Int32 0 100 bounded"; each other
/// line is one thing that happens to the slider.
void fuzzInput(std::string_view input)
{
    static int argumentCount = 1;
    static char name[] = "fuzz_slider_text";
    static char* arguments[] = { name, nullptr };
    // Never destroyed, since statics of Qt's own may go before it.
    static const auto* const application = new QApplication(argumentCount, arguments);
    Q_UNUSED(application)

    const std::vector<std::string_view> lines = linesOf(input);
    if (lines.empty())
        return;
    std::vector<std::string_view> words;
    for (std::string_view rest = lines.front(); words.size() < 4 && !rest.empty();) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        words.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (words.size() < 4)
        return;
    if (words[0] == "Int32")
        runInteger<WfIntSlider>(WfIntSlider::Int32, words, lines);
    else if (words[0] == "Int16")
        runInteger<WfIntSlider>(WfIntSlider::Int16, words, lines);
    else if (words[0] == "UInt32")
        runInteger<WfUIntSlider>(WfUIntSlider::UInt32, words, lines);
    else if (words[0] == "UInt16")
        runInteger<WfUIntSlider>(WfUIntSlider::UInt16, words, lines);
    else if (words[0] == "Float")
        runReal(true, words, lines);
    else if (words[0] == "Double")
        runReal(false, words, lines);
}
