// SPDX-License-Identifier: BSD-3-Clause
#include "KnMFields.h"

#include "KnMFieldOfBodies.h"

#define KN_MFIELD_SOURCE(Name, ValueType)                                                          \
    KN_TYPE_SOURCE(KnMF##Name, KnMField)                                                           \
    template class KnMFieldOf<ValueType>;

KN_MFIELD_SOURCE(Color, KbColor)
KN_MFIELD_SOURCE(ColorRGBA, KbColorRGBA)
KN_MFIELD_SOURCE(Double, double)
KN_MFIELD_SOURCE(Float, float)
KN_MFIELD_SOURCE(Int32, std::int32_t)
KN_MFIELD_SOURCE(Matrix, KbMatrix)
KN_MFIELD_SOURCE(Name, KbName)
KN_MFIELD_SOURCE(Plane, KbPlane)
KN_MFIELD_SOURCE(Rotation, KbRotation)
KN_MFIELD_SOURCE(Short, std::int16_t)
KN_MFIELD_SOURCE(String, KbString)
KN_MFIELD_SOURCE(Time, KbTime)
KN_MFIELD_SOURCE(UInt32, std::uint32_t)
KN_MFIELD_SOURCE(UShort, std::uint16_t)
KN_MFIELD_SOURCE(Vec2f, KbVec2f)
KN_MFIELD_SOURCE(Vec2i32, KbVec2i32)
KN_MFIELD_SOURCE(Vec2s, KbVec2s)
KN_MFIELD_SOURCE(Vec3f, KbVec3f)
KN_MFIELD_SOURCE(Vec4f, KbVec4f)
