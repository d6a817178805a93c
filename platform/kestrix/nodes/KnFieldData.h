// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbName.h"
#include "KnFieldInfo.h"

#include <cstddef>
#include <vector>

class KnField;
class KnFieldContainer;

/// The fields of one node class by index and name, those of its base classes first. One object
/// serves all instances of the class.
///
/// Fields are members of their node as a rule, all at the same place in each. A class whose fields
/// are known only while the program runs lists them by name instead, and its nodes make them; see
/// KnFieldContainer::ownField.
class KnFieldData {
public:
    int getNum() const { return static_cast<int>(m_entries.size()); }
    const KbName& getName(int index) const
    {
        return m_entries[static_cast<std::size_t>(index)].name;
    }
    /// What the class says of the field, for people; empty texts if it says nothing.
    const KnFieldInfo& getInfo(int index) const
    {
        return m_entries[static_cast<std::size_t>(index)].info;
    }
    /// -1 for a field that isn't one of the container's.
    int getIndex(const KnFieldContainer* container, const KnField* field) const;
    /// -1 for a name that the class doesn't have.
    int getIndex(const KbName& name) const;
    /// Null for an index outside 0 to `getNum() - 1`.
    KnField* getField(KnFieldContainer* container, int index) const;
    const KnField* getField(const KnFieldContainer* container, int index) const;

    /// Adds a field that each node has by itself. The result is its index.
    int addOwnField(const KbName& name);

private:
    friend class KnFieldContainer;

    struct Entry {
        KbName name;
        std::ptrdiff_t offset; // of the field from its container, in bytes; 0 for one of its own
        KnFieldInfo info {};
    };

    static std::ptrdiff_t offsetOf(const KnFieldContainer* container, const KnField* field);
    /// -1 if no field lies there.
    int findOffset(std::ptrdiff_t offset) const;

    std::vector<Entry> m_entries;
};
