// SPDX-License-Identifier: BSD-3-Clause
#include "SceneEdits.h"

#include "CrvServices.h"
#include "KnDebugError.h"
#include "KnGraphWalk.h"
#include "KnGroup.h"
#include "NodeCommands.h"
#include "NodeCopy.h"
#include "NodeFinder.h"
#include "SceneText.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <unordered_set>

namespace {

CrvServices& services() { return *CrvServices::getInstance(); }

// Which owns it.
template <class Command, class... Args>
void run(Args&&... args)
{
    auto command = std::make_unique<Command>(std::forward<Args>(args)...);
    services().executeCommand(command.release());
}

int nodeCount(KnFieldContainer* top)
{
    std::unordered_set<const KnFieldContainer*> nodes;
    KnGraphWalk walk;
    walk.add(top);
    while (const KnFieldContainer* const node = walk.next())
        nodes.insert(node);
    return static_cast<int>(nodes.size());
}

QString labelOf(const ChildList& list)
{
    return list.isRoots() ? SceneEdits::tr("the scene") : nodeLabel(*list.group());
}

// A line break would split a step's text in two.
QString stepText(const QString& text) { return text.simplified(); }

// From the back to the front, so that the indices hold while places come and go.
void sortFromTheBack(SceneEdits::Places& places)
{
    std::sort(places.begin(), places.end(), [](const NodePlace& a, const NodePlace& b) {
        return a.list == b.list ? a.index > b.index : std::less<>()(a.list.group(), b.list.group());
    });
}

} // namespace

bool SceneEdits::mayChange(const ChildList& list) const
{
    return list.isRoots() ? m_roots == Roots::Free
                          : !static_cast<const KnGroup*>(list.group())->hasFixedChildren();
}

bool SceneEdits::mayChange(const Places& places) const
{
    return !places.empty()
        && std::all_of(places.begin(), places.end(),
            [this](const NodePlace& place) { return mayChange(place.list); });
}

void SceneEdits::add(const KnType& type, const ListGap& gap)
{
    if (!mayChange(gap.list()) || !type.canCreateInstance())
        return;
    const KnNodePtr node(static_cast<KnFieldContainer*>(type.createInstance()));
    KnFieldContainer* const former = services().getSelectedNode();
    {
        const CrvServices::StepGroup group(
            services(), stepText(tr("Add %1 to %2").arg(typeName(type), labelOf(gap.list()))));
        run<SelectNodeCommand>(former, nullptr);
        run<AddNodeCommand>(node.get(), gap);
        run<SelectNodeCommand>(nullptr, node.get());
    }
    services().selectNode(node.get());
}

void SceneEdits::remove(Places places)
{
    if (!mayChange(places))
        return;
    const KnNodePtr first = places.front().node;
    const KnNodePtr neighbor(neighborOf(places));
    const int count = nodeCount(first.get());
    const QString name = nodeLabel(*first.get());
    const QString text = places.size() > 1
        ? tr("Delete %1 nodes").arg(static_cast<int>(places.size()))
        : count > 1 ? tr("Delete %1 (%2 nodes)").arg(name).arg(count)
                    : tr("Delete %1").arg(name);
    sortFromTheBack(places);
    {
        const CrvServices::StepGroup group(services(), stepText(text));
        run<SelectNodeCommand>(first.get(), nullptr);
        for (const NodePlace& place : places)
            run<DeleteNodeCommand>(place.node.get(), place.list, place.index);
        run<SelectNodeCommand>(nullptr, neighbor.get());
    }
    services().selectNode(neighbor.get());
}

/// What stands behind the first place, or before it, or above it, and doesn't go itself.
KnFieldContainer* SceneEdits::neighborOf(const Places& places)
{
    const NodePlace& first = places.front();
    const auto stays = [&](int index) {
        return std::none_of(places.begin(), places.end(), [&](const NodePlace& place) {
            return place.list == first.list && place.index == index;
        });
    };
    for (int index = first.index + 1; index < first.list.count(); ++index) {
        if (stays(index))
            return first.list.at(index);
    }
    for (int index = first.index - 1; index >= 0; --index) {
        if (stays(index))
            return first.list.at(index);
    }
    return first.list.group();
}

void SceneEdits::duplicate(Places places)
{
    if (!mayChange(places))
        return;
    const KnNodePtr original = places.front().node;
    sortFromTheBack(places);
    std::vector<KnNodePtr> copies;
    KnNodePtr firstCopy;
    for (const NodePlace& place : places) {
        copies.push_back(copyOf(place.node.get()));
        if (!copies.back()) {
            KnDebugError::post(KnDebugError::Warning,
                toKbString(tr("\"%1\" has a node of a type that makes no others, so it can't be "
                              "duplicated")
                               .arg(nodeLabel(*place.node.get()))));
            return;
        }
        if (place.node.get() == original.get())
            firstCopy = copies.back();
    }
    const QString text = places.size() > 1
        ? tr("Duplicate %1 nodes").arg(static_cast<int>(places.size()))
        : tr("Duplicate %1").arg(nodeLabel(*original.get()));
    {
        const CrvServices::StepGroup group(services(), stepText(text));
        run<SelectNodeCommand>(original.get(), nullptr);
        for (std::size_t i = 0; i < places.size(); ++i) {
            run<AddNodeCommand>(copies[i].get(), ListGap(places[i].list, places[i].index + 1));
        }
        run<SelectNodeCommand>(nullptr, firstCopy.get());
    }
    services().selectNode(firstCopy.get());
}

void SceneEdits::rename(KnFieldContainer* node, const QString& name)
{
    const KbName newName(toKbString(name));
    if (newName == node->getName())
        return;
    const QString text = name.isEmpty() ? tr("Take the name of %1 away").arg(nodeLabel(*node))
                                        : tr("Rename %1 to %2").arg(nodeLabel(*node), name);
    const CrvServices::StepGroup group(services(), stepText(text));
    run<RenameNodeCommand>(node, newName);
}

bool SceneEdits::wouldMakeCycle(const Places& places, const ChildList& to)
{
    return !to.isRoots()
        && std::any_of(places.begin(), places.end(), [&to](const NodePlace& place) {
               return NodeFinder(to.group()).isAtOrBelow(place.node.get());
           });
}

void SceneEdits::move(const Places& places, const ChildList& to, int index)
{
    if (!mayChange(places) || !mayChange(to))
        return;
    if (wouldMakeCycle(places, to)) {
        KnDebugError::post(KnDebugError::Warning,
            toKbString(tr("A node can't be moved into itself or into what stands below it")));
        return;
    }
    // The first entry behind the gap that stays.
    const auto moves = [&](int place) {
        return std::any_of(places.begin(), places.end(),
            [&](const NodePlace& each) { return each.list == to && each.index == place; });
    };
    while (index < to.count() && moves(index))
        ++index;
    const KnFieldContainer* const after = to.at(index);
    int front = index - 1;
    while (front >= 0 && moves(front))
        --front;
    const KnFieldContainer* before = to.at(front);
    const QString text = places.size() > 1
        ? tr("Move %1 nodes to %2").arg(static_cast<int>(places.size())).arg(labelOf(to))
        : tr("Move %1 to %2").arg(nodeLabel(*places.front().node.get()), labelOf(to));
    const KnNodePtr selected = places.front().node;
    {
        const CrvServices::StepGroup group(services(), stepText(text));
        run<SelectNodeCommand>(selected.get(), nullptr);
        for (const NodePlace& place : places) {
            run<MoveNodeCommand>(
                place.node.get(), place.list, place.index, ListGap(to, before, after));
            before = place.node.get();
        }
        run<SelectNodeCommand>(nullptr, selected.get());
    }
    services().selectNode(selected.get());
}

bool SceneEdits::canShift(const Places& places, int direction) const
{
    return mayChange(places)
        && std::any_of(places.begin(), places.end(), [&](const NodePlace& place) {
               const KnFieldContainer* const other = place.list.at(place.index + direction);
               return other
                   && std::none_of(places.begin(), places.end(), [&](const NodePlace& each) {
                          return each.list == place.list && each.index == place.index + direction;
                      });
           });
}

void SceneEdits::shift(Places places, int direction)
{
    if (!canShift(places, direction))
        return;
    const QString name = places.size() > 1 ? tr("%1 nodes").arg(static_cast<int>(places.size()))
                                           : nodeLabel(*places.front().node.get());
    sortFromTheBack(places);
    if (direction < 0)
        std::reverse(places.begin(), places.end());
    const CrvServices::StepGroup group(
        services(), stepText((direction < 0 ? tr("Move %1 up") : tr("Move %1 down")).arg(name)));
    // The nearer to the end the earlier; those that are stopped stop the ones behind them.
    const ChildList* list = nullptr;
    int bound = 0;
    for (const NodePlace& place : places) {
        if (!list || !(*list == place.list))
            bound = direction < 0 ? -1 : place.list.count();
        list = &place.list;
        const int target = place.index + direction;
        if (target == bound) {
            bound = place.index;
            continue;
        }
        bound = target;
        const KnFieldContainer* const other = place.list.at(target);
        run<MoveNodeCommand>(place.node.get(), place.list, place.index,
            direction < 0 ? ListGap(place.list, place.list.at(target - 1), other)
                          : ListGap(place.list, other, place.list.at(target + 1)));
    }
}
