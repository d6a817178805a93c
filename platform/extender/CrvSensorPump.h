// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>

#include <vector>

class KnField;

/// Runs the kernel's sensor queue from Qt's event loop: one posted event for a batch of touched
/// sensors, handled when nothing more urgent waits. There may be one at a time; it serves the
/// queue from construction to destruction, on the thread that made it, which thereby becomes the
/// one that may write fields.
class CrvSensorPump : public QObject {
    Q_OBJECT
public:
    explicit CrvSensorPump(QObject* parent = nullptr);
    ~CrvSensorPump() override;

    /// The least time between two batches.
    void setInterval(int milliseconds) { m_interval = milliseconds; }
    /// While paused, no batch is run.
    void setPaused(bool paused);
    bool isPaused() const { return m_paused; }
    /// A person has edited something: the next batch comes before windows are drawn, and doesn't
    /// wait for the interval. While paused, the sensors of this field run; it may be null, and be
    /// gone by the time.
    void hurry(const KnField* field);

Q_SIGNALS:
    /// With the field that `hurry` was told.
    void hurried(const KnField* field);

protected:
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    static void wake(void* data);
    void post(int priority = Qt::LowEventPriority);
    int timeToWait() const;
    void run();

    int m_interval = 0;
    bool m_paused = false;
    bool m_posted = false; // an event is under way
    bool m_hurried = false;
    std::vector<const KnField*> m_hurriedFields; // while paused; only compared with others
    QElapsedTimer m_sinceRun; // invalid before the first batch
    QBasicTimer m_timer; // runs while a batch waits for the interval
};
