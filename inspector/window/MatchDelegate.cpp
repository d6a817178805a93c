// SPDX-License-Identifier: BSD-3-Clause
#include "MatchDelegate.h"

#include "SceneFilterModel.h"

MatchDelegate::MatchDelegate(const SceneFilterModel* filter, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_filter(filter)
{
}

void MatchDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.model() == m_filter && m_filter->isFiltering() && !m_filter->isMatch(index))
        option->palette.setColor(QPalette::Text, option->palette.color(QPalette::PlaceholderText));
}
