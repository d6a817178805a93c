// SPDX-License-Identifier: BSD-3-Clause
#include "ModalExemption.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <algorithm>

ModalExemption::ModalExemption(QWidget* mainWindow)
    : m_mainWindow(mainWindow)
{
    update(); // a modal window may be up already
}

ModalExemption::~ModalExemption() { giveBack(); }

void ModalExemption::windowBlocked()
{
    if (!m_updating)
        update();
}

void ModalExemption::windowPolished(QWidget* window)
{
    if (!window->parentWidget() || window->windowModality() != Qt::ApplicationModal)
        return;
    // From one modality to another Qt leaves the window behind the widget as it is.
    window->setWindowModality(Qt::NonModal);
    window->setWindowModality(Qt::WindowModal);
}

void ModalExemption::update()
{
    m_updating = true;
    giveBack();
    QWindow* const blocker = QGuiApplication::modalWindow();
    const std::vector<QWindow*> own = ownWindows();
    const bool isOwn = std::find(own.begin(), own.end(), blocker) != own.end();
    if (blocker && !isOwn && !own.empty()) {
        // A dialog of the inspector's goes on blocking what stands behind it.
        const auto dialog = std::find_if(own.begin(), own.end(),
            [](const QWindow* window) { return window->modality() != Qt::NonModal; });
        follow(blocker);
        if (dialog != own.end())
            follow(*dialog);
        lend(dialog != own.end() ? *dialog : m_mainWindow->windowHandle(), blocker);
        // Qt looks anew at a window that is told what it belongs to.
        for (QWindow* const window : own) {
            if (window != m_lent.back().window && window->transientParent())
                window->setTransientParent(window->transientParent());
        }
    }
    m_updating = false;
}

void ModalExemption::lend(QWindow* window, QWindow* blocker)
{
    m_lent.push_back({ window, window->transientParent() });
    window->setTransientParent(blocker);
}

void ModalExemption::giveBack()
{
    for (const Lent& lent : m_lent) {
        if (lent.window)
            lent.window->setTransientParent(lent.parent);
    }
    m_lent.clear();
}

/// Modality ends behind the announcement that a window is hidden.
void ModalExemption::follow(QWindow* window)
{
    connect(window, &QWindow::visibleChanged, this, &ModalExemption::update,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
}

std::vector<QWindow*> ModalExemption::ownWindows() const
{
    std::vector<QWindow*> windows;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget* const widget : widgets) {
        const QWidget* above = widget;
        while (above && above != m_mainWindow)
            above = above->parentWidget();
        if (above && widget->isVisible() && widget->windowHandle())
            windows.push_back(widget->windowHandle());
    }
    return windows;
}
