// SPDX-License-Identifier: BSD-3-Clause
#include "SliderMath.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace SliderMath;

namespace {

constexpr double FloatMax = std::numeric_limits<float>::max();
constexpr double DoubleMax = std::numeric_limits<double>::max();
constexpr double Smallest = std::numeric_limits<double>::denorm_min();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

class TestSliderMath : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theBaseOfAText()
    {
        const struct {
            QString text;
            int base;
            QString digits;
        } rows[] = {
            { QStringLiteral("0x1f"), 16, QStringLiteral("1f") },
            { QStringLiteral("0x1"), 16, QStringLiteral("1") },
            { QStringLiteral("07"), 8, QStringLiteral("7") },
            { QStringLiteral("0x"), 8, QStringLiteral("x") },
            { QStringLiteral("017"), 10, QStringLiteral("017") },
            { QStringLiteral("0"), 10, QStringLiteral("0") },
            { QStringLiteral("-1"), 10, QStringLiteral("-1") },
            { QString(), 10, QString() },
        };
        for (const auto& row : rows) {
            QCOMPARE(detectBase(row.text), row.base);
            QCOMPARE(withoutPrefix(row.text, row.base), row.digits);
            QCOMPARE(withPrefix(row.digits, row.base), row.text);
        }
        QCOMPARE(withPrefix(QStringLiteral("0XfF"), 16), QStringLiteral("0xfF"));
        QCOMPARE(withoutPrefix(QStringLiteral("77"), 16), QString());
    }

    void unsignedValuesKeepTheirOrder()
    {
        const unsigned int values[] = { 0, 1, 0x7fffffff, 0x80000000, 0xfffffffe, 0xffffffff };
        QCOMPARE(unsignedPosition(values[0]), std::numeric_limits<int>::min());
        QCOMPARE(unsignedPosition(values[5]), std::numeric_limits<int>::max());
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(unsignedValue(unsignedPosition(values[i])), values[i]);
            QVERIFY(i == 0 || unsignedPosition(values[i]) > unsignedPosition(values[i - 1]));
        }
    }

    void positionsOfReals()
    {
        const struct {
            double value, minimum, maximum;
            int position;
        } rows[] = {
            { 0, 0, 10, 0 },
            { 10, 0, 10, 100 },
            { 0.5, 0, 100, 1 },
            { 0.4, 0, 100, 0 },
            { -DoubleMax, 0, 1, 0 },
            { Infinity, 0, 1, 100 },
            { NoNumber, 0, 1, 0 },
            { 5, 5, 5, 0 },
            { 5, 10, 0, 0 },
            { 5, NoNumber, NoNumber, 0 },
            { DoubleMax / 2, -DoubleMax, DoubleMax, 75 },
            { -FloatMax / 2, -FloatMax, FloatMax, 25 },
            { 0, -Infinity, Infinity, 50 },
            { 3 * Smallest, 0, 4 * Smallest, 75 },
        };
        for (const auto& row : rows)
            QCOMPARE(realPosition(row.value, row.minimum, row.maximum), row.position);
    }

    void everyPositionOfARealComesBack()
    {
        const double ranges[][2] = { { 0.0, 1.0 }, { -3.1, -0.1 }, { 1e15, 1e15 + 1000 },
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
        QCOMPARE(realValue(99, 5.0, 5.0), 5.0);
    }

    void textsOfReals()
    {
        const struct {
            double value;
            bool isFloat;
            const char* text;
            double read;
        } rows[] = {
            { 0.1234567, true, "0.123457", 0.123457 },
            { 1e-10, true, "0.000000", 0.0 },
            { FloatMax, true, "340282346638528859811704183484516925440.000000", FloatMax },
            { 1.0 / 3, false, "0.333333333333333", 0.333333333333333 },
            { 1e15, false, "1e+15", 1e15 },
            { Smallest, false, "4.94065645841247e-324", Smallest },
            { DoubleMax, false, "1.79769313486231e+308", 1.79769313486231e+308 },
            { -DoubleMax, false, "-1.79769313486231e+308", -1.79769313486231e+308 },
            { -Infinity, true, "-inf", -Infinity },
        };
        for (const auto& row : rows) {
            QCOMPARE(realText(row.value, row.isFloat), QString::fromLatin1(row.text));
            QCOMPARE(realFromText(QString::fromLatin1(row.text), row.isFloat), row.read);
        }
        QVERIFY(std::isnan(realFromText(realText(NoNumber, false), false)));
    }

    void textsThatSayNoNumber()
    {
        QCOMPARE(realFromText(QStringLiteral("one"), false), 0.0);
        QCOMPARE(realFromText(QString(), true), 0.0);
        QCOMPARE(realFromText(QStringLiteral("1e999"), false), DoubleMax);
        QCOMPARE(realFromText(QStringLiteral("-1e999"), true), -FloatMax);
    }

    void numbersStayInTheirType()
    {
        QCOMPARE(double(toFloat(DoubleMax)), FloatMax);
        QCOMPARE(double(toFloat(-DoubleMax)), -FloatMax);
        QVERIFY(std::isinf(toFloat(Infinity)) && std::isnan(toFloat(NoNumber)));
        QCOMPARE(limited(7, 0, 5), 5);
        QCOMPARE(limited(7, 50, 10), 50);
        QVERIFY(std::isnan(limited(NoNumber, 0.0, 1.0)));
    }
};

QTEST_APPLESS_MAIN(TestSliderMath)
#include "test_slider_math.moc"
