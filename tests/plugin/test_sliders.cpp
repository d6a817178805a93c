// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldEditors.h"
#include "EditorRow.h"
#include "SliderInput.h"
#include "StringConversion.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"
#include "WfUIntSlider.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include <limits>

namespace {

/// Writes down what a slider tells it, a word a call.
class RecordingOwner : public CrvFieldEditors {
public:
    void updateFromField() override { }
    void setFieldUpdateEnabled(bool on) override { calls << QLatin1String(on ? "open" : "close"); }
    void swapFieldValues(int, int) override { }
    void setFieldValue(int row, int column, QString text) override
    {
        calls << QStringLiteral("%1,%2=%3").arg(row).arg(column).arg(text);
    }
    void setFieldColor(int, const void*) override { }
    void applyChanges() override { calls << QStringLiteral("apply"); }

    QStringList calls;
};

/// A slider in a window of its own, and its owner.
template <class Slider>
class Stage {
public:
    explicit Stage(int kind, int inTable = 0)
    {
        if constexpr (std::is_same_v<Slider, WfRealSlider>)
            slider = new WfRealSlider(inTable, &owner, &window, kind == 1, 3, 1);
        else
            slider = new Slider(kind, inTable, &owner, &window, 3, 1);
        scale = slider->template findChild<QSlider*>();
        notify = slider->template findChild<QCheckBox*>();
        (new QVBoxLayout(&window))->addWidget(slider);
        window.resize(500, 60);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window isn't active");
    }

    void type(const char* text) { typeInto(slider->m_lineEdit, QString::fromLatin1(text)); }
    void show(const char* text) { slider->setValue(QString::fromLatin1(text)); }
    QString shown() const { return slider->m_lineEdit->text(); }
    QString saved() const { return toQString(slider->m_oldValue); }

    RecordingOwner owner;
    QWidget window;
    Slider* slider; // child of the window, as those below are
    QSlider* scale;
    QCheckBox* notify;
};

using IntStage = Stage<WfIntSlider>;
using UIntStage = Stage<WfUIntSlider>;
using RealStage = Stage<WfRealSlider>;

} // namespace

class TestSliders : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void aPressWithoutAMoveFallsOnTheGrid()
    {
        RealStage stage(1);
        SliderInput mouse(stage.scale);
        stage.slider->setRange(0, 10, false);
        stage.slider->setValue(5.03);
        mouse.press();
        QCOMPARE(stage.saved(), QStringLiteral("5.030000"));
        mouse.release();
        QCOMPARE(stage.slider->getValue(), 5.0);
        QCOMPARE(stage.shown(), QStringLiteral("5.030000"));
        QCOMPARE(stage.owner.calls.count(), 1);
    }

    void stepsWithTheCheckBoxClearReachNoOwner()
    {
        IntStage stage(1);
        SliderInput mouse(stage.scale);
        stage.slider->setRange(0, 100, false);
        stage.show("50");
        for (const int calls : { 2, 0 }) {
            stage.owner.calls.clear();
            const int before = stage.slider->getValue();
            mouse.turnWheel();
            QTest::keyClick(stage.scale, Qt::Key_Right);
            QVERIFY(stage.slider->getValue() > before + 1);
            QCOMPARE(stage.shown(), QString::number(stage.slider->getValue()));
            QCOMPARE(stage.owner.calls.count(), calls);
            QTest::mouseClick(stage.notify, Qt::LeftButton);
        }
    }

    void aFreeRangeGrowsAndABoundedOneHolds()
    {
        RealStage stage(1);
        stage.slider->setRange(0, 10, false);
        stage.slider->setValue(1);
        stage.type("25");
        QCOMPARE(stage.slider->getMaximum(), 25.0);
        QCOMPARE(stage.scale->value(), 100);
        // Return raises both signals of the line, which stays modified.
        QCOMPARE(stage.owner.calls.count(), 2);
        QVERIFY(stage.slider->isModified());
        stage.slider->setValue(5);
        QCOMPARE(stage.scale->value(), 20);

        stage.slider->setRange(0, 1, true);
        stage.slider->setValue(7);
        QCOMPARE(stage.slider->getValue(), 1.0);
        QCOMPARE(stage.shown(), QStringLiteral("7.000000"));
        stage.type("2");
        QCOMPARE(stage.owner.calls.count(), 2);

        // The limits of what may be typed go with the bounded range.
        stage.slider->setRange(0, 10, false);
        stage.type("-1234.5");
        QCOMPARE(stage.slider->getMinimum(), -1234.5);
        QCOMPARE(stage.scale->value(), 0);
    }

    void anEmptyRealRangeStandsStill()
    {
        RealStage stage(2);
        stage.slider->setRange(4, 4, true);
        stage.slider->setValue(4);
        QTest::keyClick(stage.scale, Qt::Key_Right);
        SliderInput(stage.scale).press();
        QCOMPARE(stage.scale->value(), 0);
        QCOMPARE(stage.shown(), QStringLiteral("4"));
        QCOMPARE(stage.owner.calls.count(), 0);

        RealStage negative(2);
        negative.slider->setRange(-5, 0, false);
        negative.slider->setValue(-1);
        QCOMPARE(negative.scale->value(), 80);
        QCOMPARE(negative.scale->maximum(), 100);
    }

    void theFirstTextDecidesTheBase()
    {
        UIntStage stage(2);
        stage.slider->setRange(0, 100, false);
        stage.show("0xff");
        QCOMPARE(stage.shown(), QStringLiteral("ff"));
        stage.show("1234");
        QCOMPARE(stage.slider->getValue(), 0x34U);
        SliderInput(stage.scale).press();
        QCOMPARE(stage.saved(), QStringLiteral("0x34"));
        stage.type("ffffffff");
        QCOMPARE(stage.scale->value(), std::numeric_limits<int>::max());
        QTest::keyClick(stage.scale, Qt::Key_Left);
        QCOMPARE(stage.shown(), QStringLiteral("fffffffe"));
        QTest::keyClick(stage.scale, Qt::Key_Home);
        QCOMPARE(stage.slider->getValue(), 0U);
        QCOMPARE(stage.scale->value(), std::numeric_limits<int>::min());

        IntStage octal(1);
        octal.show("07");
        octal.show("010");
        QCOMPARE(octal.slider->getValue(), 8);
    }

    void textsThatDoNotParse()
    {
        UIntStage stage(4);
        stage.slider->setRange(0, 100, false);
        stage.show("42");
        stage.type("many");
        QCOMPARE(stage.slider->getValue(), 42U);
        // What undo brings back is the value, not the text that was refused.
        SliderInput mouse(stage.scale);
        mouse.press();
        QCOMPARE(stage.saved(), QStringLiteral("42"));
        mouse.release();
        stage.type("70000");
        QCOMPARE(stage.slider->getValue(), 65535U);

        IntStage signedStage(3);
        signedStage.show("42");
        signedStage.type("70000");
        QCOMPARE(signedStage.slider->getValue(), 42);
        signedStage.show("many");
        QCOMPARE(signedStage.slider->getValue(), 0);
    }

    void aCellIsWrittenBehindTheClosedGate()
    {
        UIntStage stage(2, 1);
        stage.slider->setRange(0, 10, false);
        stage.show("0x5");
        stage.type("a");
        QCOMPARE(
            stage.owner.calls.join(u' '), QStringLiteral("close 3,1=0xa open close 3,1=0xa open"));
    }

    void aPushedScaleIsNoEditBeforeTheFirstValue()
    {
        IntStage stage(1);
        stage.slider->setRange(50, 60, true);
        QCOMPARE(stage.slider->getValue(), 50);
        stage.show("60");
        {
            const WfSlider::OwnerHold hold(*stage.slider);
            stage.slider->setRange(50, 55, true);
        }
        QCOMPARE(stage.slider->getValue(), 55);
        QCOMPARE(stage.owner.calls.count(), 0);
        stage.slider->setRange(40, 54, true);
        QCOMPARE(stage.scale->minimum(), 50); // a bounded range only narrows
        QCOMPARE(stage.owner.calls.count(), 1);
    }
};

QTEST_MAIN(TestSliders)
#include "test_sliders.moc"
