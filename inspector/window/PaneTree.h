// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>

/// The tree of a panel whose current row is the host's selection. Getting the focus selects
/// nothing, where a plain view without a current row would make its first row the current one.
/// Far down a deep tree the steps of the indentation get narrower, so that names keep some room.
class PaneTree : public QTreeView {
    Q_OBJECT
public:
    using QTreeView::edit;
    using QTreeView::QTreeView;

    /// What the view shows while it has no rows: what would fill it.
    void setEmptyText(const QString& text);

    /// To be called before rows come and go: what is at the top of the view stays there. A view
    /// that stands at its very beginning goes on showing the beginning.
    void holdPlace();

    void doItemsLayout() override;

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitSteps();

    QString m_emptyText;
    QPersistentModelIndex m_edited; // what a person has begun to edit last
    QList<QPersistentModelIndex> m_held; // from the top of the view on; empty if nothing is held
    bool m_fitting = false;
};
