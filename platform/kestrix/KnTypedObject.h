// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnType.h"

/// Base of everything that carries a run-time type: fields, nodes and errors.
class KnTypedObject {
public:
    KnTypedObject() = default;
    KnTypedObject(const KnTypedObject&) = delete;
    KnTypedObject& operator=(const KnTypedObject&) = delete;
    virtual ~KnTypedObject();

    virtual KnType getObjectType() const = 0;
    bool isOfType(const KnType& type) const { return getObjectType().isDerivedFrom(type); }
};
