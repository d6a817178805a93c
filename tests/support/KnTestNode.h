// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldContainer.h"
#include "KnMFields.h"
#include "KnSFBitMask.h"
#include "KnSFEnum.h"
#include "KnSFImage.h"
#include "KnSFields.h"

// One line a field type: every one that an editor is made for, and one single- and one multi-value
// type that none is made for.
#define KN_TEST_SFIELDS(X)                                                                         \
    X(SFBitMask)                                                                                   \
    X(SFBool)                                                                                      \
    X(SFBox2f)                                                                                     \
    X(SFBox3s)                                                                                     \
    X(SFColor)                                                                                     \
    X(SFColorRGBA)                                                                                 \
    X(SFEnum)                                                                                      \
    X(SFDouble)                                                                                    \
    X(SFFilePathString)                                                                            \
    X(SFFloat)                                                                                     \
    X(SFImage)                                                                                     \
    X(SFInt32)                                                                                     \
    X(SFMatrix)                                                                                    \
    X(SFName)                                                                                      \
    X(SFPlane)                                                                                     \
    X(SFRotation)                                                                                  \
    X(SFShort)                                                                                     \
    X(SFString)                                                                                    \
    X(SFUInt32)                                                                                    \
    X(SFUShort)                                                                                    \
    X(SFVec2f)                                                                                     \
    X(SFVec2i32)                                                                                   \
    X(SFVec2s)                                                                                     \
    X(SFVec3f)                                                                                     \
    X(SFVec4f)                                                                                     \
    X(SFTime)
#define KN_TEST_MFIELDS(X)                                                                         \
    X(MFColor)                                                                                     \
    X(MFColorRGBA)                                                                                 \
    X(MFDouble)                                                                                    \
    X(MFFloat)                                                                                     \
    X(MFInt32)                                                                                     \
    X(MFMatrix)                                                                                    \
    X(MFPlane)                                                                                     \
    X(MFRotation)                                                                                  \
    X(MFShort)                                                                                     \
    X(MFString)                                                                                    \
    X(MFUInt32)                                                                                    \
    X(MFUShort)                                                                                    \
    X(MFVec2f)                                                                                     \
    X(MFVec2i32)                                                                                   \
    X(MFVec2s)                                                                                     \
    X(MFVec3f)                                                                                     \
    X(MFVec4f)                                                                                     \
    X(MFTime)

/// A node with one field of each type, named after the type: "SFBool" is a KnSFBool. The enum has
/// the names FIRST (1), SECOND (2) and one outside ASCII (3), the mask NONE (0), A (1), B (2) and
/// C (12).
class KnTestNode : public KnFieldContainer {
public:
    KnTestNode();

    static KnType getClassTypeId();
    KnType getObjectType() const override { return getClassTypeId(); }
    const KnFieldData* getContainerFieldData() const override { return &classData(); }

#define KN_TEST_MEMBER(type) Kn##type type;
    KN_TEST_SFIELDS(KN_TEST_MEMBER)
    KN_TEST_MFIELDS(KN_TEST_MEMBER)
#undef KN_TEST_MEMBER

private:
    static KnFieldData& classData();
};
