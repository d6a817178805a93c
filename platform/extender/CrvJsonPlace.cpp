// SPDX-License-Identifier: BSD-3-Clause
#include "CrvJsonPlace.h"

QString CrvJsonPlace::text() const
{
    if (!m_outer)
        return {};
    const QString outer = m_outer->text();
    if (const int* const index = std::get_if<int>(&m_step))
        return QStringLiteral("%1[%2]").arg(outer).arg(*index);
    const CrvJsonValue* const name = std::get_if<CrvJsonValue>(&m_step);
    const QString member = name ? name->toQString() : QString(std::get<QLatin1String>(m_step));
    return outer.isEmpty() ? member : outer + QLatin1Char('.') + member;
}
