// SPDX-License-Identifier: BSD-3-Clause
#include "ViewerWindow.h"

#include "CrvServices.h"
#include "KnTransform.h"
#include "SceneView.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int frameTime = 16; // milliseconds
constexpr int leastWidth = 500; // of a window beside this one, in pixels

/// The sky is dark, whatever the desktop looks like.
QPalette nightSky()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(8, 10, 22));
    palette.setColor(QPalette::Text, QColor(214, 222, 240));
    palette.setColor(QPalette::Highlight, QColor(255, 168, 40));
    return palette;
}

} // namespace

ViewerWindow::ViewerWindow()
    : m_view(new SceneView(this, SceneView::Updates::ByCall))
{
    setObjectName(u"viewerWindow"_s);
    setWindowTitle(tr("Orrery"));
    resize(960, 640);
    move(screen()->availableGeometry().topLeft()); // which leaves room beside it
    m_view->setPalette(nightSky());
    m_view->setRoots({ KnNodePtr(m_orrery.root()) });
    setCentralWidget(m_view);
    makeMenu();
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(frameTime);
    connect(&m_timer, &QTimer::timeout, this, &ViewerWindow::nextFrame);
    m_clock.start();
    m_timer.start();
}

void ViewerWindow::makeMenu()
{
    QMenu* const menu = menuBar()->addMenu(tr("&Scene"));
    menu->setObjectName(u"sceneMenu"_s);
    QAction* const run = menu->addAction(tr("&Move"), Qt::Key_Space);
    run->setObjectName(u"moveAction"_s);
    run->setCheckable(true);
    run->setChecked(true);
    connect(run, &QAction::toggled, this, &ViewerWindow::setRunning);
    QAction* const fit = menu->addAction(tr("&Show Everything"));
    fit->setObjectName(u"fitAction"_s);
    connect(fit, &QAction::triggered, m_view, &SceneView::fitAll);
    QAction* const inspect = menu->addAction(tr("&Inspector"), Qt::Key_F12);
    inspect->setObjectName(u"inspectorAction"_s);
    connect(inspect, &QAction::triggered, this, &ViewerWindow::showInspector);
    menu->addSeparator();
    QAction* const quit = menu->addAction(tr("&Quit"), QKeySequence::Quit);
    quit->setObjectName(u"quitAction"_s);
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

void ViewerWindow::showInspector()
{
    const bool isFirst = !m_inspector.window();
    m_inspector.show();
    if (isFirst && m_inspector.window())
        placeBeside(*m_inspector.window());
}

void ViewerWindow::placeBeside(QWidget& other) const
{
    const QRect room = screen()->availableGeometry();
    const int left = frameGeometry().right() + 1;
    // Window managers put the titles on a little later.
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int top = std::max(geometry().top(), room.top() + title);
    const int width = room.right() - left;
    if (width < leastWidth || !other.geometry().intersects(geometry()))
        return;
    other.resize(std::min(width, other.width()), other.height());
    other.move(left, top);
}

void ViewerWindow::setRunning(bool isRunning)
{
    if (isRunning) {
        m_clock.start();
    } else {
        m_time += double(m_clock.nsecsElapsed()) * 1e-9;
        m_clock.invalidate();
    }
}

void ViewerWindow::nextFrame()
{
    if (m_clock.isValid())
        m_orrery.moveTo(m_time + double(m_clock.nsecsElapsed()) * 1e-9);
    // Drawn also while the scene stands still: somebody may edit it.
    m_view->refresh();
    if (m_framesLeft > 0 && --m_framesLeft == 0)
        QApplication::quit();
}

bool ViewerWindow::takePicture(const QString& fileName)
{
    m_timer.stop();
    m_orrery.moveTo(6.0); // with a comet close to the sun
    m_view->refresh();
    QApplication::processEvents();
    if (!m_inspector.isOpen())
        return grab().save(fileName, "PNG");

    const auto* const system = static_cast<const KnGroup*>(m_orrery.find("Saturn system"));
    auto* const place = static_cast<KnTransform*>(system->getChild(1));
    CrvServices::getInstance()->selectField(&place->translation);
    QApplication::processEvents();
    QWidget& inspector = *m_inspector.window();
    // Without a display, its window has been fitted to a screen smaller than any real one.
    constexpr int inspectorWidth = 1280;
    inspector.resize(inspectorWidth, height());
    QApplication::processEvents();
    QPixmap both(width() + inspector.width(), height());
    QPainter painter(&both);
    painter.drawPixmap(0, 0, grab());
    painter.drawPixmap(width(), 0, inspector.grab());
    painter.end();
    return both.save(fileName, "PNG");
}
