// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"

#include <QByteArrayList>

#include <memory>
#include <vector>

/// The names of all field types that make instances.
const QByteArrayList& fieldTypeNames();

/// A fresh field of a type, or null.
std::unique_ptr<KnField> makeField(const QByteArray& typeName);
/// The names in the order A = 1, B = 2, AB = 3, D = 4, for a field that has names.
void nameValues(KnField& field);

QByteArray textOf(const KnField& field);

/// Collects the texts of the read errors while it lives.
class ReadErrors {
public:
    ReadErrors();
    ~ReadErrors();
    ReadErrors(const ReadErrors&) = delete;
    ReadErrors& operator=(const ReadErrors&) = delete;

    QByteArrayList texts;
};
