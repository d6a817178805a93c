// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "UnsignedValidator.h"

/// Validates the whole numbers of 32-bit unsigned fields.
class QULongValidator : public UnsignedValidator {
public:
    using UnsignedValidator::UnsignedValidator;
    ~QULongValidator() override;
};
