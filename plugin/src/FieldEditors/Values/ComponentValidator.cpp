// SPDX-License-Identifier: BSD-3-Clause
#include "ComponentValidator.h"

#include "NumberLimits.h"
#include "NumberLocale.h"
#include "RealValidator.h"

#include <QIntValidator>
#include <QLineEdit>

#include <limits>

namespace {

QValidator* makeValidator(int kind, QLineEdit* line)
{
    using Short = std::numeric_limits<short>;
    switch (kind) {
    case Int16Validator:
        return new QIntValidator(Short::min(), Short::max(), line);
    case Int32Validator:
        return new QIntValidator(line);
    case FloatValidator:
        return new RealValidator(-floatLimit, floatLimit, floatDecimals, line);
    case DoubleValidator:
        return new RealValidator(line);
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
    if (validator || kind == NoValidator)
        line->setValidator(validator);
}
