// SPDX-License-Identifier: BSD-3-Clause
#include "KnSField.h"

KnType KnSField::getClassTypeId()
{
    static const KnType type = KnType::create("SField", KnField::getClassTypeId());
    return type;
}
