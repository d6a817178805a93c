// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnTypedObject.h"

/// In the body of a class derived from KnTypedObject: declares its run-time type. What follows is
/// public.
#define KN_TYPE(Class)                                                                             \
public:                                                                                            \
    static KnType getClassTypeId();                                                                \
    KnType getObjectType() const override;

/// In the class's source file: registers the type under the class name without its "Kn". The type
/// lives in the module that holds this line.
#define KN_TYPE_SOURCE(Class, Parent)                                                              \
    KN_TYPE_SOURCE_WITH(Class, Parent, []() -> KnTypedObject* { return new Class; })

/// The same for a class whose type makes no instances.
#define KN_ABSTRACT_TYPE_SOURCE(Class, Parent) KN_TYPE_SOURCE_WITH(Class, Parent, nullptr)

#define KN_TYPE_SOURCE_WITH(Class, Parent, factory)                                                \
    KnType Class::getClassTypeId()                                                                 \
    {                                                                                              \
        static const KnType type = KnType::create(&#Class[2], Parent::getClassTypeId(), factory);  \
        return type;                                                                               \
    }                                                                                              \
    KnType Class::getObjectType() const { return getClassTypeId(); }
