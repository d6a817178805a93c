// SPDX-License-Identifier: BSD-3-Clause
#include "ComponentValidator.h"

#include "NumberLocale.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>

#include <limits>

namespace {

QValidator* makeValidator(int kind, QLineEdit* line)
{
    using Float = std::numeric_limits<float>;
    using Short = std::numeric_limits<short>;
    switch (kind) {
    case 1:
        return new QIntValidator(Short::min(), Short::max(), line);
    case 2:
        return new QIntValidator(line);
    case 3:
        return new QDoubleValidator(Float::lowest(), Float::max(), 6, line);
    case 4:
        return new QDoubleValidator(line);
    default:
        return nullptr;
    }
}

} // namespace

void setComponentValidator(int kind, QLineEdit* line)
{
    QValidator* const validator = makeValidator(kind, line);
    if (validator)
        validator->setLocale(numberLocale());
    if (validator || kind == 0)
        line->setValidator(validator);
}
