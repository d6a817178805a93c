// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldData.h"
#include "KnType.h"

#include <QMetaObject>

#include <memory>
#include <vector>

/// A class of objects as the kernel sees one of nodes: its type and the table of its fields, made
/// once for all objects of the class.
struct ObjectClass {
    /// The class's own name, below those of its base classes, which end in the kernel's Group.
    KnType type;
    /// One field for each property that can be read, those of the base classes first. Of a property
    /// that a class declares anew, only the last declaration counts.
    KnFieldData fields;
    /// The index of each field's property in the class.
    std::vector<int> properties;

    static std::shared_ptr<const ObjectClass> of(const QMetaObject* metaObject);
};
