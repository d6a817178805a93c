// SPDX-License-Identifier: BSD-3-Clause
#include "KnTestNode.h"

KnTestNode::KnTestNode()
{
#define KN_TEST_ADD(type) addField(classData(), #type, type);
    KN_TEST_SFIELDS(KN_TEST_ADD)
    KN_TEST_MFIELDS(KN_TEST_ADD)
#undef KN_TEST_ADD

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
