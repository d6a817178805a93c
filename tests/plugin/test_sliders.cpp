// SPDX-License-Identifier: BSD-3-Clause
#include "CrvStrings.h"
#include "EditorFixture.h"
#include "SliderInput.h"
#include "TextRows.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace {

/// Notes what a slider has it do.
class Owner : public CrvFieldEditors {
public:
    void updateFromField() override { }
    void setFieldUpdateEnabled(bool enabled) override { calls << (enabled ? u"on"_s : u"off"_s); }
    void swapFieldValues(int, int) override { }
    void setFieldValue(int row, int column, QString text) override
    {
        calls << u"%1:%2=%3"_s.arg(row).arg(column).arg(text);
    }
    void setFieldColor(int, const void*) override { }
    void applyChanges() override { calls << u"apply"_s; }

    QStringList calls;
};

/// A slider of cell (2, 3) from 0 to `max`, with a value.
std::unique_ptr<WfSlider> make(
    const QString& kind, int inTable, Owner* owner, int max, bool bounded, const QString& text)
{
    const bool is32 = kind.endsWith(u"32");
    const auto filled = [&](auto slider, const auto& value) -> std::unique_ptr<WfSlider> {
        slider->setRange(0, max, bounded);
        slider->setValue(value);
        return slider;
    };
    if (!kind.contains(u"Int"))
        return filled(
            std::make_unique<WfRealSlider>(inTable, owner, nullptr, kind == u"Float", 2, 3),
            text.toDouble());
    if (kind.startsWith(u"Int")) {
        const auto type = is32 ? WfIntSlider::Int32 : WfIntSlider::Int16;
        return filled(std::make_unique<WfIntSlider>(type, inTable, owner, nullptr, 2, 3), text);
    }
    const auto type = is32 ? WfUIntSlider::UInt32 : WfUIntSlider::UInt16;
    return filled(std::make_unique<WfUIntSlider>(type, inTable, owner, nullptr, 2, 3), text);
}

/// A slider in a window of its own, with the focus in its line.
struct Bench {
    Bench(const QString& kind, const QString& text, int inTable = 0, int max = 100,
        bool bounded = false)
        : slider(make(kind, inTable, &owner, max, bounded, text))
        , line(slider->m_lineEdit)
        , scale(slider->findChild<QSlider*>())
        , box(slider->findChild<QCheckBox*>())
    {
        slider->show();
        if (!QTest::qWaitForWindowActive(slider.get()))
            qFatal("the slider's window isn't active");
        line->setFocus();
    }

    Owner owner;
    std::unique_ptr<WfSlider> slider;
    QLineEdit* line;
    QSlider* scale;
    QCheckBox* box;
};

void type(Bench& bench, const QString& text, Qt::Key key = Qt::Key_unknown)
{
    bench.line->selectAll();
    QTest::keyClicks(bench.line, text);
    if (key != Qt::Key_unknown)
        QTest::keyClick(bench.line, key);
}

void drag(Bench& bench)
{
    SliderInput mouse(bench.scale);
    mouse.press();
    mouse.moveBy(8);
    mouse.moveBy(8);
    mouse.release();
}

void clickBox(Bench& bench) { QTest::mouseClick(bench.box, Qt::LeftButton); }

using Act = void (*)(Bench& bench);

} // namespace

Q_DECLARE_METATYPE(Act)

class TestSliders : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void callsOfTheOwner_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("inTable");
        QTest::addColumn<QString>("calls");
        const auto row = [](const char* name, const QString& calls, Act act, int inTable = 0) {
            QTest::newRow(name) << act << inTable << calls;
        };
        row("a refresh", u""_s, [](Bench& b) { b.slider->setValue(u"7"_s); });
        row("leaving", u""_s, [](Bench& b) { QTest::keyClick(b.line, Qt::Key_Tab); });
        row("Return", u""_s, [](Bench& b) { QTest::keyClick(b.line, Qt::Key_Return); });
        row("typing", u""_s, [](Bench& b) { type(b, u"25"_s); });
        row("typing, leaving", u"apply"_s, [](Bench& b) { type(b, u"25"_s, Qt::Key_Tab); });
        const Act typeAndReturn = [](Bench& b) { type(b, u"25"_s, Qt::Key_Return); };
        row("typing, Return", u"apply apply"_s, typeAndReturn);
        row("... in a cell", u"off 2:3=25 on off 2:3=25 on"_s, typeAndReturn, 1);
        row("a press", u""_s, [](Bench& b) { SliderInput(b.scale).press(); });
        row("a drag", u"apply apply apply"_s, drag);
        row("a step", u"apply"_s, [](Bench& b) { QTest::keyClick(b.scale, Qt::Key_Right); });
        row("a drag, unchecked", u"apply"_s, [](Bench& b) { clickBox(b), drag(b); });
        row("steps, unchecked", u""_s, [](Bench& b) {
            clickBox(b);
            QTest::keyClick(b.scale, Qt::Key_Right);
            SliderInput(b.scale).turnWheel();
            QVERIFY(b.scale->value() > 51 && b.line->text() == QString::number(b.scale->value()));
        });
    }
    void callsOfTheOwner()
    {
        QFETCH(Act, act);
        QFETCH(int, inTable);
        Bench bench(u"Int32"_s, u"50"_s, inTable);
        QVERIFY(bench.slider->m_oldValue.isNull());
        act(bench);
        QTEST(bench.owner.calls.join(u' '), "calls");
    }

    void texts_data()
    {
        // The kind, the end of a bounded range from 0, or 0, the text set, shown and typed, what is
        // left in the line after Return, and the value as a press on the scale saves it.
        addTextRows({
            { "Int16", "0", "42", "42", "70000", "70000", "42" },
            { "Int16", "0", "0x1f", "1f", "ffff", "ffff", "7fff" },
            { "Int16", "0", "07", "7", "-777777", "-777777", "-100000" },
            { "Int32", "60", "50", "50", "70", "70", "50" },
            { "Int32", "60", "0x20", "20", "ff", "ff", "3c" },
            { "Int32", "0", "017", "017", "17", "17", "17" },
            { "UInt32", "0", "0xff", "ff", "100000000", "100000000", "0xff" },
            { "UInt16", "0", "42", "42", "70000", "70000", "65535" },
            { "UInt16", "60", "50", "50", "70", "70", "60" },
            { "Float", "0", "0.1234567", "0.123457", "-1.2345678", "-1.234567", "-1.234567" },
            { "Float", "0", "2.5", "2.500000", "1,5", "15", "15.000000" },
            { "Float", "1", "0.5", "0.500000", "2", "2", "0.500000" },
            { "Double", "0", "1e-05", "1e-05", "0.1234567890123456", "0.123456789012345",
                "0.123456789012345" },
        });
    }
    /// What the limits and the validator of a type make of a text, in the base of the first one.
    void texts()
    {
        const auto [kind, max, set, shown, typed, left, value] = textRow<7>();
        const bool bounded = max != u"0";
        Bench bench(kind, set, 0, bounded ? max.toInt() : 100, bounded);
        QCOMPARE(bench.line->text(), shown);
        QCOMPARE(bench.line->cursorPosition(), 0);
        QVERIFY(!bench.slider->isModified());
        type(bench, typed, Qt::Key_Return);
        QVERIFY(bench.slider->isModified());
        QCOMPARE(bench.line->text(), left);
        // The scale reaches the value: letting go of the handle there keeps a whole number.
        for (int i = 0; i < (kind.contains(u"Int") ? 2 : 1); ++i) {
            SliderInput mouse(bench.scale);
            mouse.press();
            QCOMPARE(toQString(bench.slider->m_oldValue), value);
            mouse.release();
        }
    }
};

QTEST_MAIN(TestSliders)
#include "test_sliders.moc"
