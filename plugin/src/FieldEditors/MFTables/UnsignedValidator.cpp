// SPDX-License-Identifier: BSD-3-Clause
#include "UnsignedValidator.h"

#include "NumberLocale.h"

UnsignedValidator::UnsignedValidator(unsigned int bottom, unsigned int top, QObject* parent)
    : QValidator(parent)
    , m_bottom(bottom)
    , m_top(top)
{
    setLocale(numberLocale());
}

QValidator::State UnsignedValidator::validate(QString& input, int&) const
{
    if (input.isEmpty())
        return Acceptable;
    bool reads = false;
    const unsigned int number = input.toUInt(&reads, 10);
    if (!reads)
        return Invalid;
    return number >= m_bottom && number <= m_top ? Acceptable : Intermediate;
}

void UnsignedValidator::setRange(unsigned int bottom, unsigned int top)
{
    setBottom(bottom);
    setTop(top);
}

void UnsignedValidator::setBottom(unsigned int bottom) { m_bottom = bottom; }

void UnsignedValidator::setTop(unsigned int top) { m_top = top; }
