// SPDX-License-Identifier: BSD-3-Clause
#include "ObjectDetails.h"

#include "CrvObjectDetails.h"
#include "CrvObjects.h"
#include "ObjectNode.h"
#include "SignalWatch.h"
#include "TextField.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QStringList>
#include <QThread>

#include <algorithm>

namespace {

QString tr(const char* text) { return QCoreApplication::translate("ObjectDetails", text); }

/// Null once the object is dead, and while it lives in another thread.
QObject* objectOf(const KnFieldContainer& node)
{
    QObject* const object = crvNodeObject(&node);
    return object && object->thread() == QThread::currentThread() ? object : nullptr;
}

/// Whether the object, or what it stands below, is kept out of the tree.
bool isHidden(const QObject* object)
{
    while (object && !ObjectWatch::getInstance().isHidden(const_cast<QObject*>(object)))
        object = object->parent();
    return object;
}

/// Null if the field leads nowhere.
QObject* linkedObject(const KnField& field)
{
    const auto* const text = dynamic_cast<const TextPropertyField*>(&field);
    QObject* const object = text ? text->linkedObject() : nullptr;
    return isHidden(object) ? nullptr : object;
}

/// The members of a class that a test accepts, once each, the most derived class first.
template <class Accepts>
std::vector<CrvNodeDetails::Member> membersOf(const KnFieldContainer& node, Accepts accepts)
{
    std::vector<CrvNodeDetails::Member> members;
    const QObject* const object = objectOf(node);
    for (const QMetaObject* meta = object ? object->metaObject() : nullptr; meta;
         meta = meta->superClass()) {
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            const QString signature = QString::fromLatin1(method.methodSignature());
            const auto isSame = [&signature](const CrvNodeDetails::Member& known) {
                return known.signature == signature;
            };
            if (accepts(method) && std::none_of(members.begin(), members.end(), isSame))
                members.push_back({ QString::fromLatin1(meta->className()), signature });
        }
    }
    return members;
}

/// One that only passes fewer arguments of another one on is no signal by itself.
bool isSignal(const QMetaMethod& method)
{
    return method.methodType() == QMetaMethod::Signal
        && !(method.attributes() & QMetaMethod::Cloned);
}

QMetaMethod methodNamed(const QObject& object, const QString& signature)
{
    const QMetaObject* const meta = object.metaObject();
    return meta->method(meta->indexOfMethod(signature.toLatin1()));
}

} // namespace

void ObjectDetails::provide()
{
    static const ObjectDetails* const provided = new ObjectDetails; // outlives all static objects
    Q_UNUSED(provided);
}

bool ObjectDetails::knows(const KnFieldContainer& node) const
{
    return dynamic_cast<const ObjectNode*>(&node);
}

QString ObjectDetails::nodeNote(const KnFieldContainer& node) const
{
    const QObject* const object = crvNodeObject(&node);
    if (!object)
        return tr("The object is gone");
    QStringList classes;
    for (const QMetaObject* meta = object->metaObject(); meta; meta = meta->superClass())
        classes += QString::fromLatin1(meta->className());
    QStringList lines { classes.join(QStringLiteral(" : ")) };
    if (!objectOf(node)) {
        lines += tr("lives in another thread and isn't read");
        return lines.join(u'\n');
    }
    lines += tr("%1 methods without parameters, %2 signals")
                 .arg(methods(node).size())
                 .arg(events(node).size());
    return lines.join(u'\n');
}

QString ObjectDetails::fieldNote(const KnField& field) const { return crvPropertyNote(&field); }

bool ObjectDetails::isLink(const KnField& field) const { return linkedObject(field); }

KnNodePtr ObjectDetails::linkedNode(const KnField& field) const
{
    return crvPlacedNode(linkedObject(field));
}

std::vector<CrvNodeDetails::Member> ObjectDetails::methods(const KnFieldContainer& node) const
{
    const QStringList callable = crvMethods(&node);
    return membersOf(node, [&callable](const QMetaMethod& method) {
        return callable.contains(QString::fromLatin1(method.methodSignature()));
    });
}

QString ObjectDetails::call(const KnFieldContainer& node, const QString& signature)
{
    const KnNodePtr held(const_cast<KnFieldContainer*>(&node)); // whatever the call does
    const QString name
        = QStringLiteral("%1.%2").arg(SignalWatch::label(crvNodeObject(&node)), signature);
    QString result;
    if (!crvCallMethod(&node, signature, &result))
        return result.isEmpty()
            ? tr("%1 wasn't called: the object is gone, or has no such method").arg(name)
            : QStringLiteral("%1: %2").arg(name, result);
    return result.isEmpty() ? tr("%1 was called").arg(name)
                            : QStringLiteral("%1 %2 %3").arg(name, QChar(0x2192), result);
}

std::vector<CrvNodeDetails::Member> ObjectDetails::events(const KnFieldContainer& node) const
{
    return membersOf(node, isSignal);
}

bool ObjectDetails::isWatched(const KnFieldContainer& node, const QString& signature) const
{
    QObject* const object = objectOf(node);
    return object && SignalWatch::getInstance().isWatched(object, methodNamed(*object, signature));
}

void ObjectDetails::setWatched(const KnFieldContainer& node, const QString& signature, bool watched)
{
    QObject* const object = objectOf(node);
    if (object)
        SignalWatch::getInstance().setWatched(object, methodNamed(*object, signature), watched);
}

void ObjectDetails::endWatches() { SignalWatch::getInstance().clear(); }
