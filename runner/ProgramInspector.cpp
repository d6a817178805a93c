// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramInspector.h"

#include "ApplicationFilters.h"
#include "CrvObjects.h"
#include "CrvServices.h"
#include "KnNodePtr.h"
#include "LooseObjects.h"
#include "OwnTexts.h"
#include "ProgramRoots.h"
#include "ProgramSession.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <vector>

namespace {

constexpr int newsInterval = 300; // milliseconds

bool isWindow(const QObject* object)
{
    return object->isWidgetType() && static_cast<const QWidget*>(object)->isWindow();
}

} // namespace

ProgramInspector::ProgramInspector(const ProgramSession& session)
    : m_loose(new LooseObjects)
    , m_looseNode(m_loose)
{
    const ObjectRegister::Pause pause;
    // What the first `show` makes is the inspector's, also the editors that no dock shows as yet.
    QObject* const application = QCoreApplication::instance();
    const QWidgetList before = QApplication::topLevelWidgets();
    const QObjectList children = application->children();
    ProgramSession::loadFiles();
    OwnTexts::findFiles();
    session.prepareWindow();
    m_inspector.show();
    for (QObject* const child : application->children()) {
        // Qt keeps the gestures of all windows together, those of the inspector among them.
        if (!children.contains(child) || child->inherits("QGestureManager"))
            crvHideObject(child);
    }
    QWidget* const window = m_inspector.window();
    if (!window)
        return; // it has said why
    m_own.take(window, before);
    ApplicationFilters::installOwn(this);
    connect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, this,
        [this](const KnFieldContainer* node) { m_outline.surround(crvNodeObject(node)); });
    windowOpened();
    if (!session.endsProgram())
        session.select();
}

ProgramInspector::~ProgramInspector()
{
    windowClosed();
    QCoreApplication::instance()->removeEventFilter(this);
    ObjectRegister::stop();
}

bool ProgramInspector::eventFilter(QObject* watched, QEvent* event)
{
    if (!isOpen() && event->type() != QEvent::MouseButtonPress)
        return false;
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::ParentChange:
        if (watched->isWidgetType() || watched->isWindowType())
            updateRootsSoon();
        break;
    case QEvent::WindowBlocked:
        if (watched->isWindowType() && m_own.contains(watched))
            m_exemption->windowBlocked();
        break;
    case QEvent::Polish:
        if (isWindow(watched) && m_own.contains(watched))
            m_exemption->windowPolished(static_cast<QWidget*>(watched));
        break;
    case QEvent::WindowActivate:
        // Somebody turns to the inspector.
        if (watched == m_inspector.window())
            lookAtLoose(ObjectRegister::Look::All);
        break;
    case QEvent::Hide:
        if (watched == m_inspector.window() && !m_inspector.isOpen())
            windowClosed();
        break;
    case QEvent::MouseButtonPress: {
        const auto modifiers = static_cast<const QMouseEvent*>(event)->modifiers();
        if (!watched->isWidgetType() || modifiers != (Qt::ControlModifier | Qt::ShiftModifier)
            || m_own.contains(watched))
            break;
        select(watched);
        return true;
    }
    default:
        return m_outline.concerns(event);
    }
    return false;
}

void ProgramInspector::windowOpened()
{
    m_exemption = std::make_unique<ModalExemption>(m_inspector.window());
    ApplicationFilters::leaveOut(&m_own);
    ObjectRegister::tell(this);
    m_loose->update(ObjectRegister::Look::All);
    m_roots.clear();
    updateRoots();
}

/// Only the click is waited for that opens the window again, and objects are noted until then.
void ProgramInspector::windowClosed()
{
    ApplicationFilters::leaveOut(nullptr);
    ObjectRegister::tell(nullptr);
    m_news.stop();
    m_exemption.reset();
    m_outline.surround(nullptr);
}

/// Objects come and go in crowds.
void ProgramInspector::customEvent(QEvent*) { m_news.start(newsInterval, this); }

void ProgramInspector::timerEvent(QTimerEvent*)
{
    m_news.stop();
    lookAtLoose(ObjectRegister::Look::News);
}

void ProgramInspector::lookAtLoose(ObjectRegister::Look look)
{
    const ObjectRegister::Pause pause;
    const bool wasEmpty = m_loose->isEmpty();
    m_loose->update(look);
    if (wasEmpty != m_loose->isEmpty()) {
        m_roots.clear();
        updateRoots();
    }
}

void ProgramInspector::rootDestroyed()
{
    m_roots.clear(); // another window may come to live there
    updateRootsSoon();
}

/// A window that is being shown may still be without its parent.
void ProgramInspector::updateRootsSoon()
{
    if (m_updateWaits)
        return;
    m_updateWaits = true;
    QMetaObject::invokeMethod(this, &ProgramInspector::updateRoots, Qt::QueuedConnection);
}

void ProgramInspector::updateRoots()
{
    m_updateWaits = false;
    const QObjectList roots = programRoots(m_own);
    if (roots == m_roots)
        return;
    for (QObject* const root : roots) {
        connect(root, &QObject::destroyed, this, &ProgramInspector::rootDestroyed,
            Qt::UniqueConnection);
    }
    m_roots = roots;
    const std::vector<KnNodePtr> held = rootNodes(roots, m_loose);
    std::vector<KnFieldContainer*> nodes;
    nodes.reserve(held.size());
    for (const KnNodePtr& node : held)
        nodes.push_back(node.get());
    m_inspector.setRoots(nodes);
}

void ProgramInspector::select(QObject* object)
{
    m_inspector.show();
    if (isOpen())
        updateRoots();
    else
        windowOpened();
    CrvServices::getInstance()->selectNode(crvPlacedNode(object).get());
}
