// SPDX-License-Identifier: BSD-3-Clause
#include "EnumNames.h"

#include "KnSFEnum.h"

QList<NamedValue> namedValues(KnSFEnum* field)
{
    int num = 0;
    int* values = nullptr;
    KbName* names = nullptr;
    field->getEnums(num, values, names);
    QList<NamedValue> entries;
    for (int i = 0; i < num; ++i) {
        entries.append(
            { QString::fromLatin1(QByteArray::fromStdString(names[i].getString().toLatin1())),
                values[i] });
    }
    return entries;
}

KbName enumName(const QString& text)
{
    return KbName(KbString::fromLatin1(text.toLatin1().toStdString()));
}
