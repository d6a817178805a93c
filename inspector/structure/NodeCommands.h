// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ChildList.h"
#include "CrvCommand.h"

// Edits of the scene's structure as commands. Each holds a reference on the nodes that it needs,
// and finds its place by them and not by a number, since the program may have changed the list
// meanwhile. If its node isn't where it should be, or may not go there any more, a step says so
// with a KnDebugError and does nothing.

/// What adding and deleting have in common: a node comes into a list or goes.
class NodePlaceCommand : public CrvCommand {
protected:
    NodePlaceCommand(KnFieldContainer* node, const ListGap& gap);

    void putIn();
    void takeOut();

    KnNodePtr m_node;
    ListGap m_gap;
    bool m_done = false; // the last step did what it should
};

class AddNodeCommand : public NodePlaceCommand {
public:
    AddNodeCommand(KnFieldContainer* node, const ListGap& gap);

    void execute() override { putIn(); }
    void undo() override;
    void redo() override { putIn(); }
};

/// Takes a node out of one list. In others it stays.
class DeleteNodeCommand : public NodePlaceCommand {
public:
    /// The place of the node next to `index`.
    DeleteNodeCommand(KnFieldContainer* node, const ChildList& list, int index);

    void execute() override { takeOut(); }
    void undo() override;
    void redo() override { takeOut(); }
};

/// Takes a node from one place to another, in the same list or not.
class MoveNodeCommand : public CrvCommand {
public:
    /// From the place of the node next to `index`.
    MoveNodeCommand(KnFieldContainer* node, const ChildList& from, int index, const ListGap& to);

    void execute() override { m_done = move(m_from, m_to); }
    void undo() override;
    void redo() override { m_done = move(m_from, m_to); }

private:
    bool move(ListGap& from, const ListGap& to);

    KnNodePtr m_node;
    ListGap m_from;
    ListGap m_to;
    bool m_done = false;
};

class RenameNodeCommand : public CrvCommand {
public:
    RenameNodeCommand(KnFieldContainer* node, const KbName& name);

    void execute() override;
    void undo() override { m_node->setName(m_former); }
    void redo() override { execute(); }

private:
    KnNodePtr m_node;
    KbName m_name;
    KbName m_former;
};

/// Writes nothing, but selects what a person looks for after the commands around it: the node that
/// was deleted when it is back, and its neighbour when it is gone again. Null for nothing.
class SelectNodeCommand : public CrvCommand {
public:
    SelectNodeCommand(KnFieldContainer* afterUndo, KnFieldContainer* afterRedo);

    void execute() override { }
    void undo() override { selectLater(m_afterUndo); }
    void redo() override { selectLater(m_afterRedo); }

private:
    static void selectLater(const KnNodePtr& node);

    KnNodePtr m_afterUndo;
    KnNodePtr m_afterRedo;
};
