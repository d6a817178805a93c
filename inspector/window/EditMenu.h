// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMenu>

/// The Edit menu: undo and redo of the host's stack; others add what they have.
class EditMenu : public QMenu {
    Q_OBJECT
public:
    explicit EditMenu(QWidget* parent);
};
