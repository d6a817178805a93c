// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldSensor.h"
#include "KnSFields.h"
#include "KnSensorQueue.h"

#include <QTest>

#include <functional>
#include <memory>

namespace {

KnSensorQueue& queue() { return KnSensorQueue::getInstance(); }

/// A sensor that notes its name in a log and then does what a test wants.
struct Watch {
    Watch(QByteArray& log, char name)
        : sensor(std::make_unique<KnFieldSensor>(&Watch::run, this))
        , m_log(log)
        , m_name(name)
    {
    }

    std::unique_ptr<KnFieldSensor> sensor;
    std::function<void()> action;

private:
    static void run(void* data, KnSensor* sensor)
    {
        auto* watch = static_cast<Watch*>(data);
        QCOMPARE(sensor, watch->sensor.get());
        watch->m_log += watch->m_name;
        if (watch->action)
            watch->action();
    }

    QByteArray& m_log;
    char m_name;
};

} // namespace

class TestSensors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QVERIFY(queue().isEmpty()); }

    void runsLaterOnceAndInOrder();
    void everyKindOfChangeTouches();
    void detachDropsWhatWaits();
    void attachToAnotherField();
    void theFieldGoesAway();
    void theSensorGoesAway();
    void callbackDestroysSensors_data();
    void callbackDestroysSensors();
    void callbackDestroysTheField();
    void callbackMovesToAnotherField();
    void whatACallbackTouchesWaits();
    void processWithinACallbackDoesNothing();
    void theHostIsWokenOnceABatch();

private:
    QByteArray m_log;
    std::unique_ptr<KnSFFloat> m_field;
    std::unique_ptr<KnSFFloat> m_other;
    std::unique_ptr<Watch> m_a;
    std::unique_ptr<Watch> m_b;
    std::unique_ptr<Watch> m_c;
};

void TestSensors::init()
{
    m_log.clear();
    m_field = std::make_unique<KnSFFloat>();
    m_other = std::make_unique<KnSFFloat>();
    m_a = std::make_unique<Watch>(m_log, 'a');
    m_b = std::make_unique<Watch>(m_log, 'b');
    m_c = std::make_unique<Watch>(m_log, 'c');
    for (const auto* watch : { &m_a, &m_b, &m_c })
        (*watch)->sensor->attach(m_field.get());
}

void TestSensors::runsLaterOnceAndInOrder()
{
    m_b->sensor->attach(m_other.get());
    m_other->touch();
    m_field->setValue(1.0F);
    m_field->setValue(2.0F);
    m_other->touch();
    QCOMPARE(m_log, QByteArray());
    QVERIFY(!queue().isEmpty());
    queue().process();
    QCOMPARE(m_log, QByteArray("bac"));
    queue().process();
    QCOMPARE(m_log, QByteArray("bac"));
}

void TestSensors::everyKindOfChangeTouches()
{
    m_b->sensor->detach();
    m_c->sensor->detach();
    m_field->setValue(0.0F); // equal
    queue().process();
    m_field->setIgnored(1);
    QCOMPARE(m_field->isIgnored(), 1);
    queue().process();
    m_field->set("2");
    queue().process();
    QCOMPARE(m_log, QByteArray("aaa"));
}

void TestSensors::detachDropsWhatWaits()
{
    m_field->touch();
    m_b->sensor->detach();
    QVERIFY(!m_b->sensor->getAttachedField());
    m_b->sensor->detach();
    queue().process();
    QCOMPARE(m_log, QByteArray("ac"));
    m_field->touch();
    m_a->sensor->attach(nullptr);
    queue().process();
    QCOMPARE(m_log, QByteArray("acc"));
}

void TestSensors::attachToAnotherField()
{
    m_field->touch();
    m_a->sensor->attach(m_other.get());
    QCOMPARE(m_a->sensor->getAttachedField(), m_other.get());
    queue().process();
    m_field->touch();
    queue().process();
    m_other->touch();
    queue().process();
    QCOMPARE(m_log, QByteArray("bcbca"));
}

void TestSensors::theFieldGoesAway()
{
    m_field->touch();
    m_field.reset();
    QVERIFY(!m_a->sensor->getAttachedField());
    QVERIFY(!m_c->sensor->getAttachedField());
    queue().process();
    QCOMPARE(m_log, QByteArray());
}

void TestSensors::theSensorGoesAway()
{
    m_field->touch();
    m_b->sensor.reset();
    queue().process();
    m_field->touch();
    queue().process();
    QCOMPARE(m_log, QByteArray("acac"));
}

void TestSensors::callbackDestroysSensors_data()
{
    QTest::addColumn<QByteArray>("victims");
    QTest::addColumn<QByteArray>("log");
    QTest::newRow("itself") << QByteArray("b") << QByteArray("abc");
    QTest::newRow("the one before") << QByteArray("a") << QByteArray("abc");
    QTest::newRow("the next") << QByteArray("c") << QByteArray("ab");
    QTest::newRow("all") << QByteArray("cab") << QByteArray("ab");
}

void TestSensors::callbackDestroysSensors()
{
    QFETCH(QByteArray, victims);
    QFETCH(QByteArray, log);
    m_b->action = [&] {
        for (const char name : victims)
            (name == 'a' ? m_a : name == 'b' ? m_b : m_c)->sensor.reset();
    };
    m_field->touch();
    queue().process();
    QCOMPARE(m_log, log);
    m_field->touch();
    queue().process();
}

void TestSensors::callbackDestroysTheField()
{
    m_a->action = [this] { m_field.reset(); };
    m_field->touch();
    queue().process();
    QCOMPARE(m_log, QByteArray("a"));
    QVERIFY(!m_a->sensor->getAttachedField());
}

void TestSensors::callbackMovesToAnotherField()
{
    // What is dropped here was part of the run, what the other field puts in is not.
    m_a->action = [this] {
        m_c->sensor->attach(m_other.get());
        m_other->touch();
        m_b->sensor->detach();
    };
    m_field->touch();
    queue().process();
    QCOMPARE(m_log, QByteArray("a"));
    queue().process();
    QCOMPARE(m_log, QByteArray("ac"));
}

void TestSensors::whatACallbackTouchesWaits()
{
    int rounds = 3;
    m_b->action = [&] {
        if (--rounds > 0)
            m_field->setValue(static_cast<float>(rounds));
    };
    m_field->touch();
    queue().process();
    // c still waited when b wrote, so that it runs once for both changes.
    QCOMPARE(m_log, QByteArray("abc"));
    queue().process();
    QCOMPARE(m_log, QByteArray("abcab"));
    rounds = 0;
    queue().process();
    QCOMPARE(m_log, QByteArray("abcababc"));
}

void TestSensors::processWithinACallbackDoesNothing()
{
    m_a->action = [this] {
        queue().process();
        QCOMPARE(m_log, QByteArray("a"));
    };
    m_field->touch();
    queue().process();
    QCOMPARE(m_log, QByteArray("abc"));
}

void TestSensors::theHostIsWokenOnceABatch()
{
    int wakes = 0;
    const auto wake = [](void* data) { ++*static_cast<int*>(data); };
    queue().setWakeCallback(wake, &wakes);
    QCOMPARE(wakes, 0);
    m_field->touch();
    m_other->touch();
    m_field->touch();
    QCOMPARE(wakes, 1);
    m_c->action = [this] { m_field->touch(); };
    queue().process();
    QCOMPARE(wakes, 2); // for what the callback touched
    m_c->action = nullptr;
    queue().process();
    QCOMPARE(wakes, 2);
    queue().setWakeCallback(nullptr, nullptr);
    m_field->touch();
    QCOMPARE(wakes, 2);
    queue().setWakeCallback(wake, &wakes); // finds sensors that wait
    QCOMPARE(wakes, 3);
    queue().setWakeCallback(nullptr, nullptr);
    queue().process();
}

QTEST_APPLESS_MAIN(TestSensors)
#include "test_sensors.moc"
