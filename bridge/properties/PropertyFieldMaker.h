// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"

#include <memory>

class PropertyPlace;

/// The field that shows a property as exactly as any can: the one table of types stands here. A
/// property that may hold any type gets the field for what it holds now. Never null.
std::unique_ptr<KnField> makePropertyField(const PropertyPlace& place);
