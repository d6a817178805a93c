// SPDX-License-Identifier: BSD-3-Clause
#pragma once

// The one list of the kernel's field types. Whoever needs a line for each type gives its macro to a
// list: the declarations and bodies in KnSFields and KnMFields, the registration, and tests.

/// X(Name, ValueType) for each value type that comes alone, as `KnSF<Name>`, and in arrays, as
/// `KnMF<Name>`.
#define KN_MFIELD_TYPES(X)                                                                         \
    X(Color, KbColor)                                                                              \
    X(ColorRGBA, KbColorRGBA)                                                                      \
    X(Double, double)                                                                              \
    X(Float, float)                                                                                \
    X(Int32, std::int32_t)                                                                         \
    X(Matrix, KbMatrix)                                                                            \
    X(Name, KbName)                                                                                \
    X(Plane, KbPlane)                                                                              \
    X(Rotation, KbRotation)                                                                        \
    X(Short, std::int16_t)                                                                         \
    X(String, KbString)                                                                            \
    X(Time, KbTime)                                                                                \
    X(UInt32, std::uint32_t)                                                                       \
    X(UShort, std::uint16_t)                                                                       \
    X(Vec2f, KbVec2f)                                                                              \
    X(Vec2i32, KbVec2i32)                                                                          \
    X(Vec2s, KbVec2s)                                                                              \
    X(Vec3f, KbVec3f)                                                                              \
    X(Vec4f, KbVec4f)

/// The same for each `KnSF<Name>` that is nothing but its value: those above and the types that
/// have no arrays.
#define KN_SFIELD_TYPES(X)                                                                         \
    X(Bool, bool)                                                                                  \
    X(Box2f, KbBox2f)                                                                              \
    X(Box3s, KbBox3s)                                                                              \
    KN_MFIELD_TYPES(X)

/// X(Name, ValueType) for each `KnSF<Name>` that is more than its value and so has a class written
/// by hand; `void` for a value that comes in parts.
#define KN_SPECIAL_SFIELD_TYPES(X)                                                                 \
    X(FilePathString, KbString)                                                                    \
    X(Enum, int)                                                                                   \
    X(BitMask, int)                                                                                \
    X(Image, void)
