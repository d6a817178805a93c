// SPDX-License-Identifier: BSD-3-Clause
#include "CrvNodeEditor.h"

#include "CrvServices.h"
#include "KnFieldContainer.h"

CrvNodeEditor::CrvNodeEditor()
    : CrvEditorDock("Node Editor", "Node Editor for Corvane.")
{
}

void CrvNodeEditor::s_selectedNodeChanged(KnFieldContainer* node) { showEditorFor(node); }

void CrvNodeEditor::connectSelection()
{
    connect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, this,
        &CrvNodeEditor::s_selectedNodeChanged);
}

void CrvNodeEditor::disconnectSelection()
{
    disconnect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, this,
        &CrvNodeEditor::s_selectedNodeChanged);
}
