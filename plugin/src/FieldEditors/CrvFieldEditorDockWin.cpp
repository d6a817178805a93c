// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldEditorDockWin.h"

#include "CrvServices.h"
#include "KnField.h"

CrvFieldEditorDockWin::CrvFieldEditorDockWin()
    : CrvEditorDock("Field Editor", "Field Editor for Corvane.")
{
}

void CrvFieldEditorDockWin::s_selectedFieldChanged(KnField* field) { showEditorFor(field); }

void CrvFieldEditorDockWin::connectSelection()
{
    connect(CrvServices::getInstance(), &CrvServices::selectedFieldChanged, this,
        &CrvFieldEditorDockWin::s_selectedFieldChanged);
}

void CrvFieldEditorDockWin::disconnectSelection()
{
    disconnect(CrvServices::getInstance(), &CrvServices::selectedFieldChanged, this,
        &CrvFieldEditorDockWin::s_selectedFieldChanged);
}
