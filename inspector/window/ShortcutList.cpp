// SPDX-License-Identifier: BSD-3-Clause
#include "ShortcutList.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { KeysColumn, TextColumn };

struct PaneKeys {
    const char* pane; // empty for the same as before
    const char* keys;
    const char* text;
};

constexpr PaneKeys paneKeys[] = {
    { QT_TRANSLATE_NOOP("ShortcutList", "Everywhere"), "Tab",
        QT_TRANSLATE_NOOP("ShortcutList", "the next input: scene, fields, editor, other panes") },
    { QT_TRANSLATE_NOOP("ShortcutList", "Filter of the scene"), "Down, Return",
        QT_TRANSLATE_NOOP("ShortcutList", "to the first match") },
    { "", "Esc", QT_TRANSLATE_NOOP("ShortcutList", "clear the filter; then on to the tree") },
    { QT_TRANSLATE_NOOP("ShortcutList", "List of fields"), "Return",
        QT_TRANSLATE_NOOP("ShortcutList", "into the editor of the field") },
    { QT_TRANSLATE_NOOP("ShortcutList", "Editor"), "Return",
        QT_TRANSLATE_NOOP("ShortcutList", "write what was typed") },
    { "", "Esc",
        QT_TRANSLATE_NOOP("ShortcutList", "drop what was typed; then back to the list of fields") },
    { QT_TRANSLATE_NOOP("ShortcutList", "Table of an array"), "+",
        QT_TRANSLATE_NOOP("ShortcutList", "add a row") },
    { "", "-, Del", QT_TRANSLATE_NOOP("ShortcutList", "delete the current row") },
    { QT_TRANSLATE_NOOP("ShortcutList", "Curves"), "Left, Right",
        QT_TRANSLATE_NOOP("ShortcutList", "earlier, later") },
    { "", "+, -", QT_TRANSLATE_NOOP("ShortcutList", "closer, farther") },
    { "", "Home, End", QT_TRANSLATE_NOOP("ShortcutList", "to the first sample, back to live") },
};

QString plainText(const QAction& action)
{
    QString text = action.text();
    return text.remove(QLatin1Char('&')).remove(QStringLiteral("..."));
}

} // namespace

ShortcutList::ShortcutList(const QMenuBar& menus, QWidget* parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("shortcutList"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Keyboard Shortcuts"));
    m_list->setObjectName(QStringLiteral("shortcuts"));
    m_list->setAccessibleName(windowTitle());
    m_list->setHeaderLabels({ tr("Keys"), tr("What they do") });
    m_list->setRootIsDecorated(false);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    for (const QAction* action : menus.actions()) {
        if (action->menu())
            addMenu(*action->menu());
    }
    addPanes();
    m_list->expandAll();
    m_list->resizeColumnToContents(KeysColumn);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    const int character = fontMetrics().averageCharWidth();
    resize(QSize(character * 110, character * 95).boundedTo(parent->size()));
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_list->setFocus();
}

void ShortcutList::addMenu(const QMenu& menu)
{
    QTreeWidgetItem* group = nullptr;
    for (const QAction* action : menu.actions()) {
        if (action->menu())
            addMenu(*action->menu());
        if (action->shortcuts().isEmpty())
            continue;
        if (!group)
            group = addGroup(plainText(*menu.menuAction()));
        addKeys(group, QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText),
            plainText(*action));
    }
}

void ShortcutList::addPanes()
{
    QTreeWidgetItem* group = nullptr;
    for (const PaneKeys& each : paneKeys) {
        if (*each.pane)
            group = addGroup(tr(each.pane));
        addKeys(group, QLatin1String(each.keys), tr(each.text));
    }
}

QTreeWidgetItem* ShortcutList::addGroup(const QString& title)
{
    auto* const group = new QTreeWidgetItem(m_list, { title });
    group->setFirstColumnSpanned(true);
    QFont font = m_list->font();
    font.setBold(true);
    group->setFont(KeysColumn, font);
    return group;
}

void ShortcutList::addKeys(QTreeWidgetItem* group, const QString& keys, const QString& text)
{
    new QTreeWidgetItem(group, { keys, text });
}
