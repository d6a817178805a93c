// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "UnsignedValidator.h"

/// The validator of unsigned whole numbers of fields of 32 bits.
class QULongValidator : public UnsignedValidator {
public:
    using UnsignedValidator::UnsignedValidator;
    ~QULongValidator() override;
};
