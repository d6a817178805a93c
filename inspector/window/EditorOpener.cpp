// SPDX-License-Identifier: BSD-3-Clause
#include "EditorOpener.h"

#include "CrvServices.h"
#include "EditorPanes.h"
#include "FieldListModel.h"
#include "KnField.h"
#include "PaneWalk.h"
#include "ViewMenu.h"

#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QTreeView>

#include <algorithm>

EditorOpener::EditorOpener(QTreeView* list, ViewMenu* viewMenu)
    : QObject(list)
    , m_list(list)
    , m_viewMenu(viewMenu)
{
    m_list->installEventFilter(this);
    connect(m_list, &QTreeView::clicked, this, &EditorOpener::open);
    connect(qApp, &QApplication::focusChanged, this, &EditorOpener::followFocus);
}

void EditorOpener::addDock(QDockWidget* dock)
{
    dock->installEventFilter(this);
    m_docks.removeAll(QPointer<QWidget>());
    m_docks.removeAll(dock);
    m_docks.append(dock);
}

// A table keeps the keys that it has no use for, so that they don't get to its dock.
void EditorOpener::followFocus(QWidget* former, QWidget* focus)
{
    if (qobject_cast<QAbstractItemView*>(former) && former != m_list)
        former->removeEventFilter(this);
    const bool isInDock = std::any_of(m_docks.begin(), m_docks.end(),
        [focus](const QPointer<QWidget>& dock) { return dock && dock->isAncestorOf(focus); });
    if (qobject_cast<QAbstractItemView*>(focus) && isInDock)
        focus->installEventFilter(this);
}

bool EditorOpener::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (watched == m_list) {
        // Return on a link leads to another node.
        const bool isReturn = (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
            && !m_list->currentIndex().data(FieldListModel::LinkRole).toBool();
        QDockWidget* const dock
            = isReturn && !key->modifiers().testFlag(Qt::ControlModifier) ? open() : nullptr;
        return dock && dock->widget() && PaneWalk::enter(dock->widget());
    }
    const bool isLeft = key->matches(QKeySequence::Cancel)
        && (m_docks.contains(watched) || watched == QApplication::focusWidget());
    if (!isLeft)
        return QObject::eventFilter(watched, event);
    m_list->activateWindow();
    m_list->setFocus(Qt::OtherFocusReason);
    return true;
}

/// Null if there is no editor for what is selected.
QDockWidget* EditorOpener::open()
{
    const KnField* const field = CrvServices::getInstance()->getSelectedField();
    QDockWidget* const dock = field ? EditorPanes::dockFor(field) : nullptr;
    if (!dock)
        return nullptr;
    if (dock->isHidden())
        m_viewMenu->showPane(dock);
    dock->raise();
    return dock;
}
