// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "UnsignedValidator.h"

/// The validator of unsigned whole numbers of `unsigned int`.
class QUIntValidator : public UnsignedValidator {
public:
    using UnsignedValidator::UnsignedValidator;
    ~QUIntValidator() override;
};
