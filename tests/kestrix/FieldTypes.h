// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"
#include "KnReadError.h"

#include <QByteArrayList>

#include <memory>

/// The names of all field types that make instances.
const QByteArrayList& fieldTypeNames();

/// A fresh field of a type, which must have instances. One that has names gets A = 1, B = 2, AB = 3
/// and D = 4, in this order.
std::unique_ptr<KnField> makeField(const QByteArray& typeName);

QByteArray textOf(const KnField& field);

/// Collects the texts of a class's errors while it lives.
template <class Error>
class Errors {
public:
    Errors() { Error::setHandlerCallback(&Errors::note, this); }
    ~Errors() { Error::setHandlerCallback(&KnErrorHandler::writeToStandardError, nullptr); }
    Errors(const Errors&) = delete;
    Errors& operator=(const Errors&) = delete;

    QByteArrayList texts;

private:
    static void note(const KnError* error, void* errors)
    {
        static_cast<Errors*>(errors)->texts
            += QByteArray::fromStdString(error->getDebugString().toUtf8());
    }
};
using ReadErrors = Errors<KnReadError>;
