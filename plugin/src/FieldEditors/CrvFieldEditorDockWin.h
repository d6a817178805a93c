// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvEditorDock.h"

class KnField;

/// The dock that shows the most specific field editor for the selected field.
class CrvFieldEditorDockWin : public CrvEditorDock {
    Q_OBJECT
public:
    CrvFieldEditorDockWin();

public Q_SLOTS:
    void s_selectedFieldChanged(KnField* field);

private:
    void connectSelection() override;
    void disconnectSelection() override;
};
