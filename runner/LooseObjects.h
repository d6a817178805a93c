// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnGroup.h"
#include "ObjectRegister.h"

/// The node at the top of the tree below which the objects without a parent stand: engines,
/// controllers, models, actions. What Qt and the inspector keep for themselves isn't shown.
class LooseObjects final : public KnGroup {
public:
    LooseObjects();

    /// Looks anew. Its children follow if somebody has looked at them.
    void update(ObjectRegister::Look look);
    bool isEmpty() const { return m_objects.isEmpty(); }

protected:
    void makeChildren() override;

private:
    ~LooseObjects() override = default;

    void find(ObjectRegister::Look look);
    void followObjects();

    QObjectList m_objects; // in the order of the tree; only to be compared, since they may be dead
};
