// SPDX-License-Identifier: BSD-3-Clause
#include "CrvObjects.h"

#include "ObjectDetails.h"
#include "ObjectNode.h"
#include "TextField.h"

KnFieldContainer* crvObjectNode(QObject* object)
{
    ObjectDetails::provide();
    return object ? ObjectNode::of(object) : nullptr;
}

KnNodePtr crvPlacedNode(QObject* object)
{
    if (!object)
        return KnNodePtr();
    const KnNodePtr above = crvPlacedNode(object->parent());
    if (above)
        static_cast<const KnGroup*>(above.get())->getNumChildren();
    return KnNodePtr(crvObjectNode(object));
}

void crvHideObject(QObject* object) { ObjectWatch::getInstance().hide(object); }

QObject* crvNodeObject(const KnFieldContainer* node)
{
    const auto* const objectNode = dynamic_cast<const ObjectNode*>(node);
    return objectNode ? objectNode->object() : nullptr;
}

KnFieldContainer* crvLinkedNode(const KnField* field)
{
    const auto* const link = dynamic_cast<const TextPropertyField*>(field);
    return link ? crvObjectNode(link->linkedObject()) : nullptr;
}
