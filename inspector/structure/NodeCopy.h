// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

/// A copy of a node, with its fields and all below it. A node that stands in several places below
/// it is copied once and stands in as many. Null if a node's type makes no instances.
KnNodePtr copyOf(KnFieldContainer* node);
