// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>
#include <QMetaMethod>
#include <QObject>
#include <QQuaternion>
#include <QRect>

#include <functional>

/// An object of a program that knows nothing of nodes. Its setters count, clamp, refuse, and have
/// effects on other properties.
class Machine : public QObject {
    Q_OBJECT
    Q_PROPERTY(int speed READ speed WRITE setSpeed RESET resetSpeed NOTIFY speedChanged)
    Q_PROPERTY(QString label MEMBER m_label RESET resetLabel NOTIFY labelChanged)
    Q_PROPERTY(Mode mode MEMBER m_mode)
    Q_PROPERTY(Parts parts READ parts WRITE setParts) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(QColor paint MEMBER m_paint)
    Q_PROPERTY(QQuaternion turn MEMBER m_turn)
    Q_PROPERTY(QList<int> steps READ steps WRITE setSteps NOTIFY stepsChanged)
    Q_PROPERTY(QRect place MEMBER m_place)
    Q_PROPERTY(qint64 serial MEMBER m_serial)
    Q_PROPERTY(QVariant load MEMBER m_load)
    Q_PROPERTY(QObject* next MEMBER m_next)
    Q_PROPERTY(double heat READ heat NOTIFY speedChanged) // twice the speed
    Q_PROPERTY(int polled READ polled WRITE setPolled) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(bool fuse READ fuse WRITE setFuse) // clazy:exclude=qproperty-without-notify
public:
    enum Mode { Idle, Running, Broken = 7 };
    Q_ENUM(Mode)
    enum Part { Wheel = 1, Belt = 2, Motor = 4, Engine = Motor, All = 7 }; // bits named twice
    Q_DECLARE_FLAGS(Parts, Part)
    Q_FLAG(Parts)

    using QObject::QObject;

    int speed() const { return m_speed; }
    void setSpeed(int speed)
    {
        ++m_speedWrites;
        m_speed = qBound(0, speed, 100);
        Q_EMIT speedChanged();
    }
    Q_INVOKABLE void resetSpeed() { setSpeed(10); }
    void resetLabel() { m_label = QStringLiteral("new"); }
    double heat() const { return 2.0 * m_speed; }
    Parts parts() const { return m_parts; }
    void setParts(Parts parts) { m_parts = parts; }
    QList<int> steps() const { return m_steps; }
    void setSteps(const QList<int>& steps)
    {
        m_steps = steps;
        Q_EMIT stepsChanged();
    }
    int polled() const
    {
        ++m_polledReads;
        return m_polled;
    }
    void setPolled(int polled) { m_polled = polled; }
    bool isSpeedHeard() const
    {
        return isSignalConnected(QMetaMethod::fromSignal(&Machine::speedChanged));
    }
    bool isDeathHeard() const
    {
        return isSignalConnected(QMetaMethod::fromSignal(&QObject::destroyed));
    }
    bool fuse() const { return false; }
    void setFuse(bool)
    {
        const std::function<void()> blow = m_blow; // which may delete this object
        blow();
    }

    int m_speed = 10;
    int m_speedWrites = 0;
    QString m_label = QStringLiteral("old");
    Mode m_mode = Idle;
    Parts m_parts = Wheel;
    QColor m_paint = Qt::red;
    QQuaternion m_turn;
    QList<int> m_steps = QList<int>() << 1 << 2 << 3;
    QRect m_place { 1, 2, 30, 40 };
    qint64 m_serial = 1;
    QVariant m_load = 2.5;
    QObject* m_next = nullptr;
    int m_polled = 1;
    mutable int m_polledReads = 0;
    std::function<void()> m_blow = [] {};

Q_SIGNALS:
    void speedChanged();
    void labelChanged();
    void stepsChanged();
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Machine::Parts)
