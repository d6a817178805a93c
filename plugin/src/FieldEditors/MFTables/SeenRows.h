// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <vector>

class KnMField;

/// Remembers what the first rows of an array held. Where rows are written as a whole, the field
/// can't report which of them came or went; this tells whether a row is still where it was.
class SeenRows {
public:
    /// How many rows are looked at, however long the array is.
    static constexpr int limit = 64;

    /// Remembers the rows as they are now.
    void look(const KnMField& field);
    /// How many values the field had at the last look.
    int count() const { return m_count; }
    /// Whether `row` certainly is the row that was seen there; its value may have been written in
    /// place. False wherever rows may have moved, also where the limit allows no judgement.
    bool isSamePlace(const KnMField& field, int row) const;

private:
    std::vector<KbString> m_texts;
    int m_count = 0;
};
