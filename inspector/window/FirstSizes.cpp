// SPDX-License-Identifier: BSD-3-Clause
#include "FirstSizes.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace {

// In pixels.
constexpr QSize windowSize(1280, 800);
constexpr int sceneWidth = 320;
constexpr int historyHeight = 160;
constexpr int editorWidth = 400;
constexpr int leastSceneWidth = 110;
constexpr int leastFieldWidth = 190;
constexpr int leastEditorWidth = 360; // all editors fit in
constexpr int bottomHeight = 250;

// In a smaller window each gets this part of it, in hundredths.
constexpr int scenePart = 25;
constexpr int historyPart = 20;
constexpr int editorPart = 37;
constexpr int bottomPart = 34;
constexpr int mostOfAll = 53;
constexpr int editorHeight = 40; // where docks stand one above the other

int atMost(int size, int part, int whole) { return std::min(size, whole * part / 100); }

} // namespace

FirstSizes::FirstSizes(QMainWindow* window)
    : QObject(window)
    , m_window(window)
{
}

void FirstSizes::apply(QDockWidget* scene, QDockWidget* history)
{
    m_scene = scene;
    m_history = history;
    m_window->resize(windowSize);
    shareSpace();
}

void FirstSizes::fitScreen()
{
    shrinkToScreen();
    shareSpace();
}

void FirstSizes::keep()
{
    m_ended = true;
    shrinkToScreen();
}

void FirstSizes::shrinkToScreen()
{
    // The frame, which the window doesn't have yet, must fit in, too.
    const QStyle& style = *m_window->style();
    const int border = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize frame(2 * border, style.pixelMetric(QStyle::PM_TitleBarHeight) + border);
    const QSize room = m_window->screen()->availableGeometry().size() - frame;
    if (m_window->size().boundedTo(room) != m_window->size())
        m_window->resize(m_window->size().boundedTo(room));
}

void FirstSizes::shareSpace()
{
    const int height = m_window->height();
    const int below = atMost(historyHeight, historyPart, height);
    share({ m_scene }, { atMost(sceneWidth, scenePart, m_window->width()) }, Qt::Horizontal);
    share({ m_scene, m_history }, { height - below, below }, Qt::Vertical);
}

// A dock comes up as small as its content at that moment, and its editor comes later.
void FirstSizes::follow(QDockWidget* dock)
{
    connect(
        dock, &QDockWidget::visibilityChanged, this, [this, dock] { resize(dock); },
        Qt::SingleShotConnection);
}

void FirstSizes::resize(QDockWidget* dock)
{
    if (m_ended)
        return;
    if (m_window->dockWidgetArea(dock) == Qt::BottomDockWidgetArea) {
        share({ dock }, { atMost(bottomHeight, bottomPart, m_window->height()) }, Qt::Vertical);
        return;
    }
    const int width = m_window->width();
    const int editor = std::max(
        atMost(editorWidth, editorPart, width), atMost(leastEditorWidth, mostOfAll, width));
    // In a small window the scene gives the fields, which stand between the two, some of its width.
    const int scene
        = std::max(std::min(atMost(sceneWidth, scenePart, width), width - editor - leastFieldWidth),
            leastSceneWidth);
    share({ m_scene, dock }, { scene, editor }, Qt::Horizontal);
    share({ dock }, { m_window->height() * editorHeight / 100 }, Qt::Vertical);
}

// Docks that float have no share of the window.
void FirstSizes::share(
    const QList<QDockWidget*>& docks, const QList<int>& sizes, Qt::Orientation orientation)
{
    QList<QDockWidget*> sharing;
    QList<int> shares;
    for (qsizetype i = 0; i < docks.size(); ++i) {
        if (!docks.at(i)->isFloating()) {
            sharing += docks.at(i);
            shares += sizes.at(i);
        }
    }
    m_window->resizeDocks(sharing, shares, orientation);
}
