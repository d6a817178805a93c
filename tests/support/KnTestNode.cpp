// SPDX-License-Identifier: BSD-3-Clause
#include "KnTestNode.h"

KnTestNode::KnTestNode()
{
#define KN_TEST_SFIELD(Name, ValueType) addField(classData(), "SF" #Name, SF##Name);
#define KN_TEST_MFIELD(Name, ValueType) addField(classData(), "MF" #Name, MF##Name);
    KN_SFIELD_TYPES(KN_TEST_SFIELD)
    KN_SPECIAL_SFIELD_TYPES(KN_TEST_SFIELD)
    KN_MFIELD_TYPES(KN_TEST_MFIELD)
#undef KN_TEST_SFIELD
#undef KN_TEST_MFIELD

    const int enumValues[] = { 1, 2, 3 };
    const KbName enumNames[] = { "FIRST", "SECOND",
        "\xC3\x9C"
        "BER" };
    SFEnum.setEnums(3, enumValues, enumNames);
    SFEnum.setValue(1);
    const int maskValues[] = { 0, 1, 2, 12 };
    const KbName maskNames[] = { "NONE", "A", "B", "C" };
    SFBitMask.setEnums(4, maskValues, maskNames);
}

KnType KnTestNode::getClassTypeId()
{
    static const KnType type = KnType::create("TestNode", KnFieldContainer::getClassTypeId(),
        []() -> KnTypedObject* { return new KnTestNode; });
    return type;
}

KnFieldData& KnTestNode::classData()
{
    static KnFieldData data;
    return data;
}
