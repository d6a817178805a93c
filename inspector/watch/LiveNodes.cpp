// SPDX-License-Identifier: BSD-3-Clause
#include "LiveNodes.h"

#include "KnGroup.h"

std::unordered_set<const KnFieldContainer*> findLiveNodes(
    const std::vector<KnNodePtr>& roots, std::unordered_set<const KnFieldContainer*> wanted)
{
    std::unordered_set<const KnFieldContainer*> found;
    std::unordered_set<const KnFieldContainer*> seen; // groups may be shared
    std::vector<const KnFieldContainer*> open;
    for (const KnNodePtr& root : roots) {
        if (root)
            open.push_back(root.get());
    }
    while (!open.empty() && !wanted.empty()) {
        const KnFieldContainer* const node = open.back();
        open.pop_back();
        if (wanted.erase(node) > 0)
            found.insert(node);
        const auto* const group = dynamic_cast<const KnGroup*>(node);
        if (!group || !seen.insert(group).second)
            continue;
        for (int i = 0; i < group->getNumChildren(); ++i)
            open.push_back(group->getChild(i));
    }
    return found;
}
