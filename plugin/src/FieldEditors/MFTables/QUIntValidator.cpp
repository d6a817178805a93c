// SPDX-License-Identifier: BSD-3-Clause
#include "QUIntValidator.h"

QUIntValidator::~QUIntValidator() = default;
