// SPDX-License-Identifier: BSD-3-Clause
#include "NodeChoice.h"

#include "CrvServices.h"
#include "EditorPanes.h"
#include "KnField.h"
#include "KnFieldContainer.h"
#include "KnFieldData.h"

namespace {

void select(KnFieldContainer* node, KnField* field)
{
    CrvServices* const services = CrvServices::getInstance();
    if (field)
        services->selectField(field);
    else
        services->selectNode(node);
}

} // namespace

void NodeChoice::choose(KnFieldContainer* node)
{
    const ClosedEditors closed;
    select(node, fieldLike(CrvServices::getInstance()->getSelectedField(), node));
}

void NodeChoice::chooseFirst()
{
    const CrvServices* const services = CrvServices::getInstance();
    if (services->getSelectedNode() || services->getRoots().empty())
        return;
    KnFieldContainer* const root = services->getRoots().front().get();
    select(root, fieldLike(nullptr, root));
}

KnField* NodeChoice::fieldLike(const KnField* former, KnFieldContainer* node)
{
    if (!node)
        return nullptr;
    const KnFieldContainer* const formerNode = former ? former->getContainer() : nullptr;
    if (formerNode) {
        const KnFieldData& fields = *formerNode->getContainerFieldData();
        const int index = fields.getIndex(formerNode, former);
        KnField* const same = index < 0 ? nullptr : node->getField(fields.getName(index));
        if (same)
            return same;
    }
    return node->getContainerFieldData()->getField(node, 0);
}
