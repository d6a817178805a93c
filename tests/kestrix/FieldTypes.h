// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnDatabase.h"
#include "KnFieldTypes.h"
#include "KnReadError.h"
#include "KnSFEnum.h"

#include <QTest>

#include <memory>

/// The names of all field types that make instances.
inline const QByteArrayList fieldTypeNames {
#define KN_SFIELD_NAME(Name, ValueType) "SF" #Name,
#define KN_MFIELD_NAME(Name, ValueType) "MF" #Name,
    KN_SFIELD_TYPES(KN_SFIELD_NAME) KN_SPECIAL_SFIELD_TYPES(KN_SFIELD_NAME)
        KN_MFIELD_TYPES(KN_MFIELD_NAME)
#undef KN_SFIELD_NAME
#undef KN_MFIELD_NAME
};

/// The data of a test function that takes nothing but the names of its rows.
inline void addNameRows(const QByteArrayList& names)
{
    QTest::addColumn<char>("unused");
    for (const QByteArray& name : names)
        QTest::newRow(name.constData()) << '\0';
}

inline KnType typeOf(const QByteArray& name)
{
    KnDatabase::init();
    return KnType::fromName(name.constData());
}

/// A fresh field of a type, which must have instances. One that has names gets A = 1, B = 2, AB = 3
/// and D = 4, in this order.
inline std::unique_ptr<KnField> makeField(const QByteArray& typeName)
{
    KnTypedObject* made = typeOf(typeName).createInstance();
    if (made->isOfType(KnSFEnum::getClassTypeId()))
        static_cast<KnSFEnum*>(made)->setEnums({ { "A", 1 }, { "B", 2 }, { "AB", 3 }, { "D", 4 } });
    return std::unique_ptr<KnField>(static_cast<KnField*>(made));
}

inline QByteArray textOf(const KnField& field)
{
    KbString text;
    field.get(text);
    return QByteArray::fromStdString(text.toUtf8());
}

/// Collects the texts of a class's errors while it lives.
template <class Error>
class Errors {
    Q_DISABLE_COPY(Errors)
public:
    Errors() { Error::setHandlerCallback(&Errors::note, this); }
    ~Errors() { Error::setHandlerCallback(&KnErrorHandler::writeToStandardError, nullptr); }

    QByteArrayList texts;

private:
    static void note(const KnError* error, void* errors)
    {
        static_cast<Errors*>(errors)->texts << error->getDebugString().toUtf8().c_str();
    }
};
using ReadErrors = Errors<KnReadError>;
