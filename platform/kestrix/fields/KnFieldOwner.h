// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnTypedObject.h"

#include <string>

class KnField;
class KnFieldContainer;

/// What a field knows of the node that it belongs to.
class KnFieldOwner : public KnTypedObject {
public:
    ~KnFieldOwner() override;

    /// The node itself.
    virtual KnFieldContainer* asContainer() = 0;
    /// Node and field as a message names them: `Material "skin", field diffuseColor`. Empty for a
    /// field that isn't in the node's table.
    virtual std::string describeField(const KnField& field) const = 0;

protected:
    KnFieldOwner() = default;

    /// Makes `field`, a member of this object, one that belongs to it.
    void adopt(KnField& field);
};
