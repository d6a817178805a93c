// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLocale>

/// The locale of every number validator: numbers are typed with a point and without group
/// separators, whatever the user's locale.
inline QLocale numberLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    return locale;
}
