// SPDX-License-Identifier: BSD-3-Clause
#include "PanePlaces.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

#include <algorithm>
#include <utility>

bool PanePlaces::giveBack()
{
    if (!std::exchange(m_keeps, false))
        return false;
    const std::vector<Place> places = std::exchange(m_places, {});
    for (const Place& place : places) {
        if (!place.pane)
            continue;
        if (!place.isTaken)
            release(place.pane);
        else if (place.wasHidden)
            place.pane->hide();
    }
    return true;
}

bool PanePlaces::remove(QWidget* pane)
{
    if (!m_keeps) {
        release(pane);
        return true;
    }
    m_places.push_back({ pane, pane->isHidden(), false });
    pane->hide();
    return false;
}

bool PanePlaces::takeBack(const QWidget* pane)
{
    const auto place = std::find_if(m_places.begin(), m_places.end(),
        [pane](const Place& candidate) { return candidate.pane == pane; });
    if (place == m_places.end())
        return false;
    place->isTaken = true;
    return true;
}

void PanePlaces::release(QWidget* pane)
{
    if (auto* const dock = qobject_cast<QDockWidget*>(pane))
        m_window->removeDockWidget(dock);
    else if (auto* const toolBar = qobject_cast<QToolBar*>(pane))
        m_window->removeToolBar(toolBar);
    pane->setParent(nullptr);
}
