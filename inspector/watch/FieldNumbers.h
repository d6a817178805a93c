// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <string>

class KnField;

/// The numbers that the fields of one type are made of: one for a plain number, a truth value, an
/// enumeration or a time, the components of a vector, colour, plane, rotation, box or matrix, and
/// of an array how many rows it has. The values in the rows of an array count as none: which row is
/// which doesn't outlast the next one that comes or goes.
struct FieldNumbers {
    /// Null for a field that holds no number. The object lives as long as the process.
    static const FieldNumbers* of(const KnField& field);

    int count;
    /// "x", "min.y", "[0][3]"; empty if the field is nothing but its one number.
    QString (*name)(int component);
    /// Exact for all types. The field is of the type that this object was found for.
    double (*read)(const KnField& field, int component);
    /// The kernel's text form of a number that `read` gave.
    std::string (*text)(double number);
    /// The same in decimal, for masks, which the kernel writes in hexadecimal.
    std::string (*decimal)(double number);
};

/// "x" as an addition to the name of the field: ".x", but "[0][3]" as it is.
QString componentSuffix(const QString& component);
