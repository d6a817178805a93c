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
    for (int row = 0; row < std::min(m_count, Limit); ++row)
        m_texts.push_back(rowText(field, row));
}

bool SeenRows::isSamePlace(const KnMField& field, int row) const
{
    const int count = field.getNum();
    if (row < 0 || row >= std::min({ count, m_count, Limit }))
        return false;
    const auto isUnchanged = [this, &field](int at) {
        return m_texts[static_cast<std::size_t>(at)] == rowText(field, at);
    };
    const auto areUnchanged = [&isUnchanged](int first, int end) {
        while (first < end && isUnchanged(first))
            ++first;
        return first >= end;
    };
    // Rows that come or go above the row shift it, which changes a row up to it, unless all that
    // moved were equal: then its place is as good as theirs.
    if (!areUnchanged(0, row))
        return false;
    // A new value in the row itself has been written there, or else the rows behind it have moved
    // up: it takes all of them to tell.
    return isUnchanged(row) || (count == m_count && count <= Limit && areUnchanged(row + 1, count));
}
