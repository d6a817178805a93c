// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"
#include "KnNodePtr.h"
#include "KnRows.h"

#include <cstddef>
#include <memory>
#include <vector>

class KnField;
class KnMField;

/// What a field held before it was written, as far as that is cheap to know, and what was done to
/// it. Holds a reference on the field's node.
struct CrvFieldRecord {
    /// Rows of an array that were written in place.
    struct Rows {
        int start = 0;
        std::shared_ptr<const KnRows> before;
        bool asText = false; // one row, written as text
    };
    /// Rows that came or went.
    struct Splice {
        int start = 0;
        int removed = 0;
        int inserted = 0;
    };

    /// Reads what the field holds now.
    explicit CrvFieldRecord(KnField& writtenField);

    /// Null for a field of one value.
    KnMField* array() const;
    /// Before another write, and after the last: notices whether the one before changed anything.
    void look();
    void addRows(int start, std::shared_ptr<const KnRows> formerRows, bool asText);
    /// How many places of the array were written, as text or otherwise.
    std::ptrdiff_t places(bool asText) const;
    void addSplice(const Splice& splice);
    /// Whether the field differs from what it held before all writes, or may differ.
    bool differs() const;
    /// Adds what was done later, to the same field.
    void append(CrvFieldRecord later);

    KnNodePtr node;
    KnField* field; // of the node
    int ignoredBefore;
    KbString before; // one value as text
    bool isLarge = false; // one value that is too large to be kept
    bool isChanged = false; // some write has changed something, or may have
    bool isDefault = false; // a command has given it its default
    bool hasUnknownRows = false; // some rows that were written weren't kept
    std::vector<Rows> rows; // each place once, with what it held first
    std::vector<Splice> splices;

private:
    int m_lastIgnored;
    KbString m_lastText;
};
