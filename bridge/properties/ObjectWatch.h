// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PropertyField.h"

#include <QBasicTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>

#include <unordered_set>
#include <utility>
#include <vector>

/// Whoever wants to know of an object's children and dynamic properties.
class ObjectFollower {
public:
    /// Something has happened to them or to the object's name or thread, or the object has died.
    /// Called from the event loop.
    virtual void followObject() = 0;
    /// Null once it is dead.
    virtual QObject* followedObject() const = 0;

protected:
    ~ObjectFollower() = default;
};

/// Hears from Qt what happens to objects that somebody looks at: properties that change, children
/// that come and go, objects that die. Whatever happens in one turn of the event loop is shown
/// together in the next. It wakes up by itself only for watched properties whose changes no signal
/// announces.
///
/// There is one object, on the thread of the user interface.
class ObjectWatch : public QObject {
    Q_OBJECT
public:
    static ObjectWatch& getInstance();

    /// Follows the property of a field until `unwatch`. A field that is watched already is ignored.
    void watch(PropertyField* field);
    /// Also forgets a change that waits to be shown.
    void unwatch(PropertyField* field);
    /// The field can't show what its property holds by now: tells whoever follows the object.
    void outgrown(const PropertyField& field) { objectChanged(field.place().object()); }

    /// Who follows an object; null if nobody does.
    ObjectFollower* followerOf(QObject* object) const { return m_followers.value(object); }
    /// Makes this the one who follows an object, and is told when it dies or gets another name.
    /// What else happens to an object of another thread isn't told.
    void addFollower(QObject* object, ObjectFollower* follower);
    /// From now on its follower is told of children and dynamic properties as well, for which each
    /// event of the object passes through here. Harmless for one that is watched already.
    void watchEvents(QObject* object);
    /// Forgets the follower; the object may be dead.
    void removeFollower(QObject* object, ObjectFollower* follower);
    /// Leaves a living object as it was before anybody followed it.
    void letGo(QObject* object);

    /// Keeps an object out of all trees as long as it lives.
    void hide(QObject* object);
    bool isHidden(QObject* object) const { return m_hidden.contains(object); }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    using Signal = std::pair<const QObject*, int>; // the object may be dead by now

    ObjectWatch() = default;
    ~ObjectWatch() override = default;

    void wake();
    void objectChanged(QObject* object);
    void leave(QObject* object);
    void lookForReturns();
    void keepComparing();
    void compareSoon();
    void loopRests();
    void loopTurns();

private Q_SLOTS:
    void propertyNotified();
    void objectDestroyed(QObject* object);
    void objectRenamed() { objectChanged(sender()); }

private:
    QHash<QObject*, ObjectFollower*> m_followers; // not owned; they leave when they go
    QSet<QObject*> m_hidden; // alive
    QMultiHash<Signal, PropertyField*> m_announced; // watched fields whose changes a signal tells
    QHash<PropertyField*, Signal> m_signals; // of these fields
    std::vector<PropertyField*> m_compared; // the other watched fields
    // Objects whose events were watched and which have gone to another thread, which nothing but a
    // look tells the end of.
    std::vector<QPointer<QObject>> m_away;
    QBasicTimer m_comparison; // runs when there are any of these or of those, and cause to look
    bool m_justCompared = false; // and nothing else since the loop last rested, as far as is known
    int m_turns = 0; // of the loop since it last rested
    // What has changed since the last turn. Order doesn't matter, since each is shown as it is.
    std::unordered_set<PropertyField*> m_changedFields;
    std::unordered_set<ObjectFollower*> m_changed;
    bool m_awake = false; // an event is on its way
};
