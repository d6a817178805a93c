// SPDX-License-Identifier: BSD-3-Clause
#include "SceneRoots.h"

#include "KnGroup.h"

#include <unordered_set>

KnFieldContainer* findRoot(const std::vector<KnNodePtr>& roots, const KnFieldContainer* node)
{
    if (!node)
        return nullptr;
    std::unordered_set<const KnFieldContainer*> seen; // a node may stand in many places
    std::vector<KnFieldContainer*> waiting;
    for (const KnNodePtr& root : roots) {
        waiting.push_back(root.get());
        while (!waiting.empty()) {
            KnFieldContainer* const next = waiting.back();
            waiting.pop_back();
            if (next == node)
                return root.get();
            const auto* const group = dynamic_cast<const KnGroup*>(next);
            if (!group || !seen.insert(next).second)
                continue;
            for (int i = 0; i < group->getNumChildren(); ++i)
                waiting.push_back(group->getChild(i));
        }
    }
    return nullptr;
}
