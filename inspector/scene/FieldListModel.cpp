// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListModel.h"

#include "FieldStep.h"
#include "FieldTyping.h"
#include "KnField.h"
#include "SceneText.h"
#include "SharedFields.h"

#include <QFont>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace {

// In milliseconds. Between two steps of the fading nothing is painted, so that a field that changes
// all the time is painted no more than 30 times a second; a timer may be a twentieth early.
constexpr qint64 lightTime = 700;
constexpr int lightStep = 36;

} // namespace

FieldListModel::FieldListModel(QObject* parent)
    : QAbstractTableModel(parent)
{
    m_clock.start();
}

FieldListModel::~FieldListModel() = default;

void FieldListModel::setNodes(const std::vector<KnFieldContainer*>& nodes, bool compared)
{
    beginResetModel();
    m_timer.stop();
    m_rows.clear();
    m_nodes.clear();
    for (KnFieldContainer* node : nodes)
        m_nodes.emplace_back(node);
    m_compared = compared && nodes.size() == 2;
    for (const SharedField& shared : currentFields())
        addRow(rowCount(), shared);
    endResetModel();
}

std::vector<SharedField> FieldListModel::currentFields() const
{
    return m_compared ? fieldPairs(*m_nodes[0].get(), *m_nodes[1].get()) : sharedFields(nodes());
}

void FieldListModel::addRow(int place, const SharedField& shared)
{
    ListedField::Listener& listener = *this;
    m_rows.insert(m_rows.begin() + place,
        std::make_unique<ListedField>(listener, m_defaults, shared, m_compared));
    for (int i = place; i < rowCount(); ++i)
        m_rows[static_cast<std::size_t>(i)]->number = i;
    if (m_held)
        m_rows[static_cast<std::size_t>(place)]->shown();
}

bool FieldListModel::addRows()
{
    const std::vector<SharedField> fields = currentFields();
    const auto isRow = [this](std::size_t row, const SharedField& shared) {
        return row < m_rows.size() && m_rows[row]->isOf(shared);
    };
    std::size_t kept = 0;
    for (const SharedField& shared : fields)
        kept += isRow(kept, shared) ? 1 : 0;
    if (kept < m_rows.size())
        return false;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (isRow(i, fields[i]))
            continue;
        const int place = static_cast<int>(i);
        beginInsertRows({}, place, place);
        addRow(place, fields[i]);
        endInsertRows();
    }
    return true;
}

std::vector<KnFieldContainer*> FieldListModel::nodes() const
{
    std::vector<KnFieldContainer*> nodes;
    for (const KnNodePtr& node : m_nodes)
        nodes.push_back(node.get());
    return nodes;
}

std::vector<KnFieldContainer*> FieldListModel::editedNodes() const
{
    return m_compared ? std::vector { node() } : nodes();
}

ListedField& FieldListModel::row(const QModelIndex& index) const
{
    return *m_rows[static_cast<std::size_t>(index.row())];
}

KnField* FieldListModel::field(const QModelIndex& index) const
{
    return index.isValid() && index.model() == this ? &row(index).field() : nullptr;
}

std::vector<KnField*> FieldListModel::fields(const QModelIndex& index) const
{
    return field(index) ? row(index).fields() : std::vector<KnField*>();
}

int FieldListModel::rowOf(const KnField* field) const
{
    for (const auto& row : m_rows) {
        if (&row->field() == field)
            return row->number;
    }
    return -1;
}

bool FieldListModel::isChanged(int row) const
{
    return m_rows[static_cast<std::size_t>(row)]->shown().isChanged;
}

bool FieldListModel::isDefault(int row) const
{
    return !isChanged(row) && m_rows[static_cast<std::size_t>(row)]->hasDefault();
}

int FieldListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FieldListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FieldListModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() ? cell(row(index), index.column(), role) : QVariant();
}

QVariant FieldListModel::cell(ListedField& row, int column, int role) const
{
    const bool isValue = column == ValueColumn;
    switch (role) {
    case Qt::DisplayRole:
        return text(row, column);
    case Qt::ToolTipRole:
        return toolTip(row, column);
    case Qt::StatusTipRole:
        return fieldNote(row.field()).replace(u'\n', QStringLiteral(", "));
    case Qt::AccessibleDescriptionRole:
        return isValue && row.shown().isReadOnly ? tr("read-only") : QString();
    case Qt::FontRole: {
        const ListedField::Shown& shown = row.shown();
        const bool isBold = shown.isChanged && (isValue || column == NameColumn);
        const bool isLink = shown.isLink && isValue;
        if (!isBold && !shown.isIgnored && !isLink)
            return QVariant();
        QFont font;
        font.setBold(isBold);
        font.setStrikeOut(isValue && shown.isIgnored);
        font.setUnderline(isLink);
        return font;
    }
    case Qt::CheckStateRole:
        return isValue && row.isBool() ? QVariant(row.shown().check) : QVariant();
    case Qt::DecorationRole:
        return isValue && row.shown().color.isValid() ? QVariant(row.shown().color) : QVariant();
    case Qt::EditRole:
        // What the nodes don't agree on is typed anew.
        return isValue && !row.shown().isMixed ? QVariant(typedText(row.field())) : QVariant();
    case LightRole:
        return isValue ? light(row) : 0.0;
    case DiffersRole:
        return (isValue || column == OtherColumn) && row.shown().differs;
    case ReadOnlyRole:
        return column != OtherColumn && row.shown().isReadOnly;
    case LinkRole:
        return column != OtherColumn && row.shown().isLink;
    default:
        return QVariant();
    }
}

QString FieldListModel::text(ListedField& row, int column) const
{
    switch (column) {
    case NameColumn:
        return row.name();
    case TypeColumn:
        return typeName(row.field().getObjectType());
    case ValueColumn:
        return row.shown().value;
    case OtherColumn:
        return row.shown().other;
    default:
        return row.shown().isIgnored ? tr("yes") : QString();
    }
}

// As rich text, whose lines are broken where they get long.
QString FieldListModel::toolTip(ListedField& row, int column) const
{
    const QString& value = column == OtherColumn ? row.shown().other : row.shown().value;
    QStringList lines { QStringLiteral("<b>%1</b>  %2")
                            .arg(row.name().toHtmlEscaped(),
                                typeName(row.field().getObjectType()).toHtmlEscaped()),
        fieldNote(row.field()).toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")),
        value.toHtmlEscaped() };
    if (column == ValueColumn && row.shown().isLink)
        lines += tr("A double click, Ctrl and a click, or Return goes there");
    lines.removeAll(QString());
    return QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>")
        .arg(lines.join(QStringLiteral("<br>")));
}

double FieldListModel::light(const ListedField& row) const
{
    const auto age = static_cast<double>(m_clock.elapsed() - row.changedAt);
    return row.isLit ? std::max(0.0, 1 - age / lightTime) : 0;
}

QVariant FieldListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Field");
    case TypeColumn:
        return tr("Type");
    case ValueColumn:
        return m_compared ? nodeLabel(*m_nodes.front().get()) : tr("Value");
    case OtherColumn:
        return m_compared ? nodeLabel(*m_nodes.back().get()) : QString();
    default:
        return tr("Ignored");
    }
}

Qt::ItemFlags FieldListModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid() || index.column() != ValueColumn)
        return flags;
    const ListedField& listed = row(index);
    if (listed.isReadOnly())
        return flags;
    if (listed.isBool())
        return flags | Qt::ItemIsUserCheckable;
    return fitsLine(listed.field()) ? flags | Qt::ItemIsEditable : flags;
}

bool FieldListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const QPersistentModelIndex edited(index); // whoever hears of the edit may show another node
    FieldStep step;
    for (KnField* field : row(index).fields()) {
        const bool isTaken = role == Qt::EditRole
            ? step.setText(*field, fromTyped(*field, value.toString()))
            : step.setText(*field, value.toInt() == Qt::Checked ? "TRUE" : "FALSE");
        if (!isTaken)
            m_refusal = step.refusal();
    }
    const bool isRefused = step.count() == 0 && !step.refusal().isEmpty();
    const std::vector<KnField*>& fields = row(index).fields();
    const auto locked = std::count_if(
        fields.begin(), fields.end(), [](const KnField* field) { return field->isReadOnly(); });
    if (locked > 0 && !isRefused)
        Q_EMIT leftOut(tr("%1 is read-only in %2 of %3 nodes")
                           .arg(row(index).name())
                           .arg(locked)
                           .arg(fields.size()));
    step.finish(tr("Edit %1 of %2").arg(row(index).name(), nodesLabel(editedNodes())));
    // At once, since the next key may come before the sensors run.
    if (edited.isValid())
        refresh(row(edited));
    return !isRefused;
}

void FieldListModel::setHeld(bool held)
{
    m_held = held;
    for (const auto& row : m_rows) {
        if (held)
            row->shown();
        else
            refresh(*row, Written::Unknown);
    }
}

// A row of several nodes is read once for all of them.
void FieldListModel::fieldChanged(ListedField& row)
{
    if (m_nodes.size() == 1) {
        refresh(row);
        return;
    }
    row.waits = true;
    if (!std::exchange(m_refreshes, true))
        QMetaObject::invokeMethod(this, &FieldListModel::refreshWaiting, Qt::QueuedConnection);
}

void FieldListModel::refreshWaiting()
{
    m_refreshes = false;
    for (const auto& row : m_rows) {
        if (std::exchange(row->waits, false))
            refresh(*row);
    }
}

void FieldListModel::refresh(ListedField& row, Written written)
{
    const bool wasChanged = row.isShownChanged();
    // Of a value that isn't shown as a whole, something else may have changed.
    if (row.readAgain() || (written == Written::Certainly && row.leavesOut()))
        showChange(row, row.isShownChanged() == wasChanged ? ValueColumn : NameColumn);
}

// `first` is the first column of those that look different.
void FieldListModel::showChange(ListedField& row, Column first)
{
    row.changedAt = m_clock.elapsed();
    row.isLit = true;
    // The next step of the fading shows a value, but not a name.
    if (m_timer.isActive() && first == ValueColumn)
        return;
    announce(row, first);
    if (!m_timer.isActive())
        m_timer.start(lightStep, this);
}

void FieldListModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QAbstractTableModel::timerEvent(event);
        return;
    }
    bool isLit = false;
    for (const auto& row : m_rows) {
        if (!row->isLit)
            continue;
        row->isLit = m_clock.elapsed() - row->changedAt < lightTime;
        isLit = isLit || row->isLit;
        announce(*row, ValueColumn);
    }
    if (!isLit)
        m_timer.stop();
}

void FieldListModel::announce(const ListedField& row, Column first)
{
    Q_EMIT dataChanged(index(row.number, first), index(row.number, OtherColumn));
}
