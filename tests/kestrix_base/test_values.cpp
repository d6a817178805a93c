// SPDX-License-Identifier: BSD-3-Clause
#include "KbGeometry.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <numbers>

/// The rest of the value types is proven by the texts of the fields that hold them.
class TestValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rotations();
};

void TestValues::rotations()
{
    const auto q = KbRotation(KbVec3f(0.0F, 3.0F, 4.0F), 10.0F).getValue();
    QCOMPARE((QList<float>(q.begin(), q.end())),
        (QList<float> { 0, 0.6F * std::sin(5.0F), 0.8F * std::sin(5.0F), std::cos(5.0F) }));
    const std::array<float, 4> none { 0, 0, 0, 1 };
    for (const float length : { 0.0F, INFINITY, NAN })
        QCOMPARE(KbRotation(KbVec3f(length, 0.0F, 0.0F), 2.0F).getValue(), none);

    const float pi = std::numbers::pi_v<float>;
    const float max = std::numeric_limits<float>::max();
    const struct {
        float quaternion[4];
        QList<float> axisAndAngle;
    } rows[] = {
        { { 1, 0, 0, 0 }, { 1, 0, 0, pi } },
        { { 0, 5, 0, 5 }, { 0, 1, 0, pi / 2 } }, // of any length
        { { 0, 0, max, max }, { 0, 0, 1, pi / 2 } },
        { { 0, 0, 0, -1 }, { 0, 0, 1, 0 } }, // no rotation, as all the others
        { { 0, 0, 0, 0 }, { 0, 0, 1, 0 } },
        { { NAN, 0, 0, 1 }, { 0, 0, 1, 0 } },
        { { 1, 0, 0, INFINITY }, { 0, 0, 1, 0 } },
    };
    for (const auto& [quaternion, axisAndAngle] : rows) {
        KbVec3f axis;
        float radians = 0;
        KbRotation(quaternion).getValue(axis, radians);
        QCOMPARE((QList<float> { axis[0], axis[1], axis[2], radians }), axisAndAngle);
    }
}

QTEST_APPLESS_MAIN(TestValues)
#include "test_values.moc"
