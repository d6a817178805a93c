// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldData.h"
#include "KnFieldOwner.h"

/// Base of all nodes: a reference-counted holder of fields. It starts with a count of 0; the last
/// `unref` destroys it.
class KnFieldContainer : public KnFieldOwner {
public:
    static KnType getClassTypeId();

    void ref() { ++m_referenceCount; }
    void unref();
    int getReferenceCount() const { return m_referenceCount; }

    /// The fields of this node's class.
    virtual const KnFieldData* getContainerFieldData() const = 0;
    KnField* getField(const KbName& name);

    const KbName& getName() const { return m_name; }
    /// Any text is a name, also an empty one; several nodes may have the same.
    void setName(const KbName& name);

    KnFieldContainer* asContainer() override { return this; }
    std::string describeField(const KnField& field) const override;

protected:
    KnFieldContainer() = default;
    ~KnFieldContainer() override;

    /// The node has got another name a moment ago. Called at once, before any sensor hears of it.
    virtual void renamed() { }

    /// Makes `field`, a member of this node, one of its fields. `data` is the class's own table;
    /// the first instance of a class fills it, later ones only adopt the field.
    void addField(
        KnFieldData& data, const char* name, KnField& field, const KnFieldInfo& info = {});

    /// The field that stands in the table at this index, by KnFieldData::addOwnField. It belongs to
    /// this node, which may make it now. Not null for such an index.
    virtual KnField* ownField(int index);
    /// The index of one of these fields; -1 for any other.
    virtual int ownIndex(const KnField* field) const;

private:
    friend class KnFieldData;

    KbName m_name;
    int m_referenceCount = 0;
};
