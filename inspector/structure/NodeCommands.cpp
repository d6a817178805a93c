// SPDX-License-Identifier: BSD-3-Clause
#include "NodeCommands.h"

#include "CrvServices.h"
#include "KnDebugError.h"
#include "SceneRoots.h"
#include "SceneText.h"

#include <QObject>

namespace {

void complainOf(const KnNodePtr& node, const QString& text)
{
    KnDebugError::post(KnDebugError::Warning, toKbString(text.arg(nodeLabel(*node.get()))));
}

void complainOfMissing(const KnNodePtr& node)
{
    complainOf(node, QObject::tr("\"%1\" isn't where this step left it, so nothing was done"));
}

} // namespace

NodePlaceCommand::NodePlaceCommand(KnFieldContainer* node, const ListGap& gap)
    : m_node(node)
    , m_gap(gap)
{
}

void NodePlaceCommand::putIn()
{
    m_done = m_gap.list().insert(m_node.get(), m_gap.find());
    if (!m_done)
        complainOf(m_node, QObject::tr("\"%1\" can't be put there any more"));
}

void NodePlaceCommand::takeOut()
{
    const int index = m_gap.list().find(m_node.get(), m_gap.find());
    m_done = index >= 0;
    if (!m_done) {
        complainOfMissing(m_node);
        return;
    }
    m_gap = ListGap::around(m_gap.list(), index);
    m_gap.list().remove(index);
}

AddNodeCommand::AddNodeCommand(KnFieldContainer* node, const ListGap& gap)
    : NodePlaceCommand(node, gap)
{
}

void AddNodeCommand::undo()
{
    if (m_done)
        takeOut();
}

DeleteNodeCommand::DeleteNodeCommand(KnFieldContainer* node, const ChildList& list, int index)
    : NodePlaceCommand(node, ListGap::around(list, index))
{
}

void DeleteNodeCommand::undo()
{
    if (m_done)
        putIn();
}

MoveNodeCommand::MoveNodeCommand(
    KnFieldContainer* node, const ChildList& from, int index, const ListGap& to)
    : m_node(node)
    , m_from(ListGap::around(from, index))
    , m_to(to)
{
}

void MoveNodeCommand::undo()
{
    if (m_done)
        m_done = move(m_to, m_from);
}

bool MoveNodeCommand::move(ListGap& from, const ListGap& to)
{
    const ChildList& source = from.list();
    const int index = source.find(m_node.get(), from.find());
    if (index < 0) {
        complainOfMissing(m_node);
        return false;
    }
    const ListGap place = ListGap::around(source, index);
    if (source == to.list()) {
        source.move(index, to.find(index));
    } else if (to.list().insert(m_node.get(), to.find())) {
        source.remove(index);
    } else {
        // In its old place it isn't lost.
        complainOf(m_node, QObject::tr("\"%1\" can't be put there any more"));
        return false;
    }
    from = place;
    return true;
}

RenameNodeCommand::RenameNodeCommand(KnFieldContainer* node, const KbName& name)
    : m_node(node)
    , m_name(name)
{
}

void RenameNodeCommand::execute()
{
    m_former = m_node->getName();
    m_node->setName(m_name);
}

SelectNodeCommand::SelectNodeCommand(KnFieldContainer* afterUndo, KnFieldContainer* afterRedo)
    : m_afterUndo(afterUndo)
    , m_afterRedo(afterRedo)
{
}

// An editor writes what somebody has typed when it loses its node, and that would be a new step in
// the middle of this one.
void SelectNodeCommand::selectLater(const KnNodePtr& node)
{
    if (!node)
        return;
    CrvServices* const services = CrvServices::getInstance();
    QMetaObject::invokeMethod(
        services,
        [services, node] {
            if (services->getSelectedNode() != node.get()
                && findRoot(services->getRoots(), node.get()))
                services->selectNode(node.get());
        },
        Qt::QueuedConnection);
}
