// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFLineBox.h"

/// Base of the editors of four floats, which differ in what the fourth one means.
class WfSF4fBox : public WfSFLineBox {
    Q_OBJECT
public:
    explicit WfSF4fBox(const char* name = nullptr);
};
