// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PropertyFields.h"

/// Whether a property of that name, if it is a string, holds the path of a file.
inline bool namesFile(const QByteArray& property)
{
    const QByteArray name = property.toLower();
    return name.endsWith("filepath") || name.endsWith("filename");
}

/// A string that names a file.
class FilePathPropertyField final : public PropertyFieldOf<KnSFFilePathString> {
public:
    using PropertyFieldOf::PropertyFieldOf;

protected:
    QMetaType type() const override { return QMetaType::fromType<QString>(); }
    bool shows(const QVariant& value) const override
    {
        return toKbString(value.toString()) == getValue();
    }
    void show(const QVariant& value) override { setValue(toKbString(value.toString())); }
    QVariant valueFor(const QVariant& before) override
    {
        m_hadNull = m_hadNull || before.toString().isNull();
        return getValue().isEmpty() && m_hadNull ? QVariant(QString()) : toQString(getValue());
    }

private:
    bool m_hadNull = false; // an edit has replaced a null text, which an undo gives back
};
