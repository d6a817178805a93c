// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnGroupSensor.h"
#include "KnNode.h"
#include "KnNodePtr.h"
#include "KnSFields.h"

#include <vector>

/// A node with children, in order. It holds a reference on each; the same child may stand in
/// several groups, and several times in one.
class KnGroup : public KnNode {
    KN_TYPE(KnGroup)
    KnGroup();
    const KnFieldData* getContainerFieldData() const override { return &fieldData(); }

    KnSFBool visible; ///< whether the children are drawn

    int getNumChildren() const
    {
        lookAtChildren();
        return getNumMadeChildren();
    }
    /// How many there are without making any, for whoever looks for a node that exists already.
    int getNumMadeChildren() const { return static_cast<int>(m_children.size()); }
    /// Null for an index outside 0 to `getNumChildren() - 1`. The child stays the group's.
    KnFieldContainer* getChild(int index) const;
    /// -1 if it isn't a child.
    int findChild(const KnFieldContainer* child) const;

    /// Whether the children are what the group stands for, so that a person can't add, move or
    /// delete any.
    virtual bool hasFixedChildren() const { return false; }

    /// Appends a child. False, with a KnDebugError and no change, for null and for a child that is
    /// this group or has it among its descendants.
    bool addChild(KnFieldContainer* child);
    /// The same before the child at `index`; an index outside the list is moved to the nearer end.
    bool insertChild(KnFieldContainer* child, int index);
    /// Gives the reference back, which destroys a child that nobody else holds. False if there
    /// is no such child.
    bool removeChild(int index);
    bool removeChild(const KnFieldContainer* child);
    /// Moves a child so that it stands at index `to` afterwards. False if either isn't an index of
    /// a child.
    bool moveChild(int from, int to);

protected:
    /// For a derived class; `data` is its table.
    explicit KnGroup(KnFieldData& data);
    ~KnGroup() override;
    static KnFieldData& fieldData();

    /// For a class that makes its children when somebody first looks at them: the next look calls
    /// `makeChildren`, which hands them to `replaceChildren`.
    void makeChildrenLater() { m_waitsForLook = true; }
    bool waitsForLook() const { return m_waitsForLook; }
    virtual void makeChildren() { }
    /// Puts other children in place of `removed` children from `first` on, and tells the sensors.
    /// None is null, and none is this group or has it among its descendants: nothing is checked,
    /// since that would look at all that stands below them.
    void replaceChildren(int first, int removed, std::vector<KnNodePtr> children);

private:
    friend class KnGroupSensor;

    void lookAtChildren() const
    {
        if (m_waitsForLook)
            const_cast<KnGroup*>(this)->firstLook();
    }
    void firstLook();

    bool isBelow(KnFieldContainer* root) const;
    void report(const KnGroupSensor::Change& change) const;

    std::vector<KnNodePtr> m_children; // none is null
    std::vector<KnGroupSensor*> m_sensors; // not owned
    bool m_waitsForLook = false;
};
