// SPDX-License-Identifier: BSD-3-Clause
#include "SceneFilterModel.h"

SceneFilterModel::SceneFilterModel(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void SceneFilterModel::setFilterText(const QString& text)
{
    m_text = text.trimmed();
    invalidateFilter();
}

bool SceneFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    if (m_text.isEmpty())
        return true;
    for (int column = 0; column < sourceModel()->columnCount(sourceParent); ++column) {
        const QModelIndex index = sourceModel()->index(sourceRow, column, sourceParent);
        if (index.data().toString().contains(m_text, Qt::CaseInsensitive))
            return true;
    }
    return false;
}
