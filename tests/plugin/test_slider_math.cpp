// SPDX-License-Identifier: BSD-3-Clause
#include "SliderMath.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <tuple>

using namespace Qt::StringLiterals;
using namespace SliderMath;

constexpr double FloatMax = std::numeric_limits<float>::max();
constexpr double DoubleMax = std::numeric_limits<double>::max();
constexpr double Smallest = std::numeric_limits<double>::denorm_min();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

/// What is behind the input of a number, without its widgets.
class TestSliderMath : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void positionsOfReals()
    {
        const std::tuple<double, double, double, int> rows[] = { { 0.5, 0, 100, 1 },
            { 0.4, 0, 100, 0 }, { -DoubleMax, 0, 1, 0 }, { Infinity, 0, 1, 100 },
            { NoNumber, 0, 1, 0 }, { 5, 5, 5, 0 }, { 5, 10, 0, 0 },
            { DoubleMax / 2, -DoubleMax, DoubleMax, 75 }, { 3 * Smallest, 0, 4 * Smallest, 75 } };
        for (const auto& [value, minimum, maximum, position] : rows)
            QCOMPARE(realPosition(value, minimum, maximum), position);
    }

    void everyPositionOfARealComesBack()
    {
        const double ranges[][2] = { { 0, 1 }, { -3.1, -0.1 }, { 1e15, 1e15 + 1000 },
            { -FloatMax, FloatMax }, { -DoubleMax, DoubleMax }, { -Infinity, Infinity } };
        for (const auto& [minimum, maximum] : ranges) {
            for (int position = 0; position <= 100; ++position) {
                const double value = realValue(position, minimum, maximum);
                QVERIFY(std::isfinite(value) && value >= minimum && value <= maximum);
                QCOMPARE(realPosition(value, minimum, maximum), position);
            }
            QCOMPARE(realValue(0, minimum, maximum), finite(minimum, false));
            QCOMPARE(realValue(100, minimum, maximum), finite(maximum, false));
        }
        QCOMPARE(realValue(99, 5, 5), 5.0);
    }

    void basesOfTexts()
    {
        const std::tuple<QString, int> rows[] = { { u"0x5"_s, 16 }, { u"0x"_s, 8 }, { u"07"_s, 8 },
            { u"007"_s, 10 }, { u"0"_s, 10 }, { u"x05"_s, 10 } };
        for (const auto& [text, base] : rows)
            QCOMPARE(detectBase(text), base);
    }

    void textsOfReals()
    {
        const std::tuple<double, bool, QString, double> rows[]
            = { { 0.1234567, true, u"0.123457"_s, 0.123457 }, { 1e15, false, u"1e+15"_s, 1e15 },
                  { 1.0 / 3, false, u"0.333333333333333"_s, 0.333333333333333 },
                  { Smallest, false, u"4.94065645841247e-324"_s, Smallest },
                  { -DoubleMax, false, u"-1.79769313486231e+308"_s, -1.79769313486231e+308 },
                  { -Infinity, true, u"-inf"_s, -Infinity } };
        for (const auto& [value, isFloat, text, read] : rows) {
            QCOMPARE(realText(value, isFloat), text);
            QCOMPARE(realFromText(text, isFloat), read);
        }
        QVERIFY(std::isnan(realFromText(realText(NoNumber, false), false)));
        QCOMPARE(realFromText(u"one"_s, false), 0.0);
        QCOMPARE(realFromText(u"-1e999"_s, true), -FloatMax);
    }
};

QTEST_APPLESS_MAIN(TestSliderMath)
#include "test_slider_math.moc"
