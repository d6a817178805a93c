// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvNodeDetails.h"

#include <QObject>

#include <functional>

class QMenu;

/// What the selected node can be told and what it tells, as two menus: methods to call, and signals
/// to watch. Only nodes of which a library knows more have them.
class NodeMembers : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Adds the menus for the node that is selected now.
    void addTo(QMenu* menu);

Q_SIGNALS:
    /// What a call gave, as a sentence; cut short; the whole is printed.
    void told(const QString& text);

private:
    using Members = std::vector<CrvNodeDetails::Member>;
    using MakeAction = std::function<void(QMenu* menu, const QString& signature)>;

    static void fill(QMenu* menu, const Members& members, const MakeAction& makeAction);
    void addCall(QMenu* menu, const KnNodePtr& node, const QString& signature);
    void fillWatchMenu(QMenu* menu, const KnNodePtr& node);
    void call(const KnNodePtr& node, const QString& signature);
};
