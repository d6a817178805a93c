// SPDX-License-Identifier: BSD-3-Clause
#include "WatchList.h"

#include "ColorSwatch.h"
#include "CrvServices.h"
#include "FieldNumbers.h"
#include "KnField.h"
#include "LiveNodes.h"
#include "SceneText.h"
#include "WatchColors.h"
#include "WatchCsv.h"
#include "WatchedValue.h"

#include <QFont>

#include <algorithm>
#include <array>

struct WatchList::Row {
    std::unique_ptr<WatchedValue> value;
    WatchRange shown;
};

WatchList::WatchList(QObject* parent)
    : QAbstractTableModel(parent)
{
}

WatchList::~WatchList() = default;

const WatchedValue& WatchList::value(int row) const
{
    return *m_rows[static_cast<std::size_t>(row)].value;
}

const WatchRange& WatchList::shownRange(int row) const
{
    return m_rows[static_cast<std::size_t>(row)].shown;
}

double WatchList::start() const
{
    double start = m_clock.latest();
    for (const Row& row : m_rows) {
        if (row.value->series().size() > 0)
            start = std::min(start, row.value->series()[0].time);
    }
    return start;
}

int WatchList::add(KnField& field, int component)
{
    const FieldNumbers* const numbers = FieldNumbers::of(field);
    if (!numbers || component < 0 || component >= numbers->count)
        return -1;
    const int end = rowCount();
    for (int row = 0; row < end; ++row) {
        if (value(row).isNumberOf(field, component))
            return row;
    }
    beginInsertRows({}, end, end);
    m_rows.push_back(
        { std::make_unique<WatchedValue>(field, *numbers, component, freeColor(), m_clock), {} });
    if (m_sampling)
        m_rows.back().value->start();
    endInsertRows();
    return end;
}

int WatchList::freeColor() const
{
    std::array<int, watchColorCount> uses {};
    for (const Row& row : m_rows)
        ++uses[static_cast<std::size_t>(row.value->color())];
    return static_cast<int>(std::min_element(uses.begin(), uses.end()) - uses.begin());
}

void WatchList::setSampling(bool sampling)
{
    if (m_sampling == sampling)
        return;
    m_sampling = sampling;
    CrvServices* const services = CrvServices::getInstance();
    if (!sampling) {
        disconnect(services, nullptr, this, nullptr);
        for (const Row& row : m_rows)
            row.value->stop();
        return;
    }
    connect(services, &CrvServices::fieldEdited, this, &WatchList::follow);
    connect(services, &CrvServices::pausedChanged, this, &WatchList::setPaused);
    std::unordered_set<const KnFieldContainer*> wanted;
    for (const Row& row : m_rows) {
        if (!row.value->isGone())
            wanted.insert(row.value->lastNode());
    }
    std::vector<KnNodePtr> roots = services->getRoots();
    roots.emplace_back(services->getSelectedNode()); // which need not be below one of them
    const auto live = findLiveNodes(roots, std::move(wanted));
    for (const Row& row : m_rows) {
        const auto node = live.find(row.value->lastNode());
        if (row.value->isGone())
            continue;
        if (node != live.end() && row.value->isOfNode(**node))
            row.value->start();
        else
            row.value->setGone();
    }
}

void WatchList::follow(const KnField* editedField)
{
    for (const Row& row : m_rows) {
        if (!editedField || row.value->getAttachedField() == editedField)
            row.value->noteEdit();
    }
}

// What happens while no sensor runs is known to nobody.
void WatchList::setPaused(bool paused)
{
    for (const Row& row : m_rows) {
        if (paused)
            row.value->interrupt();
        else
            row.value->resume();
    }
}

void WatchList::show(double from, double to, std::optional<double> ruler)
{
    if (m_ruler != ruler) {
        m_ruler = ruler;
        Q_EMIT headerDataChanged(Qt::Horizontal, ValueColumn, ValueColumn);
    }
    for (Row& row : m_rows)
        row.shown = row.value->series().range(from, to);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void WatchList::setPalette(const QPalette& palette)
{
    m_palette = palette;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), { Qt::DecorationRole });
}

QString WatchList::toCsv() const
{
    std::vector<const WatchedValue*> values;
    for (const Row& row : m_rows)
        values.push_back(row.value.get());
    return watchCsv(values);
}

int WatchList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int WatchList::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant WatchList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const bool isName = index.column() == NameColumn;
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return toolTipText(text(row, index.column()));
    case Qt::DecorationRole:
        return isName ? colorSwatch(watchColor(row.value->color(), m_palette)) : QVariant();
    case Qt::TextAlignmentRole:
        return isName ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::FontRole:
        if (row.value->isGone()) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        return QVariant();
    default:
        return QVariant();
    }
}

QString WatchList::text(const Row& row, int column) const
{
    const WatchedValue& value = *row.value;
    switch (column) {
    case NameColumn:
        return value.isGone() ? tr("%1 (gone)").arg(value.name()) : value.name();
    case ValueColumn: {
        const WatchSample* const sample
            = m_ruler ? value.series().at(*m_ruler) : value.series().latest();
        return sample ? value.text(sample->value) : QString();
    }
    case LowColumn:
        return row.shown.isEmpty() ? QString() : value.text(row.shown.low);
    default:
        return row.shown.isEmpty() ? QString() : value.text(row.shown.high);
    }
}

QVariant WatchList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QVariant();
    if (role == Qt::TextAlignmentRole && section != NameColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case NameColumn:
        return tr("Value");
    case ValueColumn:
        return m_ruler ? tr("At %1 s").arg(*m_ruler, 0, 'f', 2) : tr("Latest");
    case LowColumn:
        return tr("Minimum");
    default:
        return tr("Maximum");
    }
}

bool WatchList::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || row < 0 || count < 1 || row + count > rowCount())
        return false;
    beginRemoveRows({}, row, row + count - 1);
    m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count);
    endRemoveRows();
    return true;
}
