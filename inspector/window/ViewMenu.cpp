// SPDX-License-Identifier: BSD-3-Clause
#include "ViewMenu.h"

#include "CrvExtension.h"
#include "SceneText.h"

#include <QDockWidget>
#include <QToolBar>

#include <algorithm>

ViewMenu::ViewMenu(QWidget* parent)
    : QMenu(tr("&View"), parent)
    , m_end(addSeparator())
{
    setObjectName(QStringLiteral("viewMenu"));
    connect(this, &QMenu::aboutToShow, this, &ViewMenu::refresh);
}

void ViewMenu::addExtension(CrvExtension* extension)
{
    const QString name = toQString(extension->getName());
    auto* const action = new QAction(name, this);
    action->setObjectName(name);
    action->setCheckable(true);
    action->setStatusTip(toQString(extension->getDescription()));
    connect(action, &QAction::triggered, extension, [this, extension](bool checked) {
        if (checked)
            extension->show();
        else
            extension->hide();
        refresh();
    });
    insertAction(m_end, action);
    m_entries.push_back({ extension, action });
    refresh();
}

void ViewMenu::removeExtension(CrvExtension* extension)
{
    const auto it = std::find_if(m_entries.begin(), m_entries.end(),
        [extension](const Entry& entry) { return entry.extension == extension; });
    if (it == m_entries.end())
        return;
    // This very action may have been what made the extension go.
    it->action->deleteLater();
    removeAction(it->action);
    m_entries.erase(it);
}

void ViewMenu::addPane(QWidget* pane)
{
    m_panes.push_back(pane);
    const auto toggled = [this, pane] { paneToggled(pane); };
    if (auto* dock = qobject_cast<QDockWidget*>(pane))
        connect(dock, &QDockWidget::visibilityChanged, this, toggled);
    else if (auto* toolBar = qobject_cast<QToolBar*>(pane))
        connect(toolBar, &QToolBar::visibilityChanged, this, toggled);
    refresh();
}

void ViewMenu::removePane(QWidget* pane)
{
    disconnect(pane, nullptr, this, nullptr);
    std::erase(m_panes, pane);
}

void ViewMenu::showPane(const QWidget* pane)
{
    for (const Entry& entry : m_entries) {
        if (belongs(pane, entry.extension))
            entry.extension->show();
    }
    refresh();
}

void ViewMenu::takeOverPanes()
{
    for (QWidget* pane : std::vector<QWidget*>(m_panes))
        paneToggled(pane);
}

bool ViewMenu::belongs(const QWidget* pane, const CrvExtension* extension)
{
    return pane->windowTitle() == toQString(extension->getName());
}

// A pane that can't be seen because another tab or window is in front of it isn't hidden.
void ViewMenu::paneToggled(QWidget* pane)
{
    for (const Entry& entry : m_entries) {
        if (pane->isHidden() && entry.extension->isShown() && belongs(pane, entry.extension))
            entry.extension->hide();
    }
    refresh();
}

void ViewMenu::refresh()
{
    for (const Entry& entry : m_entries) {
        const auto pane = std::find_if(m_panes.begin(), m_panes.end(),
            [&entry](const QWidget* candidate) { return belongs(candidate, entry.extension); });
        entry.action->setChecked(
            pane == m_panes.end() ? entry.extension->isShown() : !(*pane)->isHidden());
    }
}
