// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class KbString;

/// Copies of rows of an array, as KnMField::copyRows makes them. Only fields of that type know what
/// is in them.
class KnRows {
public:
    KnRows() = default;
    KnRows(const KnRows&) = delete;
    KnRows& operator=(const KnRows&) = delete;
    virtual ~KnRows() = default;

    virtual int getNum() const = 0;
    /// One value as text; `row` counts from 0, and nothing is checked.
    virtual void get1(int row, KbString& text) const = 0;
};
