// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QLineEdit;

/// What may be typed as one component of a compound value.
enum ValidatorKind : int {
    NoValidator = 0, ///< any text
    Int16Validator = 1,
    Int32Validator = 2,
    FloatValidator = 3, ///< with 6 decimals
    DoubleValidator = 4,
};

/// Gives a line the validator of a ValidatorKind, as its child. Any other number leaves the line as
/// it is.
void setComponentValidator(int kind, QLineEdit* line);
