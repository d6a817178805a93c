// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QColor>
#include <QEventLoop>
#include <QFont>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QVariant>

#include <functional>

/// An object of a program that is hard on whoever looks at it: its setters and getters destroy it
/// or others and run event loops, and what a property holds changes its type.
class StormUnit : public QObject {
    Q_OBJECT
    Q_PROPERTY(int speed READ speed WRITE setSpeed NOTIFY speedChanged)
    Q_PROPERTY(double level MEMBER m_level)
    Q_PROPERTY(QString label MEMBER m_label NOTIFY labelChanged)
    Q_PROPERTY(QColor paint MEMBER m_paint)
    Q_PROPERTY(QRect place MEMBER m_place)
    Q_PROPERTY(QFont font MEMBER m_font)
    Q_PROPERTY(QList<int> steps MEMBER m_steps NOTIFY stepsChanged)
    Q_PROPERTY(QStringList words MEMBER m_words)
    Q_PROPERTY(QVariant load MEMBER m_load NOTIFY loadChanged)
    Q_PROPERTY(QVariantMap parts MEMBER m_parts)
    Q_PROPERTY(QObject* next READ next) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(bool fuse READ fuse WRITE setFuse) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(int mine READ mine WRITE setMine) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(int trap READ trap) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(int loop READ loop WRITE setLoop) // clazy:exclude=qproperty-without-notify
    Q_PROPERTY(Mode mode MEMBER m_mode)
public:
    enum Mode { Idle, Running, Broken };
    Q_ENUM(Mode)

    /// What the traps of all objects do.
    struct Deeds {
        std::function<void()> destroyAny = [] {};
        std::function<bool()> isUnlucky = [] { return false; };
        int loops = 0; // that run in setters
        int writes = 0; // by setters that nobody but a person calls
        int traps = 0; // that getters were
    };

    StormUnit(Deeds& deeds, QObject* parent)
        : QObject(parent)
        , m_deeds(deeds)
    {
    }
    /// Makes news of itself to the last.
    ~StormUnit() override
    {
        setProperty("last", 1);
        m_label = QStringLiteral("gone");
        Q_EMIT labelChanged();
        Q_EMIT speedChanged();
    }

    int speed() const { return m_speed; }
    void setSpeed(int speed)
    {
        m_speed = qBound(0, speed, 100);
        Q_EMIT speedChanged();
    }
    QObject* next() const { return m_next; }
    bool fuse() const { return false; }
    /// Dies of it.
    void setFuse(bool)
    {
        ++m_deeds.writes;
        delete this;
    }
    int mine() const { return 0; }
    /// Another one dies, which may be its parent.
    void setMine(int)
    {
        ++m_deeds.writes;
        m_deeds.destroyAny();
    }
    /// Now and then another one dies of being looked at. Never one that holds this one.
    int trap() const
    {
        if (m_victim && m_deeds.isUnlucky()) {
            ++m_deeds.traps;
            delete m_victim;
        }
        return 0;
    }
    int loop() const { return m_loop; }
    /// Anything may happen meanwhile.
    void setLoop(int value)
    {
        constexpr int deepest = 3;
        constexpr int time = 5; // milliseconds
        m_loop = value;
        ++m_deeds.writes;
        if (m_deeds.loops >= deepest)
            return;
        Deeds& deeds = m_deeds; // outlives this object
        ++deeds.loops;
        QEventLoop events;
        QTimer::singleShot(time, &events, &QEventLoop::quit);
        events.exec();
        --deeds.loops;
    }

    int m_speed = 10;
    double m_level = 0.5;
    QString m_label;
    QColor m_paint = Qt::red;
    QRect m_place;
    QFont m_font;
    QList<int> m_steps = QList<int>(3);
    QStringList m_words;
    QVariant m_load;
    QVariantMap m_parts;
    QPointer<QObject> m_next;
    QPointer<QObject> m_victim;
    int m_loop = 0;
    Mode m_mode = Idle;

Q_SIGNALS:
    void speedChanged();
    void labelChanged();
    void stepsChanged();
    void loadChanged();

private:
    Deeds& m_deeds;
};
