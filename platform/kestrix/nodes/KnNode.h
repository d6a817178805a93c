// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldContainer.h"
#include "KnTypeMacros.h"

/// In the body of a node class: its type, its table of fields and its constructor. What follows is
/// public. A class that others derive from has a second constructor that takes their table, as
/// KnGroup and KnLight do.
#define KN_NODE(Class)                                                                             \
    KN_TYPE(Class)                                                                                 \
    Class();                                                                                       \
    const KnFieldData* getContainerFieldData() const override { return &fieldData(); }             \
                                                                                                   \
protected:                                                                                         \
    ~Class() override = default;                                                                   \
    static KnFieldData& fieldData();                                                               \
                                                                                                   \
public:

/// In the source file of a node class. The table outlives all static objects.
#define KN_NODE_SOURCE(Class, Parent)                                                              \
    KN_TYPE_SOURCE(Class, Parent)                                                                  \
    KnFieldData& Class::fieldData()                                                                \
    {                                                                                              \
        static KnFieldData& data = *new KnFieldData;                                               \
        return data;                                                                               \
    }

/// In the constructor of a node class: makes a member a field and names it after the member. A
/// KnFieldInfo may follow: KN_FIELD(size, { "The diameter of the dot.", "pixels", 0 })
#define KN_FIELD(member, ...) addField(fieldData(), #member, member __VA_OPT__(, ) __VA_ARGS__)

/// Base of the nodes that a scene is made of.
class KnNode : public KnFieldContainer {
public:
    static KnType getClassTypeId();
};
