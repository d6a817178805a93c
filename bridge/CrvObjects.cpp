// SPDX-License-Identifier: BSD-3-Clause
#include "CrvObjects.h"

#include "ObjectNode.h"
#include "TextField.h"

KnFieldContainer* crvObjectNode(QObject* object)
{
    return object ? ObjectNode::of(object) : nullptr;
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
