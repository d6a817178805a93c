// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WatchList.h"

#include <QTimer>
#include <QWidget>

class KnField;
class QSplitter;
class QStackedLayout;
class QTreeView;
class WatchPlot;

/// Numbers of fields over the last minute: their names and values as a table, and their curves.
/// Fields can be dropped on it. It samples and paints only while it can be seen.
class WatchPanel : public QWidget {
    Q_OBJECT
public:
    explicit WatchPanel(QWidget* parent = nullptr);
    ~WatchPanel() override;

    WatchList& list() { return m_list; }
    /// Adds a number of a field, or selects the row of one that is watched already.
    void watch(KnField* field, int component);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildTable();
    QWidget* buildContent();
    void buildActions();
    QWidget* buildButtons();
    void refresh();
    void updateShown();
    void updateRows();
    void removeSelected();
    void copy() const;

    WatchList m_list; // outlives the views
    QTreeView* m_table; // child
    WatchPlot* m_plot; // child
    QSplitter* m_splitter; // child
    QStackedLayout* m_pages; // child: the hint, and the content
    QAction* m_commonScale; // child, as are all actions
    QAction* m_live;
    QAction* m_copy;
    QAction* m_remove;
    QTimer m_timer; // runs from the first new sample to the next picture
};
