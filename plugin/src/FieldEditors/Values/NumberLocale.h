// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLocale>

/// What every number validator gets: numbers are typed with a point and without group separators,
/// wherever the process runs.
inline QLocale numberLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    return locale;
}
