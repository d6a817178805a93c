// SPDX-License-Identifier: BSD-3-Clause
#include "WatchMenu.h"

#include "FieldNumbers.h"
#include "KnField.h"
#include "KnNodePtr.h"

#include <QCoreApplication>
#include <QMenu>

void addWatchEntries(
    QMenu& menu, KnField& field, const std::function<void(KnField& field, int component)>& watch)
{
    const auto addEntry = [&](QMenu& place, const QString& text, int first, int end) {
        QAction* const action = place.addAction(text);
        // The host may drop the node while the menu is open.
        QObject::connect(action, &QAction::triggered, &place,
            [node = KnNodePtr(field.getContainer()), &field, watch, first, end] {
                for (int component = first; component < end; ++component)
                    watch(field, component);
            });
        return action;
    };

    const QString title = QCoreApplication::translate("WatchMenu", "&Watch");
    const FieldNumbers* const numbers = FieldNumbers::of(field);
    const int count = numbers ? numbers->count : 0;
    if (count <= 1) {
        const QString component = numbers ? numbers->name(0) : QString();
        const QString text = component.isEmpty() ? title : title + QLatin1Char(' ') + component;
        QAction* const action = addEntry(menu, text, 0, count);
        action->setObjectName(QStringLiteral("watchAction"));
        action->setEnabled(count == 1);
        return;
    }
    QMenu* const components = menu.addMenu(title);
    components->setObjectName(QStringLiteral("watchMenu"));
    addEntry(*components, QCoreApplication::translate("WatchMenu", "&All"), 0, count);
    components->addSeparator();
    for (int i = 0; i < count; ++i)
        addEntry(*components, numbers->name(i), i, i + 1);
}
