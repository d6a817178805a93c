// SPDX-License-Identifier: BSD-3-Clause
#include "FilterKeys.h"

#include "SceneFilterModel.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeView>

FilterKeys::FilterKeys(QLineEdit* line, QTreeView* tree, const SceneFilterModel* filter)
    : QObject(line)
    , m_line(line)
    , m_tree(tree)
    , m_filter(filter)
{
    m_line->installEventFilter(this);
}

bool FilterKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goToMatch();
        return true;
    case Qt::Key_Escape:
        if (m_line->text().isEmpty())
            m_tree->setFocus(Qt::OtherFocusReason);
        else
            m_line->clear();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

// Without a filter all rows match, and the person stays with the one that is selected.
void FilterKeys::goToMatch()
{
    QModelIndex index = m_tree->model()->index(0, 0);
    if (m_filter->isFiltering()) {
        while (index.isValid() && !m_filter->isMatch(index))
            index = m_tree->indexBelow(index);
    } else if (m_tree->currentIndex().isValid()) {
        index = m_tree->currentIndex();
    }
    if (!index.isValid())
        return;
    m_tree->setCurrentIndex(index);
    m_tree->setFocus(Qt::OtherFocusReason);
}
