// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldListModel.h"
#include "KnFieldTableSensor.h"
#include "KnNameSensor.h"

#include <QWidget>

class ElidedLabel;
class FieldFilter;
class FieldListActions;
class FieldListView;
class QAction;
class QLabel;
class QLayout;
class QMenu;
class QToolButton;
class PauseAction;

/// The fields of the selected node below a line that names it. A person's choice becomes the host's
/// selected field, and the host's selected field is shown in the list. While the host is paused,
/// the list stays as it is.
class FieldPanel : public QWidget {
    Q_OBJECT
public:
    explicit FieldPanel(QWidget* parent = nullptr);

    /// The button beside the heading has it; a menu may have it, too.
    PauseAction* pauseAction() const { return m_pauseAction; }

    /// Shows what these nodes have in common, or the differences of two. The first one is the
    /// host's selected node; others are ignored.
    void showNodes(const std::vector<KnFieldContainer*>& nodes);
    /// Shows a message below the list, until the next one comes or another node is selected; an
    /// empty text takes it away. For whoever pastes as well.
    void tell(const QString& message);
    /// Adds what can be done with the fields of the nodes that are shown.
    void addNodeEntriesTo(QMenu* menu);

Q_SIGNALS:
    /// A person wants to see a number of a field over time.
    void watchRequested(KnField* field, int component);

private:
    QLayout* makeHeading();
    void showHeading();
    void setPaused(bool paused);
    void showNode(KnFieldContainer* node);
    void fill(const std::vector<KnFieldContainer*>& nodes);
    void compare();
    void showField(KnField* field);
    void currentChanged(const QModelIndex& current);
    void showMenu(const QPoint& position);

    void showOtherFields();

    static void namesChanged(void* data, KnSensor* sensor);
    static void tablesChanged(void* data, KnSensor* sensor);

    FieldListModel m_model;
    KnNameSensor m_names { namesChanged, this }; // attached while a node is shown
    KnFieldTableSensor m_tables { tablesChanged, this }; // the same
    PauseAction* m_pauseAction; // child
    QAction* m_compareAction; // child; visible while there are two nodes
    QToolButton* m_compareButton = nullptr; // child; as visible as its action
    ElidedLabel* m_heading; // child
    FieldListView* m_list; // child
    FieldFilter* m_filter; // child of the list
    QLabel* m_message; // child; hidden while there is nothing to tell
    FieldListActions* m_actions; // child of the list
    bool m_following = false; // the list is being brought in line with the host's selection
    bool m_choosing = false; // a person is choosing a row
};
