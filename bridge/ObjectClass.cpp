// SPDX-License-Identifier: BSD-3-Clause
#include "ObjectClass.h"

#include "KnGroup.h"

#include <QHash>
#include <QMetaProperty>

namespace {

/// A class may be named like one of the kernel's types, which keeps its name.
KnType typeOf(const QMetaObject* metaObject)
{
    if (!metaObject)
        return KnGroup::getClassTypeId();
    const KnType parent = typeOf(metaObject->superClass());
    for (QByteArray name = metaObject->className();; name += '\'') {
        const KnType known = KnType::fromName(KbName(name.constData()));
        if (known.isBad())
            return KnType::create(KbName(name.constData()), parent);
        if (known.getParent() == parent && !known.canCreateInstance())
            return known;
    }
}

struct Entry {
    QByteArray name;
    int propertyCount = 0;
    std::shared_ptr<const ObjectClass> objectClass;
};

std::shared_ptr<const ObjectClass> makeClass(const QMetaObject* metaObject)
{
    auto made = std::make_shared<ObjectClass>();
    made->type = typeOf(metaObject);
    for (int i = 0; i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        if (!property.isReadable() || metaObject->indexOfProperty(property.name()) != i)
            continue;
        made->fields.addOwnField(KbName(property.name()));
        made->properties.push_back(i);
    }
    return made;
}

} // namespace

std::shared_ptr<const ObjectClass> ObjectClass::of(const QMetaObject* metaObject)
{
    static auto& classes = *new QHash<const QMetaObject*, Entry>; // outlives all static objects
    Entry& entry = classes[metaObject];
    // A class that was made while the program runs may go, and another one take its place.
    if (!entry.objectClass || entry.name != metaObject->className()
        || entry.propertyCount != metaObject->propertyCount())
        entry = { metaObject->className(), metaObject->propertyCount(), makeClass(metaObject) };
    return entry.objectClass;
}
