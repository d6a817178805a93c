// SPDX-License-Identifier: BSD-3-Clause
#include "KnGroup.h"
#include "KnSensorQueue.h"

#include <QTest>

#include <random>

/// A list that follows a group by nothing but what the sensor tells.
class TestGroupSensor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void theChangedRangeIsExact_data()
    {
        QTest::addColumn<int>("changes"); // between two looks at the sensor
        for (const int changes : { 1, 2, 3, 10 })
            QTest::addRow("%d changes", changes) << changes;
    }
    void theChangedRangeIsExact()
    {
        QFETCH(int, changes);
        const unsigned seed = std::random_device()();
        std::mt19937 random(seed);
        const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
        const KnNodePtr root(new KnGroup);
        auto& group = static_cast<KnGroup&>(*root.get());
        KnGroupSensor sensor(nullptr, nullptr);
        sensor.attach(&group);
        QList<KnFieldContainer*> followed;
        for (int round = 0; round < 500; ++round) {
            for (int i = 0; i < changes; ++i) {
                const int count = group.getNumChildren();
                if (count < 3 || below(3) == 0)
                    group.insertChild(new KnGroup, below(count + 1));
                else if (below(2) == 0)
                    group.removeChild(below(count));
                else
                    group.moveChild(below(count), below(count));
            }
            const KnGroupSensor::Change change = sensor.takeChange();
            followed.remove(change.first, change.removed);
            for (int row = change.first; row < change.first + change.inserted; ++row)
                followed.insert(row, group.getChild(row));
            QList<KnFieldContainer*> children;
            for (int row = 0; row < group.getNumChildren(); ++row)
                children += group.getChild(row);
            QVERIFY2(followed == children, qPrintable(QString::number(seed)));
        }
        QCOMPARE(sensor.takeChange().removed, 0);
    }

    void theCallbackRunsOnceABatch()
    {
        int runs = 0;
        KnGroupSensor sensor([](void* all, KnSensor*) { ++*static_cast<int*>(all); }, &runs);
        KnNodePtr root(new KnGroup);
        auto* const group = static_cast<KnGroup*>(root.get());
        sensor.attach(group);
        group->addChild(new KnGroup);
        group->addChild(new KnGroup);
        KnSensorQueue::getInstance().process();
        QCOMPARE(runs, 1);
        group->removeChild(0);
        root = KnNodePtr();
        QVERIFY(!sensor.getAttachedGroup());
        KnSensorQueue::getInstance().process();
        QCOMPARE(runs, 1);
    }
};

QTEST_APPLESS_MAIN(TestGroupSensor)
#include "test_group_sensor.moc"
