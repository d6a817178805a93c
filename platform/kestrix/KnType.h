// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbName.h"

#include <vector>

class KnTypedObject;

/// A small handle into the registry of types. Copies are cheap; a handle stays valid for the life
/// of the process. Types are registered and looked up on the user interface thread.
class KnType {
public:
    using Factory = KnTypedObject* (*)();

    /// The bad type, which stands for no type at all. It derives from nothing but itself.
    KnType() = default;

    /// Registers a type. `factory` is null for an abstract type. If the name is taken, this gives
    /// the type of that name and replaces its factory: a plug-in that is loaded again registers its
    /// types again.
    static KnType create(const KbName& name, KnType parent, Factory factory = nullptr);
    /// The bad type if none of that name is registered. The kernel's own types are all registered
    /// once KnDatabase::init has run; until then, only those whose class was asked for its type.
    static KnType fromName(const KbName& name);

    /// The registered types that derive from one and make instances, that one included, in the
    /// order in which they were registered.
    static std::vector<KnType> getCreatableTypes(const KnType& ancestor);

    bool isBad() const { return m_index == 0; }
    const KbName& getName() const;
    KnType getParent() const;
    /// True for the type itself and its ancestors.
    bool isDerivedFrom(const KnType& ancestor) const;
    bool canCreateInstance() const;
    /// A fresh, default-valued instance that the caller owns, or null for an abstract type. A
    /// KnFieldContainer comes with a reference count of 0.
    KnTypedObject* createInstance() const;

    friend bool operator==(const KnType&, const KnType&) = default;

private:
    explicit KnType(int index)
        : m_index(index)
    {
    }

    int m_index = 0;
};
