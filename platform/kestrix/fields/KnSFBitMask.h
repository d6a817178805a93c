// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFEnum.h"

/// Any combination of named bits. As text it is `(A | B)`, `()` when no bit is set; bits without a
/// name follow the names as one `0x` number. A single name or number needs no brackets.
class KnSFBitMask : public KnSFEnum {
    KN_TYPE(KnSFBitMask)

    KnSFBitMask() = default;
    /// Writes the whole mask.
    KnSFBitMask& operator=(int mask);

    using KnSFEnum::set;
    void get(KbString& text) const override;
    bool set(const KbString& text) override;
};
