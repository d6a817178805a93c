// SPDX-License-Identifier: BSD-3-Clause
#include "ObjectRegister.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSet>
#include <QThread>

#include <atomic>
#include <mutex>
#include <utility>

#include <dlfcn.h>

namespace {

using Hook = void (*)(QObject*);

// Places in the table of Qt's hooks, and the version of the table that has them.
enum Place { Version, Size, QtVersion, AddObject, RemoveObject };
constexpr quintptr knownVersion = 3;

struct Register {
    std::mutex mutex; // guards the sets
    QSet<QObject*> fresh; // since the last look
    QSet<QObject*> seen; // at the last look or before
    QSet<QObject*> loose; // of these, without a parent then
};

Register& objects()
{
    static Register& instance = *new Register; // objects come and go until the very end
    return instance;
}

std::atomic<bool> running = false;
bool news = false; // guarded by the mutex; since the last look
QObject* listener = nullptr; // guarded by the mutex
thread_local int pauses = 0;
quintptr* table = nullptr; // Qt's
Hook formerAdd = nullptr;
Hook formerRemove = nullptr;

/// With the mutex locked, so that the listener can't go meanwhile.
void announce()
{
    if (!std::exchange(news, true) && listener) {
        // Making the event, or posting it, may make objects of Qt's own.
        const ObjectRegister::Pause pause;
        QCoreApplication::postEvent(listener, new QEvent(QEvent::User));
    }
}

void added(QObject* object)
{
    if (running.load(std::memory_order_relaxed) && pauses == 0) {
        Register& known = objects();
        const std::lock_guard lock(known.mutex);
        known.fresh.insert(object);
        announce();
    }
    if (formerAdd)
        formerAdd(object);
}

void removed(QObject* object)
{
    if (running.load(std::memory_order_relaxed)) {
        Register& known = objects();
        const std::lock_guard lock(known.mutex);
        if (!known.fresh.remove(object) && known.seen.remove(object) && known.loose.remove(object))
            announce();
    }
    if (formerRemove)
        formerRemove(object);
}

// An object of another thread may be on its way out, but waits for the mutex before it is gone.
bool isLoose(const QObject* object)
{
    return object->thread() == QThread::currentThread() && !object->parent()
        && !object->isWidgetType() && !object->isWindowType()
        && object != QCoreApplication::instance();
}

} // namespace

void ObjectRegister::start()
{
    table = static_cast<quintptr*>(dlsym(RTLD_DEFAULT, "qtHookData"));
    if (!table || table[Version] != knownVersion || table[Size] <= RemoveObject)
        return;
    // NOLINTBEGIN(performance-no-int-to-ptr): Qt keeps the functions as numbers
    formerAdd = reinterpret_cast<Hook>(table[AddObject]);
    formerRemove = reinterpret_cast<Hook>(table[RemoveObject]);
    // NOLINTEND(performance-no-int-to-ptr)
    table[AddObject] = reinterpret_cast<quintptr>(&added);
    table[RemoveObject] = reinterpret_cast<quintptr>(&removed);
    running = true;
}

void ObjectRegister::stop()
{
    if (!running.exchange(false))
        return;
    // Somebody may have come behind; then these two stay, and only pass on.
    if (table[AddObject] == reinterpret_cast<quintptr>(&added))
        table[AddObject] = reinterpret_cast<quintptr>(formerAdd);
    if (table[RemoveObject] == reinterpret_cast<quintptr>(&removed))
        table[RemoveObject] = reinterpret_cast<quintptr>(formerRemove);
    Register& known = objects();
    const std::lock_guard lock(known.mutex);
    listener = nullptr;
    known.fresh.clear();
    known.seen.clear();
    known.loose.clear();
}

void ObjectRegister::tell(QObject* receiver)
{
    const std::lock_guard lock(objects().mutex);
    listener = receiver;
    news = false;
}

QObjectList ObjectRegister::parentless(Look look)
{
    Register& known = objects();
    const std::lock_guard lock(known.mutex);
    news = false;
    known.loose += known.fresh;
    known.seen += known.fresh;
    known.fresh.clear();
    if (look == Look::All)
        known.loose = known.seen;
    known.loose.removeIf([](const QObject* object) { return !isLoose(object); });
    return known.loose.values();
}

ObjectRegister::Pause::Pause() { ++pauses; }
ObjectRegister::Pause::~Pause() { --pauses; }
