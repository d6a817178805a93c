// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvEditorDock.h"

class KnFieldContainer;

/// The dock that shows the most specific node editor for the selected node. It stays hidden while
/// the profile places no editor under it that handles the node's type.
class CrvNodeEditor : public CrvEditorDock {
    Q_OBJECT
public:
    CrvNodeEditor();

public Q_SLOTS:
    void s_selectedNodeChanged(KnFieldContainer* node);

private:
    void connectSelection() override;
    void disconnectSelection() override;
};
