// SPDX-License-Identifier: BSD-3-Clause
#include "KnMFields.h"
#include "KnSFields.h"

#include <QTest>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

template <class Field>
QByteArray textOf(typename Field::Value value)
{
    Field field;
    field.setValue(value);
    KbString text;
    field.get(text);
    return QByteArray::fromStdString(text.toUtf8());
}

/// The number of digits from the first to the last that isn't 0.
qsizetype countDigits(const QByteArray& text)
{
    QByteArray digits = text.split('e').first().replace('.', "").replace('-', "");
    while (digits.startsWith('0'))
        digits.remove(0, 1);
    while (digits.endsWith('0'))
        digits.chop(1);
    return digits.size();
}

/// Why the text of a number isn't what it should be, or nothing.
template <class Number>
QByteArray judge(Number value, const QByteArray& text)
{
    const Number magnitude = std::fabs(value);
    if (!std::isfinite(value) || value == 0)
        return {};
    const bool plain = magnitude >= Number(1e-4L) && magnitude < Number(1e15L);
    if (plain == text.contains('e'))
        return "notation";
    std::array<char, 64> shortest {};
    std::to_chars(
        shortest.data(), shortest.data() + shortest.size(), value, std::chars_format::scientific);
    // A whole number in plain notation is exact, which may take more digits and no more characters.
    const bool whole = plain && !text.contains('.');
    return !whole && countDigits(text) != countDigits(shortest.data()) ? "length" : "";
}

/// Sends numbers through the text of an array and of single values, and compares the bits.
template <class Array, class Single>
void sweep(const std::vector<typename Array::Value>& numbers)
{
    using Number = typename Array::Value;
    Array from;
    Array to;
    from.setValues(0, static_cast<int>(numbers.size()), numbers.data());
    KbString text;
    from.get(text);
    QVERIFY(to.set(text));
    QCOMPARE(to.getNum(), static_cast<int>(numbers.size()));
    for (int i = 0; i < to.getNum(); ++i) {
        const bool same = std::isnan(from[i])
            ? std::isnan(to[i]) && std::signbit(from[i]) == std::signbit(to[i])
            : std::memcmp(&from[i], &to[i], sizeof(Number)) == 0;
        if (!same)
            QCOMPARE(to[i], from[i]);
    }
    for (int i = 0; i < to.getNum(); i += 97) {
        const QByteArray single = textOf<Single>(from[i]);
        QVERIFY2(judge(from[i], single).isEmpty(), single.constData());
    }
}

} // namespace

class TestNumberText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void floatsOfAllBitPatternsReadBack();
    void doublesReadBack();
    void notation_data();
    void notation();
    void rangeEnds_data();
    void rangeEnds();
};

void TestNumberText::floatsOfAllBitPatternsReadBack()
{
    std::vector<float> numbers;
    for (std::uint64_t bits = 0; bits <= 0xffffffffU; bits += 1499) // a prime number
        numbers.push_back(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
    sweep<KnMFFloat, KnSFFloat>(numbers);
}

void TestNumberText::doublesReadBack()
{
    std::mt19937_64 random(1); // NOLINT: the same numbers each time
    std::vector<double> numbers;
    for (int i = 0; i < 500000; ++i)
        numbers.push_back(std::bit_cast<double>(random()));
    // Random patterns are seldom of a plain magnitude.
    std::uniform_real_distribution<double> exponent(-6.0, 17.0);
    for (int i = 0; i < 500000; ++i)
        numbers.push_back(std::pow(10.0, exponent(random)));
    using Limits = std::numeric_limits<double>;
    for (const double corner : { 0.0, -0.0, Limits::min(), Limits::max(), Limits::denorm_min(),
             Limits::epsilon(), Limits::infinity(), 9007199254740993.0, 5e-324, 1e23, 0.1, 1e15,
             999999999999999.9, 1e-4 }) {
        for (const double sign : { 1.0, -1.0 }) {
            for (const double toward : { corner, 0.0, Limits::infinity() })
                numbers.push_back(sign * std::nextafter(corner, toward));
        }
    }
    sweep<KnMFDouble, KnSFDouble>(numbers);
}

void TestNumberText::notation_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("asFloat");
    QTest::addColumn<QByteArray>("asDouble");
    const auto row = [](double number, const char* asFloat, const char* asDouble) {
        QTest::newRow(asDouble) << number << QByteArray(asFloat) << QByteArray(asDouble);
    };
    row(100000, "100000", "100000");
    row(0.0001, "0.0001", "0.0001");
    row(0.00009, "9e-05", "9e-05");
    row(-0.0, "-0", "-0");
    row(1e14, "100000000376832", "100000000000000");
    row(1e15, "1e+15", "1e+15");
    row(-1.5e300, "-inf", "-1.5e+300");
    row(1e-320, "0", "1e-320");
    row(1.0 / 3.0, "0.33333334", "0.3333333333333333");
    row(123456.789, "123456.79", "123456.789");
}

void TestNumberText::notation()
{
    QFETCH(double, number);
    QFETCH(QByteArray, asFloat);
    QFETCH(QByteArray, asDouble);
    const bool fits = std::fabs(number) <= double(std::numeric_limits<float>::max());
    QCOMPARE(textOf<KnSFFloat>(fits ? static_cast<float>(number) : -INFINITY), asFloat);
    QCOMPARE(textOf<KnSFDouble>(number), asDouble);
}

void TestNumberText::rangeEnds_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("asFloat"); // empty: refused
    QTest::addColumn<QByteArray>("asDouble");
    const auto row = [](const char* text, const char* asFloat, const char* asDouble) {
        QTest::newRow(text) << QByteArray(text) << QByteArray(asFloat) << QByteArray(asDouble);
    };
    row("3.4028235e38", "3.4028235e+38", "3.4028235e+38");
    row("3.4028236e38", "", "3.4028236e+38");
    row("-1e39", "", "-1e+39");
    row("1e400", "", "");
    row("-1e99999999999999999999", "", "");
    row("1000000000000000000000000000000000000000e0", "", "1e+39");
    row("1e-45", "1e-45", "1e-45");
    row("1e-46", "0", "1e-46");
    row("-1e-400", "-0", "-0");
    row("1e-99999999999999999999", "0", "0");
    row("0.00000000000000000000000000000000000000000000000000001", "0", "1e-53");
    row("100000e-450", "0", "0");
    row("0e99999999999999999999", "0", "0");
}

void TestNumberText::rangeEnds()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, asFloat);
    QFETCH(QByteArray, asDouble);
    const auto read = [&](auto& field) {
        KbString result;
        if (field.set(text.constData()))
            field.get(result);
        return QByteArray::fromStdString(result.toUtf8());
    };
    KnSFFloat single;
    KnSFDouble wide;
    QCOMPARE(read(single), asFloat);
    QCOMPARE(read(wide), asDouble);
}

QTEST_APPLESS_MAIN(TestNumberText)
#include "test_number_text.moc"
