// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbGeometry.h"
#include "KbTime.h"
#include "KnFieldTypes.h"
#include "KnMFieldOf.h"
#include "KnTypeMacros.h"

/// `KnMF<Name>`: the field that holds an array of values of a type, for each line of
/// KN_MFIELD_TYPES. Its bodies live in the kernel library.
#define KN_MFIELD(Name, ValueType)                                                                 \
    extern template class KnMFieldOf<ValueType>;                                                   \
    class KnMF##Name : public KnMFieldOf<ValueType> {                                              \
        KN_TYPE(KnMF##Name)                                                                        \
    };
KN_MFIELD_TYPES(KN_MFIELD)
#undef KN_MFIELD
