// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbGeometry.h"
#include "KbTime.h"
#include "KnMFieldOf.h"
#include "KnTypeMacros.h"

/// `KnMF<Name>`: the field that holds an array of values of a type. Its bodies live in the kernel
/// library.
#define KN_MFIELD(Name, ValueType)                                                                 \
    extern template class KnMFieldOf<ValueType>;                                                   \
    class KnMF##Name : public KnMFieldOf<ValueType> {                                              \
        KN_TYPE(KnMF##Name)                                                                        \
    }

/// The same for a value type that extends `Plain`, which may be written without a conversion.
#define KN_MFIELD_ALSO_OF(Name, ValueType, Plain)                                                  \
    extern template class KnMFieldOf<ValueType>;                                                   \
    class KnMF##Name : public KnMFieldOf<ValueType> {                                              \
        KN_TYPE(KnMF##Name)                                                                        \
        using KnMFieldOf<ValueType>::set1Value;                                                    \
        void set1Value(int row, const Plain& value) { set1Value(row, ValueType(value)); }          \
    }

KN_MFIELD_ALSO_OF(Color, KbColor, KbVec3f);
KN_MFIELD_ALSO_OF(ColorRGBA, KbColorRGBA, KbVec4f);
KN_MFIELD(Double, double);
KN_MFIELD(Float, float);
KN_MFIELD(Int32, std::int32_t);
KN_MFIELD(Matrix, KbMatrix);
KN_MFIELD(Name, KbName);
KN_MFIELD(Plane, KbPlane);
KN_MFIELD(Rotation, KbRotation);
KN_MFIELD(Short, std::int16_t);
KN_MFIELD(String, KbString);
KN_MFIELD(Time, KbTime);
KN_MFIELD(UInt32, std::uint32_t);
KN_MFIELD(UShort, std::uint16_t);
KN_MFIELD(Vec2f, KbVec2f);
KN_MFIELD(Vec2i32, KbVec2i32);
KN_MFIELD(Vec2s, KbVec2s);
KN_MFIELD(Vec3f, KbVec3f);
KN_MFIELD(Vec4f, KbVec4f);
