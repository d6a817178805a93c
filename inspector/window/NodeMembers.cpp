// SPDX-License-Identifier: BSD-3-Clause
#include "NodeMembers.h"

#include "CrvServices.h"
#include "Messages.h"

#include <QMenu>

#include <algorithm>

namespace {

// More than a status bar shows, in characters.
constexpr qsizetype toldLength = 300;

/// As the text of a menu's entry, in which an ampersand would name a key.
QString entryText(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

QMenu* addSubmenu(QMenu* menu, const QString& title, const char* name)
{
    QMenu* const submenu = menu->addMenu(title);
    submenu->setObjectName(QLatin1String(name));
    return submenu;
}

QAction* addCheck(QMenu* menu, const QString& text, bool isChecked)
{
    QAction* const action = menu->addAction(text);
    action->setCheckable(true);
    action->setChecked(isChecked);
    return action;
}

} // namespace

void NodeMembers::addTo(QMenu* menu)
{
    const KnNodePtr node(CrvServices::getInstance()->getSelectedNode());
    const CrvNodeDetails* const details = node ? CrvNodeDetails::of(*node.get()) : nullptr;
    if (!details)
        return;
    menu->addSeparator();
    QMenu* const calls = addSubmenu(menu, tr("&Call"), "callMenu");
    const Members methods = details->methods(*node.get());
    calls->setEnabled(!methods.empty());
    fill(calls, methods,
        [this, node](QMenu* into, const QString& signature) { addCall(into, node, signature); });
    QMenu* const watches = addSubmenu(menu, tr("&Watch Signals"), "watchSignalsMenu");
    watches->setEnabled(!details->events(*node.get()).empty());
    fillWatchMenu(watches, node);
}

/// Those of the node's own class stand at the top, those of each class above it in a menu of their
/// own, so that the menus stay short.
void NodeMembers::fill(QMenu* menu, const Members& members, const MakeAction& makeAction)
{
    QMenu* into = menu;
    QString owner = members.empty() ? QString() : members.front().owner;
    for (const CrvNodeDetails::Member& member : members) {
        if (member.owner != owner) {
            owner = member.owner;
            into = menu->addMenu(entryText(owner));
        }
        makeAction(into, member.signature);
    }
}

// When the menu has gone: a method may open a dialog, or destroy what the menu stands on.
void NodeMembers::addCall(QMenu* menu, const KnNodePtr& node, const QString& signature)
{
    connect(
        menu->addAction(entryText(signature)), &QAction::triggered, this,
        [this, node, signature] { call(node, signature); }, Qt::QueuedConnection);
}

void NodeMembers::call(const KnNodePtr& node, const QString& signature)
{
    CrvNodeDetails* const details = CrvNodeDetails::of(*node.get());
    if (!details)
        return;
    const QString text = details->call(*node.get(), signature);
    say(text);
    Q_EMIT told(text.simplified().left(toldLength));
}

void NodeMembers::fillWatchMenu(QMenu* menu, const KnNodePtr& node)
{
    CrvNodeDetails* const details = CrvNodeDetails::of(*node.get());
    const Members events = details->events(*node.get());
    const auto isWatched = [details, node](const CrvNodeDetails::Member& event) {
        return details->isWatched(*node.get(), event.signature);
    };
    const bool isAll = std::all_of(events.begin(), events.end(), isWatched);
    QAction* const all = addCheck(menu, tr("&All Signals"), isAll && !events.empty());
    all->setObjectName(QStringLiteral("watchAllSignals"));
    connect(all, &QAction::triggered, this, [details, node, events](bool watched) {
        for (const CrvNodeDetails::Member& event : events)
            details->setWatched(*node.get(), event.signature, watched);
    });
    QAction* const stop = menu->addAction(tr("&Stop Watching All Objects"));
    stop->setObjectName(QStringLiteral("stopWatchingSignals"));
    connect(stop, &QAction::triggered, this, &CrvNodeDetails::endAllWatches);
    menu->addSeparator();
    fill(menu, events, [this, details, node](QMenu* into, const QString& signature) {
        QAction* const check
            = addCheck(into, entryText(signature), details->isWatched(*node.get(), signature));
        connect(check, &QAction::triggered, this, [details, node, signature](bool watched) {
            details->setWatched(*node.get(), signature, watched);
        });
    });
}
