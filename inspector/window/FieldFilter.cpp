// SPDX-License-Identifier: BSD-3-Clause
#include "FieldFilter.h"

#include "FieldListModel.h"

#include <QAction>
#include <QTreeView>

FieldFilter::FieldFilter(QTreeView* list, FieldListModel* model)
    : QObject(list)
    , m_list(list)
    , m_model(model)
    , m_action(new QAction(tr("&Changed Only"), this))
{
    m_action->setObjectName(QStringLiteral("changedOnly"));
    m_action->setToolTip(tr("Show only the fields that differ from their defaults"));
    m_action->setCheckable(true);
    connect(m_action, &QAction::toggled, this, &FieldFilter::apply);
    connect(model, &QAbstractItemModel::modelReset, this, &FieldFilter::apply);
    connect(model, &QAbstractItemModel::rowsInserted, this, &FieldFilter::apply);
    connect(model, &QAbstractItemModel::dataChanged, this, &FieldFilter::followChange);
}

void FieldFilter::apply()
{
    const bool filters = m_action->isChecked();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const bool isHidden = filters && m_model->isDefault(row);
        if (m_list->isRowHidden(row, QModelIndex()) != isHidden)
            m_list->setRowHidden(row, QModelIndex(), isHidden);
    }
}

void FieldFilter::followChange(const QModelIndex& first, const QModelIndex& last)
{
    if (!m_action->isChecked())
        return;
    for (int row = first.row(); row <= last.row(); ++row) {
        if (m_model->isChanged(row))
            show(row);
    }
}

void FieldFilter::show(int row)
{
    if (m_list->isRowHidden(row, QModelIndex()))
        m_list->setRowHidden(row, QModelIndex(), false);
}
