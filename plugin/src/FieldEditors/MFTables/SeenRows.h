// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"

#include <vector>

class KnMField;

/// What the first rows of an array held when somebody last looked. An array tells that it has
/// changed, not which rows came or went, so that this is how a row that is being edited is known
/// again after a change from outside.
class SeenRows {
public:
    /// How many rows are looked at, however long the array is.
    static constexpr int Limit = 64;

    void look(const KnMField& field);
    /// The count of values that was seen.
    int count() const { return m_count; }
    /// Whether the value in `row` certainly is the one that was seen there, or has been written in
    /// place. False wherever rows may have moved, and for rows that can't be judged because of the
    /// limit.
    bool isSamePlace(const KnMField& field, int row) const;

private:
    std::vector<KbString> m_texts;
    int m_count = 0;
};
