// SPDX-License-Identifier: BSD-3-Clause
#include "KbGeometry.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <numbers>

class TestValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rotationKeepsAxisAndAngle();
    void rotationOfAQuaternion_data();
    void rotationOfAQuaternion();
    void matrixIsRowAfterRow();
    void boxes();
    void vectorsAndColours();
};

void TestValues::rotationKeepsAxisAndAngle()
{
    const KbRotation rotation(KbVec3f(0.0F, 3.0F, 4.0F), 10.0F);
    KbVec3f axis;
    float radians = 0;
    rotation.getValue(axis, radians);
    QCOMPARE(axis, KbVec3f(0.0F, 3.0F, 4.0F));
    QCOMPARE(radians, 10.0F);
    const auto q = rotation.getValue();
    QCOMPARE(q[0], 0.0F);
    QCOMPARE(q[1], 0.6F * std::sin(5.0F));
    QCOMPARE(q[2], 0.8F * std::sin(5.0F));
    QCOMPARE(q[3], std::cos(5.0F));

    const std::array<float, 4> none { 0, 0, 0, 1 };
    QCOMPARE(KbRotation().getValue(), none);
    QCOMPARE(KbRotation(KbVec3f(), 2.0F).getValue(), none);
    QCOMPARE(KbRotation(KbVec3f(INFINITY, 0.0F, 0.0F), 2.0F).getValue(), none);
}

void TestValues::rotationOfAQuaternion_data()
{
    QTest::addColumn<QList<float>>("quaternion");
    QTest::addColumn<QList<float>>("axisAndAngle");
    const float pi = std::numbers::pi_v<float>;
    const float max = std::numeric_limits<float>::max();
    const QList<float> none { 0, 0, 1, 0 };
    QTest::newRow("half a turn") << QList<float> { 1, 0, 0, 0 } << QList<float> { 1, 0, 0, pi };
    QTest::newRow("of any length")
        << QList<float> { 0, 5, 0, 5 } << QList<float> { 0, 1, 0, pi / 2 };
    QTest::newRow("huge") << QList<float> { 0, 0, max, max } << QList<float> { 0, 0, 1, pi / 2 };
    QTest::newRow("no rotation") << QList<float> { 0, 0, 0, 1 } << none;
    QTest::newRow("no rotation, negative") << QList<float> { 0, 0, 0, -1 } << none;
    QTest::newRow("length zero") << QList<float> { 0, 0, 0, 0 } << none;
    QTest::newRow("not a number") << QList<float> { NAN, 0, 0, 1 } << none;
    QTest::newRow("infinite") << QList<float> { 1, 0, 0, INFINITY } << none;
}

void TestValues::rotationOfAQuaternion()
{
    QFETCH(QList<float>, quaternion);
    QFETCH(QList<float>, axisAndAngle);
    const float array[4] = { quaternion[0], quaternion[1], quaternion[2], quaternion[3] };
    KbVec3f axis;
    float radians = 0;
    KbRotation(array).getValue(axis, radians);
    QCOMPARE((QList<float> { axis[0], axis[1], axis[2], radians }), axisAndAngle);
}

void TestValues::matrixIsRowAfterRow()
{
    float elements[16];
    for (int i = 0; i < 16; ++i)
        elements[i] = static_cast<float>(i);
    const KbMatrix matrix(elements);
    QCOMPARE(matrix[2][1], 9.0F);
    QVERIFY(std::equal(elements, elements + 16, matrix.getValue()));
    KbMatrix identity;
    QCOMPARE(identity[3][3], 1.0F);
    QCOMPARE(identity[3][2], 0.0F);
}

void TestValues::boxes()
{
    const KbBox3s box(1, 2, 3, 4, 5, 6);
    QVERIFY(box == KbBox3s(KbVec3s(1, 2, 3), KbVec3s(4, 5, 6)));
    std::int16_t bounds[6] = {};
    box.getBounds(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]);
    for (std::int16_t i = 0; i < 6; ++i)
        QCOMPARE(bounds[i], static_cast<std::int16_t>(i + 1));
    QVERIFY(KbBox2f() == KbBox2f(0.0F, 0.0F, 0.0F, 0.0F));
}

void TestValues::vectorsAndColours()
{
    KbVec2i32 pair(1, -2);
    std::int32_t x = 0;
    std::int32_t y = 0;
    pair.getValue(x, y);
    QCOMPARE(x, 1);
    QCOMPARE(y, -2);
    pair[1] = 7;
    QCOMPARE(pair.getValue()[1], 7);
    QVERIFY(KbColor(KbVec3f(0.1F, 0.2F, 0.3F)) == KbColor(0.1F, 0.2F, 0.3F));
    QVERIFY(KbVec4f() == KbVec4f(0.0F, 0.0F, 0.0F, 0.0F));
    const KbPlane plane(KbVec3f(0.0F, 2.0F, 0.0F), 3.0F);
    QCOMPARE(plane.getNormal()[1], 2.0F);
    QCOMPARE(plane.getDistanceFromOrigin(), 3.0F);
}

QTEST_APPLESS_MAIN(TestValues)
#include "test_values.moc"
