// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListModel.h"

#include "KnField.h"
#include "KnFieldSensor.h"
#include "SceneText.h"

#include <QFont>

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
        const Row* row = static_cast<Row*>(data);
        row->model->refreshRow(*row);
    }

    FieldListModel* model;
    int number;
    KnField* field; // lives in the model's node
    QString name;
    KnFieldSensor sensor;
};

FieldListModel::FieldListModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

FieldListModel::~FieldListModel() = default;

void FieldListModel::setNode(KnFieldContainer* node)
{
    beginResetModel();
    m_rows.clear();
    m_node = KnNodePtr(node);
    const KnFieldData* const data = node ? node->getContainerFieldData() : nullptr;
    for (int i = 0; data && i < data->getNum(); ++i) {
        m_rows.push_back(std::make_unique<Row>(
            this, i, data->getField(node, i), toQString(data->getName(i).getString())));
    }
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
    const Row& row = *m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::ToolTipRole:
        return toolTipText(text(row, index.column()));
    case Qt::FontRole:
        if (row.field->isIgnored()) {
            QFont font;
            font.setStrikeOut(index.column() == ValueColumn);
            return font;
        }
        return QVariant();
    default:
        return QVariant();
    }
}

QString FieldListModel::text(const Row& row, int column) const
{
    switch (column) {
    case NameColumn:
        return row.name;
    case TypeColumn:
        return typeName(row.field->getObjectType());
    case ValueColumn:
        return fieldSummary(*row.field);
    default:
        return row.field->isIgnored() ? tr("yes") : QString();
    }
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

void FieldListModel::refreshRow(const Row& row)
{
    Q_EMIT dataChanged(index(row.number, ValueColumn), index(row.number, IgnoredColumn));
}
