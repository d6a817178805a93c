// SPDX-License-Identifier: BSD-3-Clause
#include "ColumnFit.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>

ColumnFit::ColumnFit(QTableView* table)
    : QObject(table)
    , m_table(table)
{
    table->viewport()->installEventFilter(this);
}

bool ColumnFit::eventFilter(QObject*, QEvent* event)
{
    // A viewport that gets its size while the table is being shown gets a Show and no Resize.
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        fit();
    return false;
}

void ColumnFit::fit()
{
    QHeaderView* const header = m_table->horizontalHeader();
    const int count = header->count();
    if (count == 0)
        return;
    const int before = m_fitted != 0 ? m_fitted : header->defaultSectionSize();
    for (int column = 0; column < count; ++column) {
        if (header->sectionSize(column) != before)
            return;
    }
    m_fitted = qMax(m_table->viewport()->width() / count, header->minimumSectionSize());
    for (int column = 0; column < count; ++column)
        header->resizeSection(column, m_fitted);
}
