// SPDX-License-Identifier: BSD-3-Clause
#include "CrvStrings.h"
#include "EditorCase.h"
#include "SliderInput.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QCheckBox>
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
    if (kind == Float || kind == Double)
        return filled(std::make_unique<WfRealSlider>(inTable, owner, nullptr, kind == Float, 2, 3),
            text.toDouble());
    if (kind == Int32 || kind == Int16) {
        const auto type = kind == Int32 ? WfIntSlider::Int32 : WfIntSlider::Int16;
        return filled(std::make_unique<WfIntSlider>(type, inTable, owner, nullptr, 2, 3), text);
    }
    const auto type = kind == UInt32 ? WfUIntSlider::UInt32 : WfUIntSlider::UInt16;
    return filled(std::make_unique<WfUIntSlider>(type, inTable, owner, nullptr, 2, 3), text);
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
    { Int16, 0, "42", "42", "70000", "70000", "42" },
    { Int16, 0, "0x1f", "1f", "ffff", "ffff", "7fff" },
    { Int16, 0, "07", "7", "-777777", "-777777", "-100000" },
    { Int32, 60, "50", "50", "70", "70", "50" },
    { Int32, 60, "0x20", "20", "ff", "ff", "3c" },
    { Int32, 0, "017", "017", "17", "17", "17" },
    { UInt32, 0, "0xff", "ff", "100000000", "100000000", "0xff" },
    { UInt16, 0, "42", "42", "70000", "70000", "65535" },
    { UInt16, 60, "50", "50", "70", "70", "60" },
    { Float, 0, "0.1234567", "0.123457", "-1.2345678", "-1.234567", "-1.234567" },
    { Float, 0, "2.5", "2.500000", "1,5", "15", "15.000000" },
    { Float, 1, "0.5", "0.500000", "2", "2", "0.500000" },
    { Double, 0, "1e-05", "1e-05", "0.1234567890123456", "0.123456789012345", "0.123456789012345" },
};

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Text)

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
        row("typing", u""_s, [](Bench& b) { type(b, "25"); });
        row("typing, leaving", u"apply"_s, [](Bench& b) { type(b, "25", Qt::Key_Tab); });
        const Act typeAndReturn = [](Bench& b) { type(b, "25", Qt::Key_Return); };
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
};

QTEST_MAIN(TestSliders)
#include "test_sliders.moc"
