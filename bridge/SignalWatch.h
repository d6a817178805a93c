// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QHash>
#include <QMetaMethod>
#include <QObject>
#include <QPointer>

/// Prints a line on the standard output stream for each signal of a watched object: time, object,
/// signal and arguments. A watch ends with its object. Of a flood only the beginning is printed,
/// and how many there were.
///
/// It is a receiver without slots: signals are connected to numbers beyond its own methods, which
/// arrive at qt_metacall. There is one object, on the thread of the user interface; what an object
/// of that thread tells from another one is queued.
class SignalWatch : public QObject {
public:
    static SignalWatch& getInstance();

    /// For objects of this thread and signals of theirs; anything else is ignored.
    void setWatched(QObject* object, const QMetaMethod& signal, bool watched);
    bool isWatched(const QObject* object, const QMetaMethod& signal) const;
    void clear();

    /// Such as `QLabel "title"`; without the name for an object of another thread. Null stands for
    /// a dead object.
    static QString label(const QObject* object);

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    struct Watched {
        QPointer<QObject> object; // may die in another thread, of which we hear later
        QMetaMethod signal;
    };

    SignalWatch() = default;
    ~SignalWatch() override = default;

    int find(const QObject* object, const QMetaMethod& signal) const;
    void forget(const QObject* object);
    void print(const Watched& watched, void** arguments);

    QHash<int, Watched> m_watched; // by the number that the signal is connected to
    int m_lastNumber = 0;
    int m_printed = 0; // in the present time slice
    int m_left = 0; // those that weren't
    int m_timer = 0; // runs while there was something to print a moment ago
    bool m_printing = false;
};
