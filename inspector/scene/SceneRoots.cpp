// SPDX-License-Identifier: BSD-3-Clause
#include "SceneRoots.h"

#include "KnGraphWalk.h"

#include <algorithm>

KnFieldContainer* findRoot(const std::vector<KnNodePtr>& roots, const KnFieldContainer* node)
{
    KnGraphWalk walk;
    for (const KnNodePtr& root : roots) {
        walk.add(root.get());
        while (const KnFieldContainer* const next = walk.next()) {
            if (next == node)
                return root.get();
        }
    }
    return nullptr;
}

std::vector<KnFieldContainer*> plainRoots(const std::vector<KnNodePtr>& roots)
{
    std::vector<KnFieldContainer*> nodes(roots.size());
    std::transform(roots.begin(), roots.end(), nodes.begin(),
        [](const KnNodePtr& root) { return root.get(); });
    return nodes;
}
