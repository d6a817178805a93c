// SPDX-License-Identifier: BSD-3-Clause
#include "LiveNodes.h"

#include "KnGraphWalk.h"

std::unordered_set<const KnFieldContainer*> findLiveNodes(
    const std::vector<KnNodePtr>& roots, std::unordered_set<const KnFieldContainer*> wanted)
{
    std::unordered_set<const KnFieldContainer*> found;
    KnGraphWalk walk;
    for (const KnNodePtr& root : roots)
        walk.add(root.get());
    const KnFieldContainer* node = nullptr;
    while (!wanted.empty() && (node = walk.next())) {
        if (wanted.erase(node) > 0)
            found.insert(node);
    }
    return found;
}
