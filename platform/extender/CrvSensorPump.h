// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

/// Runs the kernel's sensor queue from Qt's event loop: one posted event for a batch of touched
/// sensors, handled when nothing more urgent waits. There may be one at a time; it serves the
/// queue from construction to destruction, on the thread that made it.
class CrvSensorPump : public QObject {
    Q_OBJECT
public:
    explicit CrvSensorPump(QObject* parent = nullptr);
    ~CrvSensorPump() override;

protected:
    void customEvent(QEvent* event) override;

private:
    static void wake(void* data);
    void post();

    bool m_posted = false; // an event is under way
};
