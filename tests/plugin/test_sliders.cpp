// SPDX-License-Identifier: BSD-3-Clause
#include "CrvStrings.h"
#include "EditorCase.h"
#include "SliderInput.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>

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

enum Kind { Int32, Int16, UInt32, UInt16, Float, Double };

/// A slider of cell (2, 3) from 0 to `max`, with a value.
std::unique_ptr<WfSlider> make(
    Kind kind, int inTable, Owner* owner, int max, bool bounded, const QString& text)
{
    const auto filled = [&](auto slider, const auto& value) -> std::unique_ptr<WfSlider> {
        slider->setRange(0, max, bounded);
        slider->setValue(value);
        return slider;
    };
    if (kind == Float || kind == Double) {
        return filled(std::make_unique<WfRealSlider>(inTable, owner, nullptr, kind == Float, 2, 3),
            text.toDouble());
    }
    if (kind == Int32 || kind == Int16) {
        return filled(
            std::make_unique<WfIntSlider>(kind == Int32 ? WfIntSlider::Int32 : WfIntSlider::Int16,
                inTable, owner, nullptr, 2, 3),
            text);
    }
    return filled(
        std::make_unique<WfUIntSlider>(kind == UInt32 ? WfUIntSlider::UInt32 : WfUIntSlider::UInt16,
            inTable, owner, nullptr, 2, 3),
        text);
}

/// A slider in a window of its own, with the focus in its line.
struct Bench {
    explicit Bench(Kind kind, const QString& text = u"50"_s, int inTable = 0, int max = 100,
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

void type(Bench& bench, const char* text, Qt::Key key = Qt::Key_unknown)
{
    bench.line->selectAll();
    QTest::keyClicks(bench.line, QLatin1String(text));
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

struct Text {
    Kind kind;
    int boundedMax; ///< of a range from 0; 0 for a free one
    const char* set;
    const char* shown;
    const char* typed;
    const char* left; ///< in the line, after Return
    const char* value; ///< as a press on the scale saves it
};

const Text typedTexts[] = {
    { Int32, 0, "7", "7", "-2147483648", "-2147483648", "-2147483648" },
    { Int16, 0, "42", "42", "70000", "70000", "42" },
    { Int16, 0, "0x1f", "1f", "ffff", "ffff", "7fff" },
    { Int16, 0, "07", "7", "-777777", "-777777", "-100000" },
    { Int32, 60, "50", "50", "70", "70", "50" },
    { Int32, 60, "0x20", "20", "ff", "ff", "3c" },
    { Int32, 0, "017", "017", "17", "17", "17" },
    { UInt32, 0, "0xff", "ff", "100000000", "100000000", "0xff" },
    { UInt16, 0, "42", "42", "many", "many", "42" },
    { UInt16, 0, "42", "42", "70000", "70000", "65535" },
    { UInt16, 0, "0x1f", "1f", "fffff", "fffff", "0xffff" },
    { UInt16, 60, "50", "50", "70", "70", "60" },
    { Float, 0, "0.1234567", "0.123457", "-1.2345678", "-1.234567", "-1.234567" },
    { Float, 0, "2.5", "2.500000", "1,5", "15", "15.000000" },
    { Float, 1, "0.5", "0.500000", "2", "2", "0.500000" },
    { Float, 1, "0.5", "0.500000", "1", "1", "1.000000" },
    { Double, 0, "1e-05", "1e-05", "0.1234567890123456", "0.123456789012345", "0.123456789012345" },
};

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Text)

class TestSliders : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void parts()
    {
        for (const int inTable : { 0, 1 }) {
            const Bench bench(Double, u"50"_s, inTable);
            QLayout* const layout = bench.slider->layout();
            const int margin = inTable == 0 ? 2 : 0;
            QCOMPARE(layout->contentsMargins(), QMargins(margin, margin, margin, margin));
            QCOMPARE(layout->spacing(), inTable == 0 ? 4 : 3);
            QStringList names { bench.slider->objectName(), layout->objectName() };
            for (int i = 0; i < layout->count(); ++i)
                names << layout->itemAt(i)->widget()->objectName();
            QCOMPARE(names.join(u' '),
                u"WfSliderFrame corvaneslider m_notifyCheckBox m_slider m_lineEdit"_s);
            QVERIFY(bench.box->isChecked() && bench.box->text().isEmpty());
            QVERIFY(bench.scale->hasTracking() && bench.scale->orientation() == Qt::Horizontal);
        }
    }

    void callsOfTheOwner_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("inTable");
        QTest::addColumn<QString>("calls");
        const auto row = [](const char* name, Act act, const QString& calls, int inTable = 0) {
            QTest::newRow(name) << act << inTable << calls;
        };
        row(
            "a refresh", [](Bench& b) { b.slider->setValue(u"7"_s); }, u""_s);
        row(
            "leaving", [](Bench& b) { QTest::keyClick(b.line, Qt::Key_Tab); }, u""_s);
        row(
            "Return", [](Bench& b) { QTest::keyClick(b.line, Qt::Key_Return); }, u""_s);
        row(
            "typing", [](Bench& b) { type(b, "25"); }, u""_s);
        row(
            "typing, leaving", [](Bench& b) { type(b, "25", Qt::Key_Tab); }, u"apply"_s);
        row(
            "typing, Return", [](Bench& b) { type(b, "25", Qt::Key_Return); }, u"apply apply"_s);
        row(
            "typing, Return in a cell", [](Bench& b) { type(b, "25", Qt::Key_Return); },
            u"off 2:3=25 on off 2:3=25 on"_s, 1);
        row(
            "a press", [](Bench& b) { SliderInput(b.scale).press(); }, u""_s);
        row("a drag", drag, u"apply apply apply"_s);
        row(
            "a step", [](Bench& b) { QTest::keyClick(b.scale, Qt::Key_Right); }, u"apply"_s);
        row(
            "a drag, unchecked", [](Bench& b) { clickBox(b), drag(b); }, u"apply"_s);
        row(
            "steps, unchecked",
            [](Bench& b) {
                clickBox(b);
                QTest::keyClick(b.scale, Qt::Key_Right);
                SliderInput(b.scale).turnWheel();
                QVERIFY(
                    b.scale->value() > 51 && b.line->text() == QString::number(b.scale->value()));
            },
            u""_s);
        row(
            "a step, checked again",
            [](Bench& b) {
                clickBox(b);
                clickBox(b);
                QTest::keyClick(b.scale, Qt::Key_Right);
            },
            u"apply"_s);
    }
    void callsOfTheOwner()
    {
        QFETCH(Act, act);
        QFETCH(int, inTable);
        Bench bench(Int32, u"50"_s, inTable);
        QVERIFY(bench.slider->m_oldValue.isNull());
        act(bench);
        QTEST(bench.owner.calls.join(u' '), "calls");
    }

    void texts_data()
    {
        QTest::addColumn<Text>("row");
        for (const Text& row : typedTexts)
            QTest::addRow("%d to %d, %s, %s", row.kind, row.boundedMax, row.set, row.typed) << row;
    }
    /// What the limits and the validator of a type make of a text, in the base of the first one.
    void texts()
    {
        QFETCH(Text, row);
        const bool bounded = row.boundedMax > 0;
        Bench bench(row.kind, QLatin1String(row.set), 0, bounded ? row.boundedMax : 100, bounded);
        QCOMPARE(bench.line->text(), QLatin1String(row.shown));
        QCOMPARE(bench.line->cursorPosition(), 0);
        QVERIFY(!bench.slider->isModified());
        type(bench, row.typed, Qt::Key_Return);
        QVERIFY(bench.slider->isModified());
        QCOMPARE(bench.line->text(), QLatin1String(row.left));
        // The scale reaches the value: letting go of the handle there keeps a whole number.
        for (int i = 0; i < (row.kind < Float ? 2 : 1); ++i) {
            SliderInput mouse(bench.scale);
            mouse.press();
            QCOMPARE(toQString(bench.slider->m_oldValue), QLatin1String(row.value));
            mouse.release();
        }
    }

    void aRangeWithoutAValueTellsNobody()
    {
        Owner owner;
        WfIntSlider slider(WfIntSlider::Int32, 0, &owner, nullptr, 0, 0);
        slider.setRange(50, 60, true); // pushes the scale
        QCOMPARE(slider.getValue(), 50);
        slider.setRange(40, 60, true);
        QCOMPARE(slider.getMinimum(), 50); // a bounded range only narrows
        slider.setValue(u"many"_s);
        QCOMPARE(slider.getValue(), 50);
        QCOMPARE(owner.calls, QStringList());
        // The first text has decided the base.
        const Bench hexadecimal(UInt32, u"0xff"_s);
        hexadecimal.slider->setValue(u"1234"_s);
        QCOMPARE(hexadecimal.line->text(), u"34"_s);
    }
};

QTEST_MAIN(TestSliders)
#include "test_sliders.moc"
