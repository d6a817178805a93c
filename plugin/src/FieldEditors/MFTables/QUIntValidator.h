// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "UnsignedValidator.h"

/// Validates whole numbers of type `unsigned int`.
class QUIntValidator : public UnsignedValidator {
public:
    using UnsignedValidator::UnsignedValidator;
    ~QUIntValidator() override;
};
