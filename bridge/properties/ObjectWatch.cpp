// SPDX-License-Identifier: BSD-3-Clause
#include "ObjectWatch.h"

#include "PropertyField.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QMetaMethod>

#include <algorithm>
#include <utility>

namespace {

constexpr int comparisonInterval = 250; // milliseconds
constexpr auto changeEvent = QEvent::User;

/// Takes one out of the set, or null when there is none left: what runs meanwhile may add others
/// and destroy those that wait.
template <class Item>
Item* takeOne(std::unordered_set<Item*>& items)
{
    if (items.empty())
        return nullptr;
    Item* const item = *items.begin();
    items.erase(items.begin());
    return item;
}

} // namespace

ObjectWatch& ObjectWatch::getInstance()
{
    // Outlives all static objects, since an object or a node may be one.
    static ObjectWatch& instance = *new ObjectWatch;
    return instance;
}

void ObjectWatch::watch(PropertyField* field)
{
    QObject* const object = field->place().object();
    if (!object || m_signals.contains(field)
        || std::find(m_compared.begin(), m_compared.end(), field) != m_compared.end())
        return;
    const int notifySignal = field->place().notifySignal();
    if (notifySignal < 0) {
        m_compared.push_back(field);
        keepComparing();
        return;
    }
    static const int slot = staticMetaObject.indexOfSlot("propertyNotified()");
    const Signal signal(object, notifySignal);
    if (!m_announced.contains(signal))
        QMetaObject::connect(object, notifySignal, this, slot, Qt::AutoConnection);
    m_announced.insert(signal, field);
    m_signals.insert(field, signal);
}

void ObjectWatch::unwatch(PropertyField* field)
{
    m_changedFields.erase(field);
    const auto known = m_signals.constFind(field);
    if (known != m_signals.constEnd()) {
        const Signal signal = *known;
        m_signals.erase(known);
        m_announced.remove(signal, field);
        QObject* const object = field->place().remains();
        static const int slot = staticMetaObject.indexOfSlot("propertyNotified()");
        if (object && !m_announced.contains(signal))
            QMetaObject::disconnect(object, signal.second, this, slot);
        return;
    }
    std::erase(m_compared, field);
    keepComparing();
}

void ObjectWatch::keepComparing()
{
    QAbstractEventDispatcher* const loop = QAbstractEventDispatcher::instance(thread());
    if (m_compared.empty() && m_away.empty()) {
        m_comparison.stop();
        if (loop)
            disconnect(loop, nullptr, this, nullptr);
        return;
    }
    compareSoon();
    if (!loop)
        return;
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &ObjectWatch::loopRests,
        Qt::UniqueConnection);
    connect(loop, &QAbstractEventDispatcher::awake, this, &ObjectWatch::loopTurns,
        Qt::UniqueConnection);
}

void ObjectWatch::compareSoon()
{
    if (!m_comparison.isActive())
        m_comparison.start(comparisonInterval, this);
}

/// As long as nothing happens in the program, there is nothing to find: a comparison is due after
/// whatever woke the loop, but not after a comparison alone.
void ObjectWatch::loopRests()
{
    m_turns = 0;
    if (!std::exchange(m_justCompared, false))
        compareSoon();
}

/// A loop that never rests is one that the program turns by itself.
void ObjectWatch::loopTurns()
{
    if (++m_turns > 1)
        compareSoon();
}

void ObjectWatch::addFollower(QObject* object, ObjectFollower* follower)
{
    m_followers.insert(object, follower);
    connect(object, &QObject::destroyed, this, &ObjectWatch::objectDestroyed);
    connect(object, &QObject::objectNameChanged, this, &ObjectWatch::objectRenamed);
}

void ObjectWatch::watchEvents(QObject* object)
{
    if (object->thread() == thread())
        object->installEventFilter(this); // which moves one that is there already
}

void ObjectWatch::removeFollower(QObject* object, ObjectFollower* follower)
{
    m_changed.erase(follower);
    if (m_followers.value(object) == follower)
        m_followers.remove(object);
}

void ObjectWatch::letGo(QObject* object)
{
    disconnect(object, &QObject::destroyed, this, &ObjectWatch::objectDestroyed);
    disconnect(object, &QObject::objectNameChanged, this, &ObjectWatch::objectRenamed);
    std::erase(m_away, object);
    keepComparing();
    if (object->thread() == thread())
        object->removeEventFilter(this);
}

void ObjectWatch::hide(QObject* object)
{
    m_hidden.insert(object);
    connect(object, &QObject::destroyed, this, [this, object] { m_hidden.remove(object); });
    if (object->parent())
        objectChanged(object->parent());
}

bool ObjectWatch::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
    case QEvent::DynamicPropertyChange:
        objectChanged(watched);
        break;
    case QEvent::ThreadChange:
        leave(watched);
        break;
    default:
        break;
    }
    return false;
}

void ObjectWatch::propertyNotified()
{
    const Signal signal(sender(), senderSignalIndex());
    const auto [begin, end] = std::as_const(m_announced).equal_range(signal);
    if (begin == end)
        return;
    m_changedFields.insert(begin, end);
    wake();
}

void ObjectWatch::objectDestroyed(QObject* object)
{
    ObjectFollower* const follower = followerOf(object);
    // What dies in another thread is told late, when another object may live there already.
    if (!follower || follower->followedObject())
        return;
    objectChanged(object);
    m_followers.remove(object);
}

/// The object is about to go to another thread, where a filter of this one would do harm.
void ObjectWatch::leave(QObject* object)
{
    object->removeEventFilter(this);
    m_away.emplace_back(object);
    keepComparing();
    objectChanged(object);
}

void ObjectWatch::lookForReturns()
{
    const std::vector<QPointer<QObject>> away = std::exchange(m_away, {});
    for (const QPointer<QObject>& object : away) {
        if (!object)
            continue;
        if (object->thread() != thread()) {
            m_away.push_back(object);
            continue;
        }
        watchEvents(object);
        objectChanged(object);
    }
    keepComparing();
}

void ObjectWatch::objectChanged(QObject* object)
{
    ObjectFollower* const follower = followerOf(object);
    if (!follower)
        return;
    m_changed.insert(follower);
    wake();
}

void ObjectWatch::wake()
{
    if (m_awake)
        return;
    m_awake = true;
    QCoreApplication::postEvent(this, new QEvent(changeEvent));
}

void ObjectWatch::customEvent(QEvent*)
{
    m_awake = false;
    // What is added meanwhile is shown as well. The sets are emptied one by one, because showing
    // one may destroy another.
    while (ObjectFollower* const follower = takeOne(m_changed))
        follower->followObject();
    while (PropertyField* const field = takeOne(m_changedFields))
        field->refresh();
}

void ObjectWatch::timerEvent(QTimerEvent*)
{
    // Objects come back from other threads without a sign.
    if (m_away.empty())
        m_comparison.stop();
    else
        lookForReturns();
    const std::vector<PropertyField*> compared = m_compared;
    for (PropertyField* const field : compared) {
        // A getter may do anything, even close what shows the fields.
        if (std::find(m_compared.begin(), m_compared.end(), field) != m_compared.end())
            field->refresh();
    }
    m_justCompared = true;
}
