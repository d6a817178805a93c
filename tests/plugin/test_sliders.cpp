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

#include <cmath>
#include <limits>

namespace {

/// Writes down what a slider tells it, a line a call.
class RecordingOwner : public CrvFieldEditors {
public:
    void updateFromField() override { }
    void setFieldUpdateEnabled(bool enabled) override
    {
        calls << QLatin1String(enabled ? "enable" : "disable");
    }
    void swapFieldValues(int, int) override { }
    void setFieldValue(int row, int column, QString text) override
    {
        calls << QStringLiteral("set %1 %2 %3").arg(row).arg(column).arg(text);
    }
    void setFieldColor(int, const void*) override { }
    void applyChanges() override { calls << QStringLiteral("apply"); }

    QStringList calls;
};

/// A slider in a window of its own, and its owner.
template <class Slider>
class Stage {
public:
    static Slider* make(int inTable, CrvFieldEditors* owner, QWidget* parent, int kind)
    {
        if constexpr (std::is_same_v<Slider, WfRealSlider>)
            return new WfRealSlider(inTable, owner, parent, kind == 1, 3, 1);
        else
            return new Slider(kind, inTable, owner, parent, 3, 1);
    }

    explicit Stage(int kind, int inTable = 0)
        : slider(*make(inTable, &owner, &window, kind))
        , scale(*slider.template findChild<QSlider*>(QStringLiteral("m_slider")))
        , notify(*slider.template findChild<QCheckBox*>(QStringLiteral("m_notifyCheckBox")))
        , line(*slider.m_lineEdit)
        , mouse(&scale)
    {
        (new QVBoxLayout(&window))->addWidget(&slider);
        window.resize(500, 60);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window isn't active");
    }

    void type(const QString& text) { typeInto(&line, text); }
    QString text() const { return line.text(); }

    RecordingOwner owner;
    QWidget window;
    Slider& slider; // child of the window, like all below
    QSlider& scale;
    QCheckBox& notify;
    QLineEdit& line;
    SliderInput mouse;
};

using IntStage = Stage<WfIntSlider>;
using UIntStage = Stage<WfUIntSlider>;
using RealStage = Stage<WfRealSlider>;

constexpr double DoubleMax = std::numeric_limits<double>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();

} // namespace

class TestSliders : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void aDragTellsTheOwnerAsTheCheckBoxSays()
    {
        RealStage stage(1);
        stage.slider.setRange(0, 10, false);
        stage.slider.setValue(5.03);
        QVERIFY(stage.notify.isChecked());
        stage.mouse.press();
        QCOMPARE(toQString(stage.slider.m_oldValue), QStringLiteral("5.030000"));
        stage.mouse.moveBy(20);
        stage.mouse.moveBy(20);
        QCOMPARE(stage.owner.calls.count(), 2);
        stage.mouse.release();
        QCOMPARE(stage.owner.calls.count(), 3);
        QVERIFY(stage.slider.getValue() > 5.5);
        QCOMPARE(stage.text(), QString::number(stage.slider.getValue(), 'f', 6));

        QTest::mouseClick(&stage.notify, Qt::LeftButton);
        stage.owner.calls.clear();
        stage.mouse.press();
        stage.mouse.moveBy(-20);
        QCOMPARE(stage.owner.calls.count(), 0);
        stage.mouse.release();
        QCOMPARE(stage.owner.calls, QStringList { QStringLiteral("apply") });
    }

    void aPressWithoutAMoveFallsOnTheGrid()
    {
        RealStage stage(1);
        stage.slider.setRange(0, 10, false);
        stage.slider.setValue(5.03);
        stage.mouse.press();
        stage.mouse.release();
        QCOMPARE(stage.slider.getValue(), 5.0);
        QCOMPARE(stage.owner.calls.count(), 1);
        QCOMPARE(stage.text(), QStringLiteral("5.030000"));
    }

    void stepsWithTheCheckBoxClearReachNoOwner()
    {
        IntStage stage(1);
        stage.slider.setRange(0, 100, false);
        stage.slider.setValue(QStringLiteral("50"));
        for (const bool notify : { true, false }) {
            stage.notify.setChecked(notify);
            stage.owner.calls.clear();
            const int before = stage.slider.getValue();
            stage.mouse.turnWheel();
            QTest::keyClick(&stage.scale, Qt::Key_Right);
            QVERIFY(stage.slider.getValue() > before + 1);
            QCOMPARE(stage.text(), QString::number(stage.slider.getValue()));
            QCOMPARE(stage.owner.calls.count(), notify ? 2 : 0);
        }
        const int before = stage.slider.getValue();
        stage.mouse.clickGroove();
        QVERIFY(stage.slider.getValue() > before);
        QCOMPARE(stage.owner.calls.count(), 0);
    }

    void aFreeRangeGrowsToWhatIsTyped()
    {
        RealStage stage(1);
        stage.slider.setRange(0, 10, false);
        stage.slider.setValue(1);
        stage.type(QStringLiteral("25"));
        QCOMPARE(stage.slider.getMaximum(), 25.0);
        QCOMPARE(stage.scale.value(), 100);
        // Return raises both signals of the line, which stays modified.
        QCOMPARE(stage.owner.calls.count(), 2);
        QVERIFY(stage.slider.isModified());
        stage.slider.setValue(5);
        QCOMPARE(stage.scale.value(), 20);
        stage.type(QStringLiteral("-25"));
        QCOMPARE(stage.slider.getMinimum(), -25.0);
        QCOMPARE(stage.scale.value(), 0);
    }

    void aBoundedRangeHoldsUntilAFreeOneFollows()
    {
        RealStage stage(1);
        stage.slider.setRange(0, 1, true);
        stage.slider.setValue(0.5);
        stage.type(QStringLiteral("2"));
        QCOMPARE(stage.owner.calls.count(), 0);
        QCOMPARE(stage.slider.getValue(), 0.5);
        stage.slider.setRange(0, 10, false);
        stage.slider.setValue(0.5);
        stage.type(QStringLiteral("-1234.5"));
        QCOMPARE(stage.slider.getValue(), -1234.5);
        stage.slider.setRange(0, 1, true);
        stage.slider.setValue(7);
        QCOMPARE(stage.slider.getValue(), 1.0);
        QCOMPARE(stage.text(), QStringLiteral("7.000000"));
    }

    void realsOfAllKindsAreShown_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<bool>("bounded");
        QTest::addColumn<int>("position");
        QTest::newRow("no number") << std::nan("") << 0.0 << 1.0 << true << 0;
        QTest::newRow("infinity") << Infinity << 0.0 << 10.0 << false << 100;
        QTest::newRow("infinite range") << 1.0 << -Infinity << Infinity << true << 50;
        QTest::newRow("all doubles") << DoubleMax / 2 << -DoubleMax << DoubleMax << true << 75;
        QTest::newRow("1e15") << 1e15 << 0.0 << 10.0 << false << 100;
        QTest::newRow("empty range") << 4.0 << 4.0 << 4.0 << true << 0;
        QTest::newRow("negative range of a new slider") << -1.0 << -5.0 << 0.0 << false << 80;
    }
    void realsOfAllKindsAreShown()
    {
        QFETCH(double, value);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(bool, bounded);
        QFETCH(int, position);
        RealStage stage(2);
        stage.slider.setRange(minimum, maximum, bounded);
        stage.slider.setValue(value);
        QCOMPARE(stage.text(), QString::number(value, 'g', 15));
        QCOMPARE(stage.scale.value(), position);
        QCOMPARE(stage.owner.calls.count(), 0);
        // What can be moved gives a number that can be held.
        QTest::keyClick(&stage.scale, Qt::Key_Right);
        QTest::keyClick(&stage.scale, Qt::Key_Left);
        QVERIFY(std::isfinite(stage.slider.getValue()) || stage.owner.calls.isEmpty());
        QCOMPARE(stage.scale.maximum(), minimum == maximum ? 0 : 100);
    }

    void theFirstTextDecidesTheBase()
    {
        UIntStage stage(2);
        stage.slider.setRange(0, 100, false);
        stage.slider.setValue(QStringLiteral("0xff"));
        QCOMPARE(stage.text(), QStringLiteral("ff"));
        stage.slider.setValue(QStringLiteral("1234"));
        QCOMPARE(stage.slider.getValue(), 0x34U);
        stage.mouse.press();
        QCOMPARE(toQString(stage.slider.m_oldValue), QStringLiteral("0x34"));
        stage.mouse.release();

        IntStage octal(1);
        octal.slider.setValue(QStringLiteral("07"));
        octal.slider.setValue(QStringLiteral("010"));
        QCOMPARE(octal.slider.getValue(), 8);
    }

    void unsignedValuesReachBothEnds()
    {
        UIntStage stage(2);
        stage.slider.setRange(0, 100, false);
        stage.slider.setValue(QStringLiteral("0x64"));
        stage.type(QStringLiteral("ffffffff"));
        QCOMPARE(stage.slider.getValue(), 0xffffffffU);
        QCOMPARE(stage.scale.value(), std::numeric_limits<int>::max());
        QTest::keyClick(&stage.scale, Qt::Key_Left);
        QCOMPARE(stage.text(), QStringLiteral("fffffffe"));
        QTest::keyClick(&stage.scale, Qt::Key_Home);
        QCOMPARE(stage.slider.getValue(), 0U);
        QCOMPARE(stage.scale.value(), std::numeric_limits<int>::min());
    }

    void signedValuesReachBothEnds()
    {
        IntStage stage(1);
        stage.slider.setRange(0, 100, false);
        for (const int end : { std::numeric_limits<int>::min(), std::numeric_limits<int>::max() }) {
            stage.slider.setValue(QStringLiteral("5"));
            stage.type(QString::number(end));
            QCOMPARE(stage.slider.getValue(), end);
            QCOMPARE(stage.scale.value(), end);
        }
    }

    void textsThatDoNotParse()
    {
        UIntStage unsignedStage(4);
        unsignedStage.slider.setRange(0, 100, false);
        unsignedStage.slider.setValue(QStringLiteral("42"));
        unsignedStage.type(QStringLiteral("many"));
        QCOMPARE(unsignedStage.slider.getValue(), 42U);
        // What undo brings back is the value, not the text that was refused.
        unsignedStage.mouse.press();
        QCOMPARE(toQString(unsignedStage.slider.m_oldValue), QStringLiteral("42"));
        unsignedStage.mouse.release();
        unsignedStage.type(QStringLiteral("70000"));
        QCOMPARE(unsignedStage.slider.getValue(), 65535U);

        IntStage signedStage(3);
        signedStage.slider.setValue(QStringLiteral("42"));
        signedStage.type(QStringLiteral("70000"));
        QCOMPARE(signedStage.slider.getValue(), 42);
        signedStage.slider.setValue(QStringLiteral("many"));
        QCOMPARE(signedStage.slider.getValue(), 0);
    }

    void aBoundedIntegerRangeNarrowsForGood()
    {
        IntStage stage(1);
        stage.slider.setRange(10, 20, true);
        stage.slider.setRange(-100, 100, true);
        QCOMPARE(stage.scale.minimum(), 10);
        QCOMPARE(stage.scale.maximum(), 20);
        stage.slider.setValue(QStringLiteral("25"));
        QCOMPARE(stage.slider.getValue(), 20);
    }

    void aCellIsWrittenBehindTheClosedGate()
    {
        UIntStage stage(2, 1);
        QCOMPARE(stage.slider.layout()->contentsMargins(), QMargins());
        stage.slider.setRange(0, 10, false);
        stage.slider.setValue(QStringLiteral("0x5"));
        stage.type(QStringLiteral("a"));
        const QStringList write { QStringLiteral("disable"), QStringLiteral("set 3 1 0xa"),
            QStringLiteral("enable") };
        QCOMPARE(stage.owner.calls, write + write);
    }

    void aPushedScaleIsNoEditBeforeTheFirstValue()
    {
        IntStage stage(1);
        stage.slider.setRange(50, 60, true);
        QCOMPARE(stage.slider.getValue(), 50);
        QCOMPARE(stage.owner.calls.count(), 0);
        stage.slider.setValue(QStringLiteral("60"));
        {
            const WfSlider::OwnerHold hold(stage.slider);
            stage.slider.setRange(50, 55, true);
        }
        QCOMPARE(stage.slider.getValue(), 55);
        QCOMPARE(stage.owner.calls.count(), 0);
        stage.slider.setRange(50, 54, true);
        QCOMPARE(stage.owner.calls.count(), 1);
    }
};

QTEST_MAIN(TestSliders)
#include "test_sliders.moc"
