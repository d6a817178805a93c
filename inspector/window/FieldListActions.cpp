// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListActions.h"

#include "CrvNodeDetails.h"
#include "CrvServices.h"
#include "FieldClipboard.h"
#include "FieldListModel.h"
#include "FieldStep.h"
#include "KnMField.h"
#include "NodeChoice.h"
#include "SceneText.h"

#include <QAction>
#include <QMenu>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

FieldListActions::FieldListActions(QTreeView* list, FieldListModel* model)
    : QObject(list)
    , m_list(list)
    , m_model(model)
    , m_copy(addAction("copyFields", tr("&Copy"), QKeySequence::Copy, &FieldListActions::copy))
    , m_copyAll(addAction("copyAllFields", tr("Copy &All Fields"),
          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), &FieldListActions::copyAll))
    , m_paste(addAction("pasteFields", tr("&Paste"), QKeySequence::Paste, &FieldListActions::paste))
    , m_reset(addAction(
          "resetFields", tr("&Reset to Default"), QKeySequence::Delete, &FieldListActions::reset))
    , m_goTo(new QAction(tr("&Go to Object"), this))
{
    m_goTo->setObjectName(QStringLiteral("goToObject"));
    connect(m_goTo, &QAction::triggered, this, [this] { follow(m_list->currentIndex()); });
}

QAction* FieldListActions::addAction(
    const char* name, const QString& text, const QKeySequence& key, void (FieldListActions::*act)())
{
    auto* const action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    // A line that is open in the list has these keys to itself.
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, act);
    m_list->addAction(action);
    return action;
}

void FieldListActions::addTo(QMenu& menu)
{
    m_copy->setEnabled(m_list->selectionModel()->hasSelection());
    m_copyAll->setEnabled(m_model->node());
    m_paste->setEnabled(m_model->node() && canPasteFields());
    m_reset->setEnabled(canReset());
    if (m_list->currentIndex().data(FieldListModel::LinkRole).toBool()) {
        menu.addAction(m_goTo);
        menu.addSeparator();
    }
    menu.addActions({ m_copy, m_copyAll, m_paste });
    addRowsMenu(menu);
    menu.addSeparator();
    menu.addAction(m_reset);
    // The keys work at any time.
    connect(&menu, &QMenu::aboutToHide, this, [this] {
        for (QAction* action : { m_copy, m_copyAll, m_paste, m_reset })
            action->setEnabled(true);
    });
}

void FieldListActions::addNodeEntriesTo(QMenu& menu)
{
    menu.addSeparator();
    QAction* const copy = menu.addAction(tr("Copy All &Fields"), this, &FieldListActions::copyAll);
    copy->setObjectName(QStringLiteral("copyNodeFields"));
    copy->setEnabled(m_model->node());
    QAction* const paste = menu.addAction(tr("&Paste Fields"), this, [this] { pasteOnto({}); });
    paste->setObjectName(QStringLiteral("pasteNodeFields"));
    paste->setEnabled(m_model->node() && canPasteFields());
}

std::vector<KnField*> FieldListActions::chosenFields(Of which) const
{
    QModelIndexList rows = m_list->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    std::vector<KnField*> fields;
    for (const QModelIndex& row : std::as_const(rows)) {
        if (m_list->isRowHidden(row.row(), QModelIndex()))
            continue;
        const std::vector<KnField*> all = m_model->fields(row);
        fields.insert(
            fields.end(), all.begin(), which == Of::AllNodes ? all.end() : all.begin() + 1);
    }
    return fields;
}

void FieldListActions::copy()
{
    const std::vector<KnField*> fields = chosenFields(Of::SelectedNode);
    if (!fields.empty())
        copyFields(fields);
    Q_EMIT told(QString());
}

void FieldListActions::copyAll()
{
    if (m_model->node())
        copyAllFields(*m_model->node());
    Q_EMIT told(QString());
}

void FieldListActions::paste() { pasteOnto(chosenFields(Of::AllNodes)); }

void FieldListActions::pasteOnto(const std::vector<KnField*>& chosen)
{
    if (m_model->node())
        Q_EMIT told(pasteFields(m_model->editedNodes(), chosen));
}

// To paste onto an array in the list replaces it, as onto any other field. These leave the other
// rows alone.
void FieldListActions::addRowsMenu(QMenu& menu)
{
    auto* const array = dynamic_cast<KnMField*>(m_model->field(m_list->currentIndex()));
    if (!array || m_model->editedNodes().size() > 1)
        return;
    QMenu* const places = menu.addMenu(tr("Paste R&ows"));
    places->setObjectName(QStringLiteral("pasteRows"));
    places->setEnabled(canPasteFields() && !array->isReadOnly());
    const auto addPlace = [&](const QString& text, int row, FieldStep::Rows how) {
        // The host may drop the node while the menu is open.
        connect(places->addAction(text), &QAction::triggered, this,
            [this, node = KnNodePtr(array->getContainer()), array, row, how] {
                Q_EMIT told(pasteFieldRows(*array, std::min(row, array->getNum()), how));
            });
    };
    const int row = chosenRow(*array);
    if (row >= 0 && row < array->getNum()) {
        // The array's editor counts them from 1.
        addPlace(tr("&Insert Before Row %1").arg(row + 1), row, FieldStep::Rows::Insert);
        addPlace(tr("&Overwrite From Row %1").arg(row + 1), row, FieldStep::Rows::Overwrite);
    }
    addPlace(tr("Insert at the &Beginning"), 0, FieldStep::Rows::Insert);
    addPlace(tr("Append at the &End"), array->getNum(), FieldStep::Rows::Insert);
}

/// The current row in the array's editor, which other extensions bring; -1 if there is none.
int FieldListActions::chosenRow(const KnField& array) const
{
    if (CrvServices::getInstance()->getSelectedField() != &array)
        return -1;
    const auto tables = m_list->window()->findChildren<QTableView*>(QStringLiteral("m_table"));
    for (const QTableView* table : tables) {
        if (table->isVisible() && table->currentIndex().isValid())
            return table->currentIndex().row();
    }
    return -1;
}

bool FieldListActions::canReset() const
{
    const std::vector<KnField*> chosen = chosenFields(Of::AllNodes);
    return std::any_of(chosen.begin(), chosen.end(), [this](const KnField* field) {
        return !field->isReadOnly() && (field->hasOwnDefault() || m_model->defaults().of(*field));
    });
}

void FieldListActions::follow(const QModelIndex& index)
{
    const KnField* const field = m_model->field(index);
    const CrvNodeDetails* const details = field ? CrvNodeDetails::of(*field) : nullptr;
    const KnNodePtr node = details ? details->linkedNode(*field) : KnNodePtr();
    if (node)
        NodeChoice::choose(node.get());
    else if (field)
        Q_EMIT told(tr("%1 leads to no object any more").arg(fieldName(*field)));
}

void FieldListActions::reset()
{
    FieldStep step;
    QString message;
    KbString text;
    for (KnField* field : chosenFields(Of::AllNodes)) {
        // A read-only one is left out and named, whatever its default.
        if (field->hasOwnDefault() || field->isReadOnly()) {
            if (!step.reset(*field))
                message = step.refusal();
            continue;
        }
        const KnField* const fresh = m_model->defaults().of(*field);
        if (!fresh) {
            message = tr("Nothing is known of the default of %1").arg(fieldName(*field));
            continue;
        }
        fresh->get(text);
        if (!step.setText(*field, text))
            message = step.refusal();
    }
    if (!step.readOnlyNote().isEmpty())
        message = step.readOnlyNote();
    step.finish(
        tr("Reset %1 fields of %2").arg(step.count()).arg(nodesLabel(m_model->editedNodes())));
    Q_EMIT told(message);
}
