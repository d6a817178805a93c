// SPDX-License-Identifier: BSD-3-Clause
#include "KnMField.h"

KnType KnMField::getClassTypeId()
{
    static const KnType type = KnType::create("MField", KnField::getClassTypeId());
    return type;
}

void KnMField::valueChanged(int, int, int) { touch(); }
