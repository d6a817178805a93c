// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldListModel.h"

#include <QWidget>

class QLabel;
class PaneTree;

/// The fields of the selected node below a line that names it. A person's choice becomes the host's
/// selected field, and the host's selected field is shown in the list.
class FieldPanel : public QWidget {
    Q_OBJECT
public:
    explicit FieldPanel(QWidget* parent = nullptr);

Q_SIGNALS:
    /// A person wants to see a number of a field over time.
    void watchRequested(KnField* field, int component);

private:
    void showNode(KnFieldContainer* node);
    void showField(KnField* field);
    void currentChanged(const QModelIndex& current);
    void showMenu(const QPoint& position);

    FieldListModel m_model;
    QLabel* m_heading; // child
    PaneTree* m_list; // child
    bool m_following = false; // the list is being brought in line with the host's selection
};
