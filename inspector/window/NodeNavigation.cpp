// SPDX-License-Identifier: BSD-3-Clause
#include "NodeNavigation.h"

#include "CrvServices.h"
#include "MatchStep.h"
#include "NodePath.h"
#include "ScenePanel.h"
#include "SelectionHistory.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

NodeNavigation::NodeNavigation(ScenePanel* panel, NodePath* path)
    : QObject(panel)
    , m_panel(panel)
    , m_path(path)
    , m_history(new SelectionHistory(this))
    , m_next(addAction(tr("Find Ne&xt"), QStringLiteral("findNextAction"), Qt::Key_F3))
    , m_previous(addAction(tr("Find Pre&vious"), QStringLiteral("findPreviousAction"),
          QKeySequence(Qt::SHIFT | Qt::Key_F3)))
    , m_back(addAction(
          tr("&Back"), QStringLiteral("backAction"), QKeySequence(Qt::ALT | Qt::Key_Left)))
    , m_forward(addAction(
          tr("F&orward"), QStringLiteral("forwardAction"), QKeySequence(Qt::ALT | Qt::Key_Right)))
{
    connect(m_next, &QAction::triggered, this, [this] { step(true); });
    connect(m_previous, &QAction::triggered, this, [this] { step(false); });
    connect(m_back, &QAction::triggered, m_history, &SelectionHistory::goBack);
    connect(m_forward, &QAction::triggered, m_history, &SelectionHistory::goForward);
    connect(m_path, &NodePath::chosen, this, &NodeNavigation::choose);
}

QAction* NodeNavigation::addAction(
    const QString& text, const QString& name, const QKeySequence& key)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    return action;
}

void NodeNavigation::fillMenu(QMenu* menu)
{
    menu->addActions({ m_next, m_previous, m_back, m_forward });
}

void NodeNavigation::setFilterText(const QString& text)
{
    const NodeQuery query(text);
    if (query.errorText().isEmpty() && !query.isEmpty())
        m_text = text;
}

// Looks through the graph itself, which a tree without a filter hasn't.
void NodeNavigation::step(bool forward)
{
    if (m_text.isEmpty())
        return;
    const std::vector<KnNodePtr>& roots = CrvServices::getInstance()->getRoots();
    NodeFilter filter([](void*, KnSensor*) {}, nullptr);
    filter.begin(NodeQuery(m_text), roots);
    filter.work(QDeadlineTimer::Forever);
    NodeRows from;
    for (QModelIndex index = m_panel->place(); index.isValid(); index = index.parent())
        from.insert(from.begin(), index.row());
    const NodeRows rows = nextMatch(filter, roots, from, forward);
    if (!rows.empty())
        m_panel->goTo(rows);
}

void NodeNavigation::showPath()
{
    QStringList names;
    for (QModelIndex index = m_panel->place(); index.isValid(); index = index.parent())
        names.prepend(index.data().toString());
    m_path->setNames(names);
}

void NodeNavigation::choose(int depth)
{
    NodeRows rows;
    for (QModelIndex index = m_panel->place(); index.isValid(); index = index.parent())
        rows.insert(rows.begin(), index.row());
    rows.resize(std::min(rows.size(), static_cast<std::size_t>(depth) + 1));
    m_panel->goTo(rows);
}
