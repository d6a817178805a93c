// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTreeView>

/// The tree of a panel whose current row is the host's selection. Getting the focus selects
/// nothing, where a plain view without a current row would make its first row the current one.
class PaneTree : public QTreeView {
    Q_OBJECT
public:
    using QTreeView::QTreeView;

protected:
    void focusInEvent(QFocusEvent* event) override;
};
