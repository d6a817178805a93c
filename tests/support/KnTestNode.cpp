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

    SFEnum.setEnums({ { "FIRST", 1 }, { "SECOND", 2 },
        { "\u00dc"
          "BER",
            3 } });
    SFEnum.setValue(1);
    SFBitMask.setEnums({ { "NONE", 0 }, { "A", 1 }, { "B", 2 }, { "C", 12 } });
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
