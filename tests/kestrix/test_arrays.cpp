// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldSensor.h"
#include "KnMFields.h"
#include "KnMemoryError.h"
#include "KnSensorQueue.h"

#include <QTest>

#include <functional>
#include <limits>

namespace {

constexpr int intMax = std::numeric_limits<int>::max();

using Change = std::function<void(KnMFInt32&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class TestArrays : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowsChange_data();
    void rowsChange();
    void rowsOfTheArrayItselfMayBeGiven();
    void colours();
    void withoutMemoryNothingChanges();
};

void TestArrays::rowsChange_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("touches");
    const auto row = [](const char* name, const Change& change, const char* after, bool touches) {
        QTest::newRow(name) << change << QByteArray(after) << touches;
    };
    // Each starts with [ 1, 2, 3 ].
    row(
        "write", [](auto& f) { f.set1Value(1, 9); }, "[ 1, 9, 3 ]", true);
    row(
        "write the same", [](auto& f) { f.set1Value(1, 2); }, "[ 1, 2, 3 ]", true);
    row(
        "write at the end", [](auto& f) { f.set1Value(3, 9); }, "[ 1, 2, 3, 9 ]", true);
    row(
        "write beyond", [](auto& f) { f.set1Value(5, 9); }, "[ 1, 2, 3, 0, 0, 9 ]", true);
    row(
        "write below", [](auto& f) { f.set1Value(-1, 9); }, "[ 1, 2, 3 ]", false);
    const std::int32_t two[] = { 8, 9 };
    row(
        "write several", [=](auto& f) { f.setValues(2, 2, two); }, "[ 1, 2, 8, 9 ]", true);
    row(
        "write several below", [=](auto& f) { f.setValues(-1, 2, two); }, "[ 1, 2, 3 ]", false);
    row(
        "write none", [=](auto& f) { f.setValues(0, 0, two); }, "[ 1, 2, 3 ]", false);
    row(
        "insert", [](auto& f) { f.insertValues(1, 2); }, "[ 1, 0, 0, 2, 3 ]", true);
    row(
        "insert first", [](auto& f) { f.insertValues(-5, 1); }, "[ 0, 1, 2, 3 ]", true);
    row(
        "insert last", [](auto& f) { f.insertValues(7, 1); }, "[ 1, 2, 3, 0 ]", true);
    row(
        "insert none", [](auto& f) { f.insertValues(1, 0); }, "[ 1, 2, 3 ]", false);
    row(
        "remove", [](auto& f) { f.removeValues(0, 2); }, "[ 3 ]", true);
    row(
        "remove to the end", [](auto& f) { f.removeValues(1, intMax); }, "[ 1 ]", true);
    row(
        "remove from below", [](auto& f) { f.removeValues(-1, 2); }, "[ 2, 3 ]", true);
    row(
        "remove beyond", [](auto& f) { f.removeValues(3, 1); }, "[ 1, 2, 3 ]", false);
    row(
        "remove a negative number", [](auto& f) { f.removeValues(1, -1); }, "[ 1, 2, 3 ]", false);
    row(
        "cut", [](auto& f) { f.setNum(1); }, "[ 1 ]", true);
    row(
        "fill up", [](auto& f) { f.setNum(4); }, "[ 1, 2, 3, 0 ]", true);
    row(
        "cut all", [](auto& f) { f.setNum(-1); }, "[]", true);
    row(
        "tell of a change", [](auto& f) { f.valueChanged(0, 3, 1); }, "[ 1, 2, 3 ]", true);
    row(
        "ignore", [](auto& f) { f.setIgnored(1); }, "[ 1, 2, 3 ]", true);
    row(
        "set one as text", [](auto& f) { f.set1(0, "0x10"); }, "[ 16, 2, 3 ]", true);
    row(
        "set all as text", [](auto& f) { f.set("[]"); }, "[]", true);
}

void TestArrays::rowsChange()
{
    QFETCH(Change, change);
    QFETCH(QByteArray, after);
    QFETCH(bool, touches);
    KnMFInt32 field;
    const std::int32_t values[] = { 1, 2, 3 };
    field.setValues(0, 3, values);
    KnFieldSensor sensor(nullptr, nullptr);
    sensor.attach(&field);
    change(field);
    KbString text;
    field.get(text);
    QCOMPARE(QByteArray::fromStdString(text.toUtf8()), after);
    QCOMPARE(KnSensorQueue::getInstance().isEmpty(), !touches);
}

void TestArrays::rowsOfTheArrayItselfMayBeGiven()
{
    KnMFString field;
    field.set1Value(0, "a text that is too long for any small buffer of the string class");
    for (int i = 1; i < 100; ++i)
        field.set1Value(i, field[i - 1]);
    QVERIFY(field[99] == field[0]);
    field.set1Value(0, "first");
    field.setValues(1, 100, field.getValues());
    QVERIFY(field[1] == KbString("first"));
    QVERIFY(field[2] == field[100]);
    QCOMPARE(field.getNum(), 101);
}

void TestArrays::colours()
{
    KnMFColor colors;
    colors.set1Value(0, KbVec3f(0.1F, 0.2F, 0.3F));
    QVERIFY(colors[0] == KbColor(0.1F, 0.2F, 0.3F));
    KnMFColorRGBA transparent;
    transparent.set1Value(1, KbVec4f(0.1F, 0.2F, 0.3F, 0.4F));
    QVERIFY(transparent[0] == KbColorRGBA());
    QVERIFY(transparent[1] == KbColorRGBA(0.1F, 0.2F, 0.3F, 0.4F));
}

void TestArrays::withoutMemoryNothingChanges()
{
    KnMFInt32 field;
    field.setNum(2);
    int errors = 0;
    KnMemoryError::setHandlerCallback(
        [](const KnError*, void* data) { ++*static_cast<int*>(data); }, &errors);
    // One row more than a row number can count.
    field.set1Value(intMax, 1);
    field.insertValues(0, intMax);
    KnMemoryError::setHandlerCallback(&KnErrorHandler::writeToStandardError, nullptr);
    QCOMPARE(errors, 2);
    QCOMPARE(field.getNum(), 2);
}

QTEST_APPLESS_MAIN(TestArrays)
#include "test_arrays.moc"
