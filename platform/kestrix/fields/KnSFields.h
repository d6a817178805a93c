// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbGeometry.h"
#include "KbTime.h"
#include "KnSFieldOf.h"
#include "KnTypeMacros.h"

/// `KnSF<Name>`: the field that holds one value of a type. Its bodies live in the kernel library.
#define KN_SFIELD(Name, ValueType)                                                                 \
    extern template class KnSFieldOf<ValueType>;                                                   \
    class KnSF##Name : public KnSFieldOf<ValueType> {                                              \
        KN_TYPE(KnSF##Name)                                                                        \
    }

KN_SFIELD(Bool, bool);
KN_SFIELD(Box2f, KbBox2f);
KN_SFIELD(Box3s, KbBox3s);
KN_SFIELD(Color, KbColor);
KN_SFIELD(ColorRGBA, KbColorRGBA);
KN_SFIELD(Double, double);
KN_SFIELD(Float, float);
KN_SFIELD(Int32, std::int32_t);
KN_SFIELD(Matrix, KbMatrix);
KN_SFIELD(Name, KbName);
KN_SFIELD(Plane, KbPlane);
KN_SFIELD(Rotation, KbRotation);
KN_SFIELD(Short, std::int16_t);
KN_SFIELD(String, KbString);
KN_SFIELD(Time, KbTime);
KN_SFIELD(UInt32, std::uint32_t);
KN_SFIELD(UShort, std::uint16_t);
KN_SFIELD(Vec2f, KbVec2f);
KN_SFIELD(Vec2i32, KbVec2i32);
KN_SFIELD(Vec2s, KbVec2s);
KN_SFIELD(Vec3f, KbVec3f);
KN_SFIELD(Vec4f, KbVec4f);

/// A string that names a file. The kernel neither opens nor changes it.
class KnSFFilePathString : public KnSFString {
    KN_TYPE(KnSFFilePathString)
};
