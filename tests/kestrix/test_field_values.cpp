// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnFieldSensor.h"
#include "KnMFields.h"
#include "KnMemoryError.h"
#include "KnSFBitMask.h"
#include "KnSFImage.h"
#include "KnSensorQueue.h"

#include <QTest>

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <random>

namespace {

constexpr int intMax = std::numeric_limits<int>::max();
const std::int32_t two[] = { 8, 9 };

struct Row {
    void (*change)(KnMFInt32& f);
    const char* after; // null: nothing changes and no sensor hears of it
    int errors = 0;
};

/// Each starts with [ 1, 2, 3 ].
const Row rows[] = {
    { [](auto& f) { f.set1Value(1, 9); }, "[ 1, 9, 3 ]" },
    { [](auto& f) { f.set1Value(5, 9); }, "[ 1, 2, 3, 0, 0, 9 ]" },
    { [](auto& f) { f.set1Value(-1, 9); }, nullptr },
    { [](auto& f) { f.setValues(2, 2, two); }, "[ 1, 2, 8, 9 ]" },
    { [](auto& f) { f.insertValues(1, 2); }, "[ 1, 0, 0, 2, 3 ]" },
    { [](auto& f) { f.insertValues(7, 1); }, "[ 1, 2, 3, 0 ]" },
    { [](auto& f) { f.removeValues(1, intMax); }, "[ 1 ]" },
    { [](auto& f) { f.valueChanged(0, 3, 1); }, "[ 1, 2, 3 ]" },
    // More rows than a row number can count.
    { [](auto& f) { f.insertValues(0, intMax); }, nullptr, 1 },
};

/// Sends numbers through the text of an array, and compares the bits.
template <class Array>
void sweep(const std::vector<typename Array::Value>& numbers)
{
    Array from;
    Array to;
    from.setValues(0, static_cast<int>(numbers.size()), numbers.data());
    QVERIFY(to.set(textOf(from).constData()));
    QCOMPARE(to.getNum(), from.getNum());
    for (int i = 0; i < to.getNum(); ++i) {
        if (std::memcmp(&from[i], &to[i], sizeof(from[i])) != 0)
            QVERIFY(std::isnan(from[i]) && std::isnan(to[i]));
    }
}

} // namespace

class TestFieldValues : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void numbersReadBack()
    {
        std::mt19937_64 random(1); // NOLINT: the same numbers each time
        using Limits = std::numeric_limits<double>;
        std::vector<double> doubles { -0.0, Limits::min(), -Limits::max(), Limits::denorm_min(),
            1e15, 1e23, 1e-4 };
        std::vector<float> floats;
        // Random patterns are seldom of a plain magnitude.
        std::uniform_real_distribution<double> exponent(-6.0, 17.0);
        for (std::uint64_t bits = 0; bits <= 0xffffffffU; bits += 1499) { // a prime number
            floats.push_back(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
            doubles.push_back(
                bits % 2 == 0 ? std::bit_cast<double>(random()) : std::pow(10.0, exponent(random)));
        }
        sweep<KnMFFloat>(floats);
        sweep<KnMFDouble>(doubles);
    }

    void rowsChange_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < std::ssize(rows); ++i)
            QTest::addRow("%d, to %s", i, rows[i].after ? rows[i].after : "nothing new") << i;
    }
    void rowsChange()
    {
        QFETCH(int, index);
        const Row& row = rows[index];
        Errors<KnMemoryError> errors;
        KnMFInt32 field;
        field.set("[ 1, 2, 3 ]");
        KnFieldSensor sensor(nullptr, nullptr);
        sensor.attach(&field);
        row.change(field);
        QCOMPARE(KnSensorQueue::getInstance().isEmpty(), !row.after);
        QCOMPARE(textOf(field), row.after ? row.after : "[ 1, 2, 3 ]");
        QCOMPARE(errors.texts.size(), row.errors);
    }

    void namesAreTheFieldsOwn()
    {
        KnSFEnum field;
        std::vector<KbName> given { "FRONT", "BACK" };
        const int numbers[] = { 5, -1 };
        field.setEnums(2, numbers, given.data());
        given.assign(2, KbName());
        field.setValue("BACK");
        QCOMPARE(textOf(field), "BACK");
    }

    void aNameForSeveralBitsServes()
    {
        KnSFBitMask mask;
        mask.setEnums({ { "NONE", 0 }, { "BOTH", 6 }, { "LOW", 2 } });
        for (const char* text : { "()", "(LOW)", "(0x4)", "(BOTH | 0x1)" }) {
            QVERIFY(mask.set("NONE") && mask.getValue() == 0 && mask.set(text));
            QCOMPARE(textOf(mask), text);
        }
    }

    void images()
    {
        constexpr int components = 3;
        KbVec2s size;
        int count = 0;
        QByteArray bytes(35 * components, '\0');
        std::iota(bytes.begin(), bytes.end(), '\x70');
        KnSFImage from;
        from.setValue(
            KbVec2s(7, 5), components, reinterpret_cast<const unsigned char*>(bytes.constData()));
        KnSFImage image;
        QVERIFY(image.set(textOf(from).constData()));
        // The field's own pixels may be given back to it.
        image.setValue(KbVec2s(7, 4), components, image.getValue(size, count) + 7 * components);
        QVERIFY(size == KbVec2s(7, 5) && count == components);
        const auto* const data = reinterpret_cast<const char*>(image.getValue(size, count));
        QCOMPARE(QByteArray(data, 28 * components), bytes.mid(7 * components));
    }
};

QTEST_APPLESS_MAIN(TestFieldValues)
#include "test_field_values.moc"
