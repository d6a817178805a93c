// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "FieldRange.h"

#include <QMap>
#include <QString>

class KnField;

/// The sensible ranges that are known, by node type and field name. Building the table is cheap; an
/// editor makes one where it needs it.
class FieldRangeTable {
public:
    FieldRangeTable();

    bool exists(const char* nodeType, const char* fieldName) const;
    /// A default-constructed range for a pair that isn't in the table.
    FieldRange get(const char* nodeType, const char* fieldName) const;
    /// The range for a field of reals, single or array. In the nodes whose fields are ratios it is
    /// 0 to 1; any other field takes the row of "DefaultNode" and `defaultField`.
    FieldRange getForRealField(const KnField& field, const char* defaultField) const;

    /// The number base of an integer text: 10, 8 or 16.
    static int detectBase(QString text);

private:
    // By node type and field name, joined without a separator.
    QMap<QString, FieldRange> m_ranges;
};
