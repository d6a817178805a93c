// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspector.h"

#include "CallQueue.h"
#include "CrvShell.h"
#include "EventFiber.h"
#include "GuestApplication.h"
#include "InspectorSession.h"
#include "KnNodePtr.h"
#include "MainWindow.h"
#include "Messages.h"

#include <QApplication>
#include <QThread>

#include <algorithm>
#include <utility>

namespace {

CrvInspector* current = nullptr; // not owned

void refuse(const char* reason)
{
    complainToTerminal(QStringLiteral("CrvInspector: ") + QLatin1String(reason));
}

} // namespace

struct CrvInspector::Private {
    std::vector<KnNodePtr> roots;

    InspectorSession* makeSession() const;
    void rootsChanged() const;
};

/// Null, with a complaint, if nothing can be shown here.
InspectorSession* CrvInspector::Private::makeSession() const
{
    if (InspectorSession* const session = InspectorSession::getInstance())
        return session;
    const auto* const application = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!application)
        refuse("there is no QApplication; makeApplication() makes one");
    else if (application->thread() != QThread::currentThread())
        refuse("this is not the thread of the user interface");
    else if (CrvShell::getInstance())
        refuse("the process has another window for extensions");
    else
        return InspectorSession::make();
    return nullptr;
}

void CrvInspector::Private::rootsChanged() const
{
    if (InspectorSession* const session = InspectorSession::getInstance())
        session->showRoots(roots);
}

CrvInspector::CrvInspector()
{
    if (current) {
        refuse("there is one already; this one does nothing");
        return;
    }
    current = this;
    d = std::make_unique<Private>();
}

CrvInspector::CrvInspector(KnFieldContainer* root)
    : CrvInspector()
{
    addRoot(root);
}

CrvInspector::~CrvInspector()
{
    if (!d)
        return;
    InspectorSession::end();
    current = nullptr;
}

void CrvInspector::setRoot(KnFieldContainer* root) { setRoots({ root }); }

void CrvInspector::setRoots(const std::vector<KnFieldContainer*>& roots)
{
    if (!d)
        return;
    std::vector<KnNodePtr> taken;
    for (KnFieldContainer* root : roots) {
        const auto isRoot = [root](const KnNodePtr& other) { return other.get() == root; };
        if (root && std::none_of(taken.begin(), taken.end(), isRoot))
            taken.emplace_back(root);
    }
    std::swap(d->roots, taken); // the former ones live until nobody shows them
    d->rootsChanged();
}

void CrvInspector::addRoot(KnFieldContainer* root)
{
    if (!d)
        return;
    std::vector<KnFieldContainer*> roots;
    for (const KnNodePtr& other : d->roots)
        roots.push_back(other.get());
    roots.push_back(root);
    setRoots(roots);
}

void CrvInspector::removeRoot(KnFieldContainer* root)
{
    if (!d)
        return;
    std::vector<KnFieldContainer*> roots;
    for (const KnNodePtr& other : d->roots) {
        if (other.get() != root)
            roots.push_back(other.get());
    }
    setRoots(roots);
}

void CrvInspector::show()
{
    if (!d)
        return;
    CallQueue::getInstance().serve();
    if (InspectorSession* const session = d->makeSession())
        session->open(d->roots);
}

void CrvInspector::close()
{
    if (d && InspectorSession::getInstance())
        InspectorSession::getInstance()->close();
}

bool CrvInspector::isOpen() const
{
    return d && InspectorSession::getInstance() && InspectorSession::getInstance()->isOpen();
}

bool CrvInspector::loadPlugin(const std::string& file, std::string* error)
{
    QString reason = QStringLiteral("the inspector can't be shown");
    InspectorSession* const session = d ? d->makeSession() : nullptr;
    const bool loaded = session && session->loadPlugin(QString::fromStdString(file), &reason);
    if (!loaded && error)
        *error = reason.toStdString();
    return loaded;
}

QWidget* CrvInspector::window() const
{
    InspectorSession* const session = d ? InspectorSession::getInstance() : nullptr;
    return session ? &session->window() : nullptr;
}

void CrvInspector::makeApplication() { GuestApplication::make(); }

void CrvInspector::poll(int milliseconds)
{
    CallQueue::getInstance().serve();
    EventFiber::poll(milliseconds);
}

void CrvInspector::call(std::function<void()> function)
{
    CallQueue::getInstance().call(std::move(function));
}
