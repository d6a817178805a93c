// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SceneFilterModel.h"
#include "SceneModel.h"

#include <QWidget>

class QLineEdit;
class PaneTree;

/// The scene as a tree below a filter line. A person's choice becomes the host's selection, and
/// the host's selection is shown in the tree.
class ScenePanel : public QWidget {
    Q_OBJECT
public:
    explicit ScenePanel(QWidget* parent = nullptr);

    void focusFilter();

private:
    void showRoots();
    void setFilterText(const QString& text);
    void currentChanged(const QModelIndex& current);
    void showSelection();

    SceneModel m_model;
    SceneFilterModel m_filter;
    QLineEdit* m_filterEdit; // child
    PaneTree* m_tree; // child
    bool m_following = false; // the tree is being brought in line with the host's selection
};
