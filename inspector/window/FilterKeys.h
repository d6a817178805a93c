// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class QLineEdit;
class QTreeView;
class SceneFilterModel;

/// The keys of a filter line above a tree: Down and Return go to the first row that matches, and
/// choose it; Esc clears the line, and leaves one that is empty.
class FilterKeys : public QObject {
    Q_OBJECT
public:
    /// A child of the line. The others outlive it.
    FilterKeys(QLineEdit* line, QTreeView* tree, const SceneFilterModel* filter);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void goToMatch();

    QLineEdit* const m_line; // the parent
    QTreeView* const m_tree;
    const SceneFilterModel* const m_filter;
};
