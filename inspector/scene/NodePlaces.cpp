// SPDX-License-Identifier: BSD-3-Clause
#include "NodePlaces.h"

#include "KnGroup.h"
#include "SceneText.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace {

// From the best on.
enum class Fit { Label, Type, LabelButCase, TypeButCase, None };

Fit fitOf(const KnFieldContainer& node, const QString& label)
{
    const QString own = nodeLabel(node);
    if (own == label)
        return Fit::Label;
    const QString type = typeName(node.getObjectType());
    if (type == label)
        return Fit::Type;
    if (own.compare(label, Qt::CaseInsensitive) == 0)
        return Fit::LabelButCase;
    return type.compare(label, Qt::CaseInsensitive) == 0 ? Fit::TypeButCase : Fit::None;
}

/// Those that fit best, in order; none if none fits at all.
NodePlaces::Nodes bestFits(const NodePlaces::Nodes& nodes, const QString& label)
{
    NodePlaces::Nodes best;
    Fit bestFit = Fit::None;
    for (KnFieldContainer* const node : nodes) {
        const Fit fit = fitOf(*node, label);
        if (fit < bestFit)
            best.clear();
        bestFit = std::min(fit, bestFit);
        if (fit == bestFit && fit != Fit::None)
            best.push_back(node);
    }
    return best;
}

/// All nodes directly below, each once.
NodePlaces::Nodes childrenOf(const NodePlaces::Nodes& parents)
{
    NodePlaces::Nodes children;
    std::unordered_set<const KnFieldContainer*> seen;
    for (const KnFieldContainer* const parent : parents) {
        const auto* const group = dynamic_cast<const KnGroup*>(parent);
        for (int i = 0; group && i < group->getNumChildren(); ++i) {
            if (seen.insert(group->getChild(i)).second)
                children.push_back(group->getChild(i));
        }
    }
    return children;
}

/// For each node its number among those with the same label, -1 for the only one.
std::vector<int> indices(const NodePlaces::Nodes& siblings)
{
    QHash<QString, int> counts;
    for (const KnFieldContainer* const node : siblings)
        ++counts[nodeLabel(*node)];
    QHash<QString, int> next;
    std::vector<int> numbers;
    for (const KnFieldContainer* const node : siblings) {
        const QString label = nodeLabel(*node);
        numbers.push_back(counts.value(label) > 1 ? next[label]++ : -1);
    }
    return numbers;
}

} // namespace

NodePlaces::NodePlaces(const Nodes& roots)
    : m_roots(roots)
{
    struct Waiting {
        KnFieldContainer* node;
        Place place;
    };
    std::vector<Waiting> waiting;
    const auto add = [&waiting](const Nodes& siblings, const KnFieldContainer* parent) {
        const std::vector<int> numbers = indices(siblings);
        for (std::size_t i = siblings.size(); i-- > 0;)
            waiting.push_back({ siblings[i], { parent, numbers[i] } });
    };
    add(roots, nullptr);
    while (!waiting.empty()) {
        const Waiting next = waiting.back();
        waiting.pop_back();
        if (!m_places.emplace(next.node, next.place).second)
            continue;
        m_nodes.push_back(next.node);
        add(childrenOf({ next.node }), next.node);
    }
}

QString NodePlaces::path(const KnFieldContainer* node) const
{
    QStringList steps;
    while (node) {
        const Place& place = m_places.at(node);
        steps.prepend(NodeAddress::stepText({ nodeLabel(*node), place.index }));
        node = place.parent;
    }
    return steps.join(u'/');
}

NodePlaces::Result NodePlaces::find(const NodeAddress& address) const
{
    if (address.fromRoot)
        return follow(address, m_roots);
    Nodes named;
    std::copy_if(m_roots.begin(), m_roots.end(), std::back_inserter(named),
        [&](const KnFieldContainer* root) { return nodeLabel(*root) == address.steps[0].label; });
    Result result = follow(address, named);
    return result.nodes.empty() ? follow(address, m_nodes) : result;
}

NodePlaces::Result NodePlaces::follow(const NodeAddress& address, Nodes candidates) const
{
    Result result;
    for (std::size_t i = 0; i < address.steps.size(); ++i) {
        const NodeAddress::Step& step = address.steps[i];
        if (i > 0)
            candidates = childrenOf(result.nodes);
        result.nodes = bestFits(candidates, step.label);
        const std::size_t count = result.nodes.size();
        if (step.index >= 0) {
            const auto index = static_cast<std::size_t>(step.index);
            result.nodes = index < count ? Nodes { result.nodes[index] } : Nodes();
        }
        if (result.nodes.empty()) {
            result.failedStep = i;
            result.considered = std::move(candidates);
            result.labelled = count;
            break;
        }
    }
    return result;
}
