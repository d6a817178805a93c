// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldRange.h"

#include <QMap>
#include <QString>

class KnField;

/// What is known of sensible ranges, by node type and field name. Building one costs next to
/// nothing: an editor makes it where it needs one.
class FieldRangeTable {
public:
    FieldRangeTable();

    bool exists(const char* nodeType, const char* fieldName) const;
    /// The default range for a pair that isn't there; no other row stands in for it.
    FieldRange get(const char* nodeType, const char* fieldName) const;
    /// The range for a field of reals, single or array: all that a ratio node holds runs from 0 to
    /// 1; every other field takes the row of "DefaultNode" and `defaultField`.
    FieldRange getForRealField(const KnField& field, const char* defaultField) const;

    /// The number base of an integer text: 10, 8 or 16.
    static int detectBase(QString text);

private:
    // By node type and field name, joined without a separator.
    QMap<QString, FieldRange> m_ranges;
};
