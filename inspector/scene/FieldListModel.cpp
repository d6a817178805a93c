// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListModel.h"

#include "KnField.h"
#include "KnFieldSensor.h"
#include "KnSFImage.h"
#include "SceneText.h"

#include <QFont>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace {

// In milliseconds. Between two steps of the fading nothing is painted, so that a field that changes
// all the time is painted no more than 30 times a second; a timer may be a twentieth early.
constexpr qint64 lightTime = 700;
constexpr int lightStep = 36;

/// Whether the summary of a field leaves nothing out.
bool showsAll(const KnField& field, const QString& summary)
{
    const QChar ellipsis(0x2026);
    return !summary.contains(ellipsis) && !field.isOfType(KnSFImage::getClassTypeId());
}

} // namespace

/// One field and the sensor that watches it.
struct FieldListModel::Row {
    Row(FieldListModel* rowModel, int rowNumber, KnField* rowField, const QString& rowName)
        : model(rowModel)
        , number(rowNumber)
        , field(rowField)
        , name(rowName)
        , sensor(fieldChanged, this)
    {
        sensor.attach(field);
    }

    static void fieldChanged(void* data, KnSensor*)
    {
        auto* const row = static_cast<Row*>(data);
        row->model->fieldChanged(*row);
    }

    FieldListModel* model;
    int number;
    KnField* field; // lives in the model's node
    QString name;
    KnFieldSensor sensor;
    // What the list shows; null before anybody has asked.
    QString value;
    bool ignored = false;
    qint64 changedAt = 0; // by the model's clock, in milliseconds
    bool lit = false;
    bool waits = false; // has changed since it was last announced
};

FieldListModel::FieldListModel(QObject* parent)
    : QAbstractTableModel(parent)
{
    m_clock.start();
}

FieldListModel::~FieldListModel() = default;

void FieldListModel::setNode(KnFieldContainer* node)
{
    beginResetModel();
    m_timer.stop();
    m_rows.clear();
    m_node = KnNodePtr(node);
    const KnFieldData* const data = node ? node->getContainerFieldData() : nullptr;
    for (int i = 0; data && i < data->getNum(); ++i) {
        m_rows.push_back(std::make_unique<Row>(
            this, i, data->getField(node, i), toQString(data->getName(i).getString())));
    }
    if (m_held)
        std::for_each(m_rows.begin(), m_rows.end(), [this](const auto& row) { valueText(*row); });
    endResetModel();
}

KnField* FieldListModel::field(const QModelIndex& index) const
{
    if (!index.isValid() || index.model() != this)
        return nullptr;
    return m_rows[static_cast<std::size_t>(index.row())]->field;
}

int FieldListModel::rowOf(const KnField* field) const
{
    for (const auto& row : m_rows) {
        if (row->field == field)
            return row->number;
    }
    return -1;
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
    if (!index.isValid())
        return QVariant();
    Row& row = *m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return toolTip(row);
    case Qt::StatusTipRole:
        return meaning(row);
    case Qt::FontRole:
        valueText(row);
        if (row.ignored) {
            QFont font;
            font.setStrikeOut(index.column() == ValueColumn);
            return font;
        }
        return QVariant();
    case LightRole:
        return index.column() == ValueColumn ? light(row) : 0.0;
    default:
        return QVariant();
    }
}

const QString& FieldListModel::valueText(Row& row) const
{
    if (row.value.isNull()) {
        row.value = fieldSummary(*row.field);
        row.ignored = row.field->isIgnored();
    }
    return row.value;
}

QString FieldListModel::text(Row& row, int column) const
{
    switch (column) {
    case NameColumn:
        return row.name;
    case TypeColumn:
        return typeName(row.field->getObjectType());
    case ValueColumn:
        return valueText(row);
    default:
        valueText(row);
        return row.ignored ? tr("yes") : QString();
    }
}

QString FieldListModel::meaning(const Row& row) const
{
    return fieldMeaning(m_node->getContainerFieldData()->getInfo(row.number));
}

// As rich text, whose lines are broken where they get long.
QString FieldListModel::toolTip(Row& row) const
{
    QStringList lines { QStringLiteral("<b>%1</b>  %2")
                            .arg(row.name.toHtmlEscaped(),
                                typeName(row.field->getObjectType()).toHtmlEscaped()),
        meaning(row).toHtmlEscaped(), valueText(row).toHtmlEscaped() };
    lines.removeAll(QString());
    return QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>")
        .arg(lines.join(QStringLiteral("<br>")));
}

double FieldListModel::light(const Row& row) const
{
    const auto age = static_cast<double>(m_clock.elapsed() - row.changedAt);
    return row.lit ? std::max(0.0, 1 - age / lightTime) : 0;
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
        return tr("Value");
    default:
        return tr("Ignored");
    }
}

void FieldListModel::setHeld(bool held)
{
    m_held = held;
    for (const auto& row : m_rows) {
        if (held)
            valueText(*row);
        else if (readAgain(*row))
            showChange(*row);
    }
}

void FieldListModel::fieldChanged(Row& row)
{
    // Of a value that isn't shown as a whole, something else may have changed.
    if (readAgain(row) || !showsAll(*row.field, row.value))
        showChange(row);
}

/// Whether the list shows something else now. A program may well write what a field holds already.
bool FieldListModel::readAgain(Row& row)
{
    const QString before = std::exchange(row.value, QString());
    const bool wasIgnored = row.ignored;
    return valueText(row) != before || row.ignored != wasIgnored;
}

void FieldListModel::showChange(Row& row)
{
    row.changedAt = m_clock.elapsed();
    row.lit = true;
    // Otherwise the next step of the fading shows it.
    if (m_timer.isActive())
        return;
    announce(row);
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
        if (!row->lit)
            continue;
        row->lit = m_clock.elapsed() - row->changedAt < lightTime;
        isLit = isLit || row->lit;
        announce(*row);
    }
    if (!isLit)
        m_timer.stop();
}

void FieldListModel::announce(const Row& row)
{
    Q_EMIT dataChanged(index(row.number, ValueColumn), index(row.number, IgnoredColumn));
}
