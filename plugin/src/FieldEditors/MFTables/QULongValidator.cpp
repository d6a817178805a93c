// SPDX-License-Identifier: BSD-3-Clause
#include "QULongValidator.h"

QULongValidator::~QULongValidator() = default;
