// SPDX-License-Identifier: BSD-3-Clause
#include "KnTypedObject.h"

KnTypedObject::~KnTypedObject() = default;
