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
    bool shows(const QVariant& value) const override
    {
        return toKbString(value.toString()) == getValue();
    }
    void show(const QVariant& value) override { setValue(toKbString(value.toString())); }
    QVariant shownValue() const override { return toQString(getValue()); }
};
