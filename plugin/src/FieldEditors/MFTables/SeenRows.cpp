// SPDX-License-Identifier: BSD-3-Clause
#include "SeenRows.h"

#include "KnMField.h"

#include <algorithm>

namespace {

KbString rowText(const KnMField& field, int row)
{
    KbString text;
    field.get1(row, text);
    return text;
}

} // namespace

void SeenRows::look(const KnMField& field)
{
    m_count = field.getNum();
    m_texts.clear();
    for (int row = 0; row < std::min(m_count, limit); ++row)
        m_texts.push_back(rowText(field, row));
}

bool SeenRows::isSamePlace(const KnMField& field, int row) const
{
    const int count = field.getNum();
    if (row < 0 || row >= std::min({ count, m_count, limit }))
        return false;
    const auto isUnchanged = [this, &field](int at) {
        return m_texts[static_cast<std::size_t>(at)] == rowText(field, at);
    };
    const auto areUnchanged = [&isUnchanged](int first, int end) {
        while (first < end && isUnchanged(first))
            ++first;
        return first >= end;
    };
    // Rows that come or go above shift this one, so that a row up to it differs, unless all that
    // moved are equal; then it doesn't matter which of them is edited.
    if (!areUnchanged(0, row))
        return false;
    // If the row itself differs, it was either written in place, or removed and the rows behind it
    // moved up. Only all of those can tell which.
    return isUnchanged(row) || (count == m_count && count <= limit && areUnchanged(row + 1, count));
}
