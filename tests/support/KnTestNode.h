// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldContainer.h"
#include "KnFieldTypes.h"
#include "KnMFields.h"
#include "KnSFBitMask.h"
#include "KnSFEnum.h"
#include "KnSFImage.h"
#include "KnSFields.h"

/// A node with one field of each of the kernel's types, named after the type: "SFBool" is a
/// KnSFBool. The enum has the names FIRST (1), SECOND (2) and one outside ASCII (3), the mask
/// NONE (0), A (1), B (2) and C (12).
class KnTestNode : public KnFieldContainer {
public:
    KnTestNode();

    static KnType getClassTypeId();
    KnType getObjectType() const override { return getClassTypeId(); }
    const KnFieldData* getContainerFieldData() const override { return &classData(); }

#define KN_TEST_SFIELD(Name, ValueType) KnSF##Name SF##Name;
#define KN_TEST_MFIELD(Name, ValueType) KnMF##Name MF##Name;
    KN_SFIELD_TYPES(KN_TEST_SFIELD)
    KN_SPECIAL_SFIELD_TYPES(KN_TEST_SFIELD)
    KN_MFIELD_TYPES(KN_TEST_MFIELD)
#undef KN_TEST_SFIELD
#undef KN_TEST_MFIELD

private:
    static KnFieldData& classData();
};
