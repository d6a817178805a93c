// SPDX-License-Identifier: BSD-3-Clause
#include "NodeCopy.h"

#include "KnField.h"
#include "KnGraphWalk.h"
#include "KnGroup.h"

#include <unordered_map>
#include <vector>

namespace {

KnNodePtr copyAlone(const KnFieldContainer& node)
{
    const KnType type = node.getObjectType();
    if (!type.canCreateInstance())
        return KnNodePtr();
    KnNodePtr copy(static_cast<KnFieldContainer*>(type.createInstance()));
    copy->setName(node.getName());
    const KnFieldData* const data = node.getContainerFieldData();
    KbString text;
    for (int i = 0; i < data->getNum(); ++i) {
        const KnField* const from = data->getField(&node, i);
        KnField* const to = data->getField(copy.get(), i);
        from->get(text);
        to->set(text);
        to->setIgnored(from->isIgnored());
    }
    return copy;
}

} // namespace

KnNodePtr copyOf(KnFieldContainer* node)
{
    std::unordered_map<const KnFieldContainer*, KnNodePtr> copies;
    std::vector<const KnGroup*> groups; // those above before those below
    KnGraphWalk walk;
    walk.add(node);
    while (const KnFieldContainer* const next = walk.next()) {
        KnNodePtr& copy = copies[next];
        if (copy)
            continue;
        copy = copyAlone(*next);
        if (!copy)
            return KnNodePtr();
        if (const auto* const group = dynamic_cast<const KnGroup*>(next))
            groups.push_back(group);
    }
    // From above, since a group looks through all that is below a child that it gets.
    for (const KnGroup* group : groups) {
        auto* const copy = static_cast<KnGroup*>(copies[group].get());
        for (int i = 0; i < group->getNumChildren(); ++i)
            copy->addChild(copies[group->getChild(i)].get());
    }
    return copies[node];
}
