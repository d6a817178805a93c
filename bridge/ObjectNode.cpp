// SPDX-License-Identifier: BSD-3-Clause
#include "ObjectNode.h"

#include "CrvStrings.h"
#include "KnDebugError.h"
#include "KnFieldTableSensor.h"
#include "KnSFields.h"
#include "NodeHold.h"
#include "PropertyField.h"
#include "PropertyFieldMaker.h"
#include "PropertyPlace.h"

#include <QThread>

#include <algorithm>

namespace {

/// What is known of an object of another thread.
std::shared_ptr<const ObjectClass> foreignClass(const QObject& object)
{
    auto made = std::make_shared<ObjectClass>();
    made->type = ObjectClass::of(object.metaObject())->type;
    made->fields.addOwnField("thread");
    return made;
}

QString threadText(const QThread* thread)
{
    if (!thread)
        return QStringLiteral("none");
    return thread->objectName().isEmpty() ? QLatin1String(thread->metaObject()->className())
                                          : thread->objectName();
}

} // namespace

ObjectNode* ObjectNode::of(QObject* object)
{
    // Nobody else follows objects.
    auto* const known = static_cast<ObjectNode*>(ObjectWatch::getInstance().followerOf(object));
    // At the address of a dead object of another thread, another one may live already.
    return known && known->object() == object ? known : new ObjectNode(object);
}

ObjectNode::ObjectNode(QObject* object)
    : m_address(object)
    , m_object(object)
    , m_firstName(toKbString(object->objectName()))
    , m_class(isForeign() ? foreignClass(*object) : ObjectClass::of(object->metaObject()))
{
    setName(m_firstName);
    makeChildrenLater();
    ObjectWatch::getInstance().addFollower(object, this);
}

ObjectNode::~ObjectNode()
{
    ObjectWatch& watch = ObjectWatch::getInstance();
    watch.removeFollower(m_address, this);
    if (m_object)
        watch.letGo(m_object);
}

bool ObjectNode::isForeign() const { return m_object->thread() != QThread::currentThread(); }

const KnFieldData* ObjectNode::getContainerFieldData() const
{
    const_cast<ObjectNode*>(this)->watchEvents(); // somebody looks
    return m_ownTable ? m_ownTable.get() : &m_class->fields;
}

KnField* ObjectNode::ownField(int index)
{
    const auto place = static_cast<std::size_t>(index);
    if (m_fields.size() <= place)
        m_fields.resize(static_cast<std::size_t>(getContainerFieldData()->getNum()));
    if (!m_fields[place]) {
        // A getter may do anything, even look at this field.
        std::unique_ptr<KnField> made = makeField(index);
        if (!m_fields[place]) {
            m_fields[place] = std::move(made);
            adopt(*m_fields[place]);
        }
    }
    return m_fields[place].get();
}

/// The first look at the fields or the children.
void ObjectNode::watchEvents()
{
    if (m_watchesEvents || !m_object || isForeign())
        return;
    m_watchesEvents = true;
    ObjectWatch::getInstance().watchEvents(m_object);
    followDynamicProperties(); // those that have come since the node was made
}

std::unique_ptr<KnField> ObjectNode::makeField(int index) const
{
    const auto place = static_cast<std::size_t>(index);
    if (!m_object || isForeign()) {
        auto text = std::make_unique<KnSFString>();
        if (m_object && m_class->properties.empty())
            text->setValue(toKbString(threadText(m_object->thread())));
        text->setReadOnly(true);
        return text;
    }
    if (place < m_class->properties.size())
        return makePropertyField(PropertyPlace(m_object, m_class->properties[place]));
    return makePropertyField(PropertyPlace(
        m_object, getContainerFieldData()->getName(index).getString().toUtf8().c_str()));
}

int ObjectNode::ownIndex(const KnField* field) const
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
        [field](const std::unique_ptr<KnField>& own) { return own.get() == field; });
    if (found != m_fields.end() && field)
        return static_cast<int>(found - m_fields.begin());
    for (const FormerField& former : m_formerFields) {
        if (former.field.get() == field)
            return former.index;
    }
    return -1;
}

void ObjectNode::makeChildren()
{
    watchEvents();
    followChildren();
}

void ObjectNode::renamed()
{
    if (!m_object) {
        KnDebugError::post(KnDebugError::Warning, "The object is gone, so it got no other name");
    } else if (!isForeign()) {
        const QString name = toQString(getName().getString());
        if (m_object->objectName() != name)
            m_object->setObjectName(name);
    } else if (!(getName() == m_firstName)) {
        KnDebugError::post(
            KnDebugError::Warning, "An object of another thread can't get another name");
        setName(m_firstName);
    }
}

void ObjectNode::followObject()
{
    const NodeHold hold(this);
    if (m_object && !isForeign()) {
        setName(KbName(toKbString(m_object->objectName())));
        followDynamicProperties();
        exchangeOutgrownFields();
    }
    if (!waitsForLook())
        followChildren();
}

void ObjectNode::followChildren()
{
    QObjectList objects = m_object && !isForeign() ? m_object->children() : QObjectList();
    // While children are destroyed, there are gaps among them.
    objects.removeIf(
        [](QObject* object) { return !object || ObjectWatch::getInstance().isHidden(object); });
    const int newCount = static_cast<int>(objects.size());
    const int oldCount = getNumMadeChildren();
    const auto stands = [&](int child, int object) {
        return static_cast<const ObjectNode*>(getChild(child))->object() == objects[object];
    };
    const int common = std::min(newCount, oldCount);
    int first = 0;
    while (first < common && stands(first, first))
        ++first;
    int tail = 0;
    while (tail < common - first && stands(oldCount - 1 - tail, newCount - 1 - tail))
        ++tail;
    std::vector<KnNodePtr> nodes;
    for (int i = first; i < newCount - tail; ++i)
        nodes.emplace_back(of(objects[i]));
    const int removed = oldCount - tail - first;
    if (removed > 0 || !nodes.empty())
        replaceChildren(first, removed, std::move(nodes));
}

/// A property that is gone keeps its field, which shows nothing.
void ObjectNode::followDynamicProperties()
{
    const QList<QByteArray> names = m_object->dynamicPropertyNames();
    for (const QByteArray& name : names) {
        const KbName fieldName(name.constData());
        if (name.startsWith("_q_") || getContainerFieldData()->getIndex(fieldName) >= 0)
            continue;
        if (!m_ownTable)
            m_ownTable = std::make_unique<KnFieldData>(m_class->fields);
        m_ownTable->addOwnField(fieldName);
        KnFieldTableSensor::report(*this);
    }
}

void ObjectNode::exchangeOutgrownFields()
{
    // No signal announces a dynamic property.
    for (std::size_t i = m_class->properties.size(); i < m_fields.size(); ++i) {
        if (auto* const property = dynamic_cast<PropertyField*>(m_fields[i].get()))
            property->refresh();
    }
    // Asking reads the property, and a getter may do anything, so nothing is kept across that.
    const auto isOutgrown = [](const KnField* field) {
        const auto* const property = dynamic_cast<const PropertyField*>(field);
        return property && property->isOutgrown();
    };
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const KnField* const field = m_fields[i].get();
        if (!isOutgrown(field) || m_fields[i].get() != field)
            continue;
        m_formerFields.push_back({ static_cast<int>(i), std::move(m_fields[i]) });
        // One that was here before may be the right one again.
        for (std::size_t j = 0; j < m_formerFields.size() && !m_fields[i]; ++j) {
            KnField* const former = m_formerFields[j].field.get();
            const bool isBack = m_formerFields[j].index == static_cast<int>(i) && former != field
                && !isOutgrown(former);
            if (isBack && !m_fields[i]) {
                m_fields[i] = std::move(m_formerFields[j].field);
                m_formerFields.erase(m_formerFields.begin() + static_cast<std::ptrdiff_t>(j));
            }
        }
        KnFieldTableSensor::report(*this);
    }
}
