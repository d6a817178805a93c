// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbGeometry.h"
#include "KbTime.h"
#include "KnFieldTypes.h"
#include "KnSFieldOf.h"
#include "KnTypeMacros.h"

/// `KnSF<Name>`: the field that holds one value of a type, for each line of KN_SFIELD_TYPES. Its
/// bodies live in the kernel library.
#define KN_SFIELD(Name, ValueType)                                                                 \
    extern template class KnSFieldOf<ValueType>;                                                   \
    class KnSF##Name : public KnSFieldOf<ValueType> {                                              \
        KN_TYPE(KnSF##Name)                                                                        \
    };
KN_SFIELD_TYPES(KN_SFIELD)
#undef KN_SFIELD

/// A string that names a file. The kernel neither opens nor changes it.
class KnSFFilePathString : public KnSFString {
    KN_TYPE(KnSFFilePathString)
};
