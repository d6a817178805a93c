// SPDX-License-Identifier: BSD-3-Clause
#include "SelectionHistory.h"

#include "CrvServices.h"
#include "KnGraphWalk.h"

#include <unordered_map>

namespace {

constexpr int maxNodes = 200;

} // namespace

SelectionHistory::SelectionHistory(QObject* parent)
    : QObject(parent)
{
    connect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, this,
        &SelectionHistory::note);
}

void SelectionHistory::note(KnFieldContainer* node)
{
    if (!node || (m_place >= 0 && m_nodes[static_cast<std::size_t>(m_place)] == node))
        return;
    m_nodes.resize(static_cast<std::size_t>(m_place) + 1); // what was forward from here is no more
    m_nodes.push_back(node);
    if (m_nodes.size() > maxNodes)
        m_nodes.erase(m_nodes.begin());
    m_place = static_cast<int>(m_nodes.size()) - 1;
}

void SelectionHistory::go(int direction)
{
    CrvServices* const services = CrvServices::getInstance();
    std::unordered_map<const KnFieldContainer*, KnFieldContainer*> present;
    for (const KnFieldContainer* node : m_nodes)
        present.emplace(node, nullptr);
    KnGraphWalk walk;
    for (const KnNodePtr& root : services->getRoots())
        walk.add(root.get());
    while (KnFieldContainer* const node = walk.next()) {
        const auto found = present.find(node);
        if (found != present.end())
            found->second = node;
    }
    // If nothing is selected, what was selected last comes first.
    int place = services->getSelectedNode() || direction > 0 ? m_place + direction : m_place;
    for (; place >= 0 && place < static_cast<int>(m_nodes.size()); place += direction) {
        KnFieldContainer* const node = present[m_nodes[static_cast<std::size_t>(place)]];
        if (!node || node == services->getSelectedNode())
            continue;
        m_place = place;
        services->selectNode(node);
        return;
    }
}
