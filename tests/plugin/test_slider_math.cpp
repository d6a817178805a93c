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
    void theBaseOfAText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("base");
        QTest::addColumn<QString>("digits");
        QTest::newRow("hexadecimal") << QStringLiteral("0x1f") << 16 << QStringLiteral("1f");
        QTest::newRow("shortest hexadecimal") << QStringLiteral("0x1") << 16 << QStringLiteral("1");
        QTest::newRow("octal") << QStringLiteral("07") << 8 << QStringLiteral("7");
        QTest::newRow("octal prefix of no number")
            << QStringLiteral("0x") << 8 << QStringLiteral("x");
        QTest::newRow("three digits") << QStringLiteral("017") << 10 << QStringLiteral("017");
        QTest::newRow("nought") << QStringLiteral("0") << 10 << QStringLiteral("0");
        QTest::newRow("negative") << QStringLiteral("-1") << 10 << QStringLiteral("-1");
        QTest::newRow("empty") << QString() << 10 << QString();
    }
    void theBaseOfAText()
    {
        QFETCH(QString, text);
        QFETCH(int, base);
        QFETCH(QString, digits);
        QCOMPARE(detectBase(text), base);
        QCOMPARE(withoutPrefix(text, base), digits);
        QCOMPARE(withPrefix(digits, base), text);
    }

    void aPrefixThatWasTypedIsNotDoubled()
    {
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

    void positionsOfReals_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<int>("position");
        QTest::newRow("bottom") << 0.0 << 0.0 << 10.0 << 0;
        QTest::newRow("top") << 10.0 << 0.0 << 10.0 << 100;
        QTest::newRow("a half rounds up") << 0.5 << 0.0 << 100.0 << 1;
        QTest::newRow("less rounds down") << 0.4 << 0.0 << 100.0 << 0;
        QTest::newRow("below") << -DoubleMax << 0.0 << 1.0 << 0;
        QTest::newRow("above") << Infinity << 0.0 << 1.0 << 100;
        QTest::newRow("no number") << NoNumber << 0.0 << 1.0 << 0;
        QTest::newRow("empty range") << 5.0 << 5.0 << 5.0 << 0;
        QTest::newRow("upside down") << 5.0 << 10.0 << 0.0 << 0;
        QTest::newRow("range of no numbers") << 5.0 << NoNumber << NoNumber << 0;
        QTest::newRow("all doubles") << DoubleMax / 2 << -DoubleMax << DoubleMax << 75;
        QTest::newRow("all floats") << -FloatMax / 2 << -FloatMax << FloatMax << 25;
        QTest::newRow("infinite range") << 0.0 << -Infinity << Infinity << 50;
        QTest::newRow("tiny range") << 3 * Smallest << 0.0 << 4 * Smallest << 75;
    }
    void positionsOfReals()
    {
        QFETCH(double, value);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(int, position);
        QCOMPARE(realPosition(value, minimum, maximum), position);
    }

    void everyPositionOfARealComesBack_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::newRow("ratio") << 0.0 << 1.0;
        QTest::newRow("negative") << -3.1 << -0.1;
        QTest::newRow("far away") << 1e15 << 1e15 + 1000;
        QTest::newRow("all floats") << -FloatMax << FloatMax;
        QTest::newRow("all doubles") << -DoubleMax << DoubleMax;
        QTest::newRow("infinite") << -Infinity << Infinity;
    }
    void everyPositionOfARealComesBack()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        for (int position = 0; position <= 100; ++position) {
            const double value = realValue(position, minimum, maximum);
            QVERIFY(std::isfinite(value) && value >= minimum && value <= maximum);
            QCOMPARE(realPosition(value, minimum, maximum), position);
        }
        QCOMPARE(realValue(0, minimum, maximum), finite(minimum, false));
        QCOMPARE(realValue(100, minimum, maximum), finite(maximum, false));
    }

    void anEmptyRangeHasOneValue()
    {
        QCOMPARE(realValue(0, 5.0, 5.0), 5.0);
        QCOMPARE(realValue(99, 5.0, 5.0), 5.0);
    }

    void textsOfReals_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("isFloat");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("read");
        QTest::newRow("float") << 0.1234567 << true << QStringLiteral("0.123457") << 0.123457;
        QTest::newRow("tiny float") << 1e-10 << true << QStringLiteral("0.000000") << 0.0;
        QTest::newRow("largest float")
            << FloatMax << true << QStringLiteral("340282346638528859811704183484516925440.000000")
            << FloatMax;
        QTest::newRow("double") << 1.0 / 3 << false << QStringLiteral("0.333333333333333")
                                << 0.333333333333333;
        QTest::newRow("1e15") << 1e15 << false << QStringLiteral("1e+15") << 1e15;
        QTest::newRow("tiny double")
            << Smallest << false << QStringLiteral("4.94065645841247e-324") << Smallest;
        QTest::newRow("largest double")
            << DoubleMax << false << QStringLiteral("1.79769313486231e+308")
            << 1.79769313486231e+308;
        QTest::newRow("lowest double")
            << -DoubleMax << false << QStringLiteral("-1.79769313486231e+308")
            << -1.79769313486231e+308;
        QTest::newRow("infinity") << -Infinity << true << QStringLiteral("-inf") << -Infinity;
        QTest::newRow("no number") << NoNumber << false << QStringLiteral("nan") << NoNumber;
    }
    void textsOfReals()
    {
        QFETCH(double, value);
        QFETCH(bool, isFloat);
        QFETCH(QString, text);
        QFETCH(double, read);
        QCOMPARE(realText(value, isFloat), text);
        const double back = realFromText(text, isFloat);
        QVERIFY(back == read || (std::isnan(back) && std::isnan(read)));
    }

    void textsThatSayNoNumber()
    {
        QCOMPARE(realFromText(QStringLiteral("one"), false), 0.0);
        QCOMPARE(realFromText(QString(), true), 0.0);
        QCOMPARE(realFromText(QStringLiteral("1e999"), false), DoubleMax);
        QCOMPARE(realFromText(QStringLiteral("-1e999"), true), -FloatMax);
    }

    void narrowingStaysInTheType()
    {
        QCOMPARE(toFloat(DoubleMax), std::numeric_limits<float>::max());
        QCOMPARE(toFloat(-DoubleMax), std::numeric_limits<float>::lowest());
        QVERIFY(std::isinf(toFloat(Infinity)));
        QVERIFY(std::isnan(toFloat(NoNumber)));
    }

    void limitsCutTheMaximumFirst()
    {
        QCOMPARE(limited(7, 0, 5), 5);
        QCOMPARE(limited(-7, 0, 5), 0);
        QCOMPARE(limited(7, 50, 10), 50);
        QVERIFY(std::isnan(limited(NoNumber, 0.0, 1.0)));
    }
};

QTEST_APPLESS_MAIN(TestSliderMath)
#include "test_slider_math.moc"
