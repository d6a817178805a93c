// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QSet>

#include <optional>

/// Tells when a program can be looked into: a given time after its start, or once its windows are
/// there, which is when no other one has come for a while. A program without windows is given up
/// waiting for. It watches from time to time, and only until then.
class ProgramStart : public QObject {
    Q_OBJECT
public:
    /// `after` are seconds from the start of the process.
    explicit ProgramStart(std::optional<double> after);

    /// The start of the process, as far as this object is concerned; to be called as early as can
    /// be.
    static void begin();

Q_SIGNALS:
    void settled();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    const bool m_watches;
    QSet<QObject*> m_windows; // shown the last time, only to be compared
    int m_looks = 0;
    int m_quietLooks = 0; // in a row
};
