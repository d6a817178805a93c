// SPDX-License-Identifier: BSD-3-Clause
#include "SignalWatch.h"

#include "TextForm.h"

#include <QScopedValueRollback>
#include <QStringList>
#include <QThread>
#include <QTime>
#include <QTimerEvent>

#include <algorithm>
#include <iostream>
#include <memory>

namespace {

// No person reads more of them.
constexpr int linesPerSlice = 100;
constexpr int slice = 500; // milliseconds
constexpr qsizetype maxArgument = 200; // characters

QString argumentText(const QMetaMethod& signal, int index, const void* argument)
{
    const QMetaType type = signal.parameterMetaType(index);
    const QVariant value = type == QMetaType::fromType<QVariant>()
        ? *static_cast<const QVariant*>(argument)
        : QVariant(type, argument);
    // A type that can't be copied.
    if (!value.isValid() && type != QMetaType::fromType<QVariant>())
        return QString::fromLatin1(signal.parameterTypes().at(index));
    QString text = valueText(value).simplified();
    if (text.size() > maxArgument)
        text = text.first(maxArgument) + QChar(0x2026);
    return text;
}

void printLine(const QString& line) { std::cout << line.toStdString() << std::endl; }

/// Of the parameters, for a queued call; null if one of them can't be copied.
int* queuedTypes(const QMetaMethod& signal)
{
    const int count = signal.parameterCount();
    auto types = std::make_unique<int[]>(static_cast<std::size_t>(count) + 1);
    for (int i = 0; i < count; ++i) {
        const QMetaType type = signal.parameterMetaType(i);
        if (!type.isValid())
            return nullptr;
        types[static_cast<std::size_t>(i)] = type.id();
    }
    return types.release(); // which the connection owns
}

} // namespace

SignalWatch& SignalWatch::getInstance()
{
    static SignalWatch& instance = *new SignalWatch; // outlives all static objects
    return instance;
}

int SignalWatch::find(const QObject* object, const QMetaMethod& signal) const
{
    for (auto each = m_watched.begin(); each != m_watched.end(); ++each) {
        if (each->object == object && each->signal == signal)
            return each.key();
    }
    return 0;
}

bool SignalWatch::isWatched(const QObject* object, const QMetaMethod& signal) const
{
    return find(object, signal) != 0;
}

void SignalWatch::setWatched(QObject* object, const QMetaMethod& signal, bool watched)
{
    const int known = find(object, signal);
    if (watched == (known != 0) || signal.methodType() != QMetaMethod::Signal
        || object->thread() != thread())
        return;
    const int slots = QObject::staticMetaObject.methodCount();
    if (!watched) {
        m_watched.remove(known);
        QMetaObject::disconnect(object, signal.methodIndex(), this, slots + known);
        if (std::none_of(m_watched.begin(), m_watched.end(),
                [object](const Watched& each) { return each.object == object; }))
            disconnect(object, &QObject::destroyed, this, &SignalWatch::forget);
        return;
    }
    const int number = ++m_lastNumber;
    // Before the signal itself may be watched, so that its last one is printed, too.
    m_watched.insert(number, { object, signal });
    QMetaObject::connect(object, signal.methodIndex(), this, slots + number, Qt::AutoConnection,
        queuedTypes(signal));
    connect(object, &QObject::destroyed, this, &SignalWatch::forget, Qt::UniqueConnection);
}

void SignalWatch::clear()
{
    const QHash<int, Watched> watched = std::exchange(m_watched, {});
    for (const Watched& each : watched) {
        if (each.object)
            each.object->disconnect(this);
    }
}

// A queued signal of a dead object finds nothing any more.
void SignalWatch::forget(const QObject* object)
{
    m_watched.removeIf(
        [object](const auto& each) { return !each->object || each->object == object; });
}

QString SignalWatch::label(const QObject* object)
{
    if (!object)
        return tr("a dead object");
    const QString type = QString::fromLatin1(object->metaObject()->className());
    if (object->thread() != QThread::currentThread() || object->objectName().isEmpty())
        return type;
    return QStringLiteral("%1 \"%2\"").arg(type, object->objectName());
}

int SignalWatch::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    const auto watched = m_watched.constFind(id);
    if (watched != m_watched.constEnd())
        print(Watched(*watched), arguments);
    return -1;
}

void SignalWatch::print(const Watched& watched, void** arguments)
{
    if (m_timer == 0)
        m_timer = startTimer(slice);
    // What the console does with the line may be a signal of its own.
    if (m_printing || m_printed >= linesPerSlice) {
        ++m_left;
        return;
    }
    ++m_printed;
    const QScopedValueRollback printing(m_printing, true);
    QStringList texts;
    for (int i = 0; i < watched.signal.parameterCount(); ++i)
        texts += argumentText(watched.signal, i, arguments[i + 1]);
    printLine(QStringLiteral("%1  %2  %3(%4)")
                  .arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz")),
                      label(watched.object), QString::fromLatin1(watched.signal.name()),
                      texts.join(QStringLiteral(", "))));
}

void SignalWatch::timerEvent(QTimerEvent*)
{
    if (m_left > 0)
        printLine(tr("... and %1 more signals").arg(m_left));
    if (m_printed == 0 && m_left == 0) {
        killTimer(m_timer);
        m_timer = 0;
    }
    m_printed = 0;
    m_left = 0;
}
