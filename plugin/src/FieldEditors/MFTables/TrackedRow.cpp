// SPDX-License-Identifier: BSD-3-Clause
#include "TrackedRow.h"

#include "KnMField.h"

TrackedRow::TrackedRow()
    : KnFieldSensor(nullptr, nullptr)
{
}

void TrackedRow::look(KnMField& field, int row)
{
    if (getAttachedField() != &field)
        attach(&field);
    m_row = row;
    m_seen.look(field);
    m_hasMoved = false;
    m_isWritten = false;
    m_areOthersWritten = false;
}

bool TrackedRow::isInPlace(bool isSameValue) const
{
    const auto* const field = static_cast<const KnMField*>(getAttachedField());
    if (!field || m_hasMoved)
        return false;
    if (!m_isWritten || !m_areOthersWritten)
        return true;
    return (isSameValue && field->getNum() == m_seen.count()) || m_seen.isSamePlace(*field, m_row);
}

void TrackedRow::rowsReplaced(int start, int removed, int inserted)
{
    const bool isReplaced = start <= m_row && m_row < start + removed;
    if (isReplaced ? inserted == 0 : start <= m_row && removed != inserted)
        m_hasMoved = true;
    m_isWritten = m_isWritten || isReplaced;
    m_areOthersWritten = m_areOthersWritten || !isReplaced || removed > 1 || inserted > 1;
}
