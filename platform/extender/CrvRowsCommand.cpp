// SPDX-License-Identifier: BSD-3-Clause
#include "CrvRowsCommand.h"

#include "KnMField.h"

#include <algorithm>

std::unique_ptr<CrvRowsCommand> CrvRowsCommand::make(const CrvFieldRecord& record)
{
    KnMField* const array = record.array();
    if (!array)
        return nullptr;
    std::unique_ptr<CrvRowsCommand> command(new CrvRowsCommand(*array));
    for (const CrvFieldRecord::Rows& rows : record.rows) {
        const int num = rows.before->getNum();
        if (!rows.asText || rows.start + num > array->getNum()
            || array->holdsRows(rows.start, *rows.before))
            continue;
        command->m_places.push_back({ rows.start, rows.before, array->copyRows(rows.start, num) });
    }
    return command->m_places.empty() ? nullptr : std::move(command);
}

void CrvRowsCommand::undo()
{
    for (const Place& place : m_places)
        m_array.writeRows(place.start, *place.before);
}

void CrvRowsCommand::redo()
{
    for (const Place& place : m_places)
        m_array.writeRows(place.start, *place.after);
}

bool CrvRowsCommand::absorb(CrvRowsCommand& later)
{
    const auto isSamePlace = [](const Place& a, const Place& b) {
        return a.start == b.start && a.after->getNum() == b.after->getNum();
    };
    if (&m_array != &later.m_array
        || !std::equal(m_places.begin(), m_places.end(), later.m_places.begin(),
            later.m_places.end(), isSamePlace))
        return false;
    for (std::size_t i = 0; i < m_places.size(); ++i)
        m_places[i].after = std::move(later.m_places[i].after);
    return true;
}
