// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTreeView>

/// The tree of a panel whose current row is the host's selection. Receiving the focus is no choice:
/// where no row is current, none becomes it, as the first one would in a plain view.
class PaneTree : public QTreeView {
    Q_OBJECT
public:
    using QTreeView::QTreeView;

protected:
    void focusInEvent(QFocusEvent* event) override;
};
