// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDoubleValidator>

/// Leaves a text that it doesn't accept as it is, where the base class would write the number anew
/// as soon as the line is left: with fewer digits, and in exponent form. A line shows 0.0733559,
/// which has a decimal too many for typing, as long as the field holds it.
class RealValidator : public QDoubleValidator {
public:
    using QDoubleValidator::QDoubleValidator;

    void fixup(QString&) const override { }
};
