// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldSensor.h"
#include "KnSFields.h"
#include "KnSensorQueue.h"

#include <QTest>

#include <functional>
#include <map>
#include <memory>

namespace {

/// A sensor that notes its name in a log and then does what a test wants.
class Watch : public KnFieldSensor {
public:
    Watch(QByteArray& log, char name, KnField* field)
        : KnFieldSensor(&Watch::run, this)
        , m_log(log)
        , m_name(name)
    {
        attach(field);
    }

    std::function<void()> action;

private:
    static void run(void* data, KnSensor*)
    {
        auto* watch = static_cast<Watch*>(data);
        watch->m_log += watch->m_name;
        if (const auto action = watch->action) // a copy, as it may destroy the sensor
            action();
    }

    QByteArray& m_log;
    char m_name;
};

} // namespace

/// Three sensors a, b and c on one field.
class TestSensors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_field = std::make_unique<KnSFFloat>();
        m_a = std::make_unique<Watch>(m_log, 'a', m_field.get());
        m_b = std::make_unique<Watch>(m_log, 'b', m_field.get());
        m_c = std::make_unique<Watch>(m_log, 'c', m_field.get());
        QVERIFY(m_queue.isEmpty());
        m_log.clear();
    }

    void runsLaterOnceAndInOrder()
    {
        m_b->attach(&m_other);
        m_other.touch();
        m_field->setValue(1.0F);
        m_field->setValue(2.0F);
        m_other.touch();
        play("||");
        m_field->setValue(2.0F); // the same
        play("|");
        m_field->setIgnored(1);
        play("|");
        QCOMPARE(m_log, "bac||ac|ac|");
    }

    void detachAndAttachDropWhatWaits()
    {
        play("f");
        m_b->detach();
        play("|f");
        m_a->attach(&m_other);
        play("|fo|f");
        m_b->attach(m_field.get());
        play("fF|");
        QVERIFY(!m_b->getAttachedField());
        QCOMPARE(m_log, "ac|c|ca||");
    }

    void callbacksChangeWhatRuns_data()
    {
        // What b does (see m_steps), and what runs then, at once without another change, and behind
        // another one.
        QTest::addColumn<QByteArray>("log");
        for (const auto& [steps, log] : std::initializer_list<std::pair<const char*, const char*>> {
                 { "B", "abc||ac|" }, { "F", "ab|||" }, { "|", "ab|c||ab|c|" },
                 // c still waits then, so that it runs once for both changes.
                 { "f", "abc|ab|abc|" },
                 // What is dropped was part of the run, what the other field puts in is not.
                 { ">-o", "ab|c|b|" } })
            QTest::newRow(steps) << QByteArray(log);
    }
    void callbacksChangeWhatRuns()
    {
        m_b->action = [this] { play(QTest::currentDataTag()); };
        play("f||f|");
        QTEST(m_log, "log");
    }

    void theHostIsWokenOnceABatch()
    {
        const auto wake = [](void* log) { *static_cast<QByteArray*>(log) += 'w'; };
        m_queue.setWakeCallback(wake, &m_log);
        m_c->action = [this] { play("f"); };
        play("fof|"); // wakes for what the callback touches
        m_c->action = nullptr;
        play("|");
        m_queue.setWakeCallback(nullptr, nullptr);
        QCOMPARE(m_log, "wabcw|abc|");
    }

private:
    void play(const QByteArray& steps)
    {
        for (const char step : steps)
            m_steps.at(step)();
    }

    KnSensorQueue& m_queue = KnSensorQueue::getInstance();
    QByteArray m_log; // with a w where the host is woken
    std::unique_ptr<KnSFFloat> m_field;
    KnSFFloat m_other;
    std::unique_ptr<Watch> m_a, m_b, m_c;
    const std::map<char, std::function<void()>> m_steps {
        { 'f', [this] { m_field ? m_field->touch() : void(); } },
        { 'o', [this] { m_other.touch(); } }, { 'B', [this] { m_b.reset(); } },
        { 'F', [this] { m_field.reset(); } }, { '-', [this] { m_a->detach(); } },
        { '>', [this] { m_c->attach(&m_other); } },
        { '|', [this] { m_queue.process(), m_log += '|'; } }, // behind the sensors that ran
    };
};

QTEST_APPLESS_MAIN(TestSensors)
#include "test_sensors.moc"
