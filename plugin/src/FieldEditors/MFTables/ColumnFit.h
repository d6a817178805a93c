// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class QTableView;

/// Lets the columns of a table share its width, until somebody sizes one by hand. Without it each
/// column has the header's default width, however wide the panel is, and columns beyond the edge
/// could not be reached.
class ColumnFit : public QObject {
    Q_OBJECT
public:
    /// The table is the parent.
    explicit ColumnFit(QTableView* table);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();

    QTableView* m_table; // the parent
    int m_fitted = 0; // the width last given to each column, in pixels; 0 before the first fit
};
