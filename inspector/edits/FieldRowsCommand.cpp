// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRowsCommand.h"

#include "EditedField.h"
#include "KnMField.h"

#include <utility>

FieldRowsCommand::FieldRowsCommand(
    KnMField& field, int start, int removed, std::vector<KbString> rows)
    : m_node(field.getContainer())
    , m_field(field)
    , m_start(start)
    , m_oldRows(static_cast<std::size_t>(removed))
    , m_newRows(std::move(rows))
{
    for (int i = 0; i < removed; ++i)
        field.get1(start + i, m_oldRows[static_cast<std::size_t>(i)]);
}

void FieldRowsCommand::write() { replace(m_oldRows, m_newRows); }

void FieldRowsCommand::undo() { replace(m_newRows, m_oldRows); }

void FieldRowsCommand::redo() { write(); }

void FieldRowsCommand::replace(
    const std::vector<KbString>& former, const std::vector<KbString>& rows)
{
    const int before = static_cast<int>(former.size());
    const int after = static_cast<int>(rows.size());
    if (after > before)
        m_field.insertValues(m_start + before, after - before);
    else if (after < before)
        m_field.removeValues(m_start + after, before - after);
    for (int i = 0; i < after; ++i)
        m_field.set1(m_start + i, rows[static_cast<std::size_t>(i)]);
    announceEdit(m_field);
}
