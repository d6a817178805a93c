// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

class KnGroup;
class KnTransform;

/// Comets that pass one after the other: each comes into the scene as nodes of its own, and these
/// leave it again.
class Comet {
public:
    /// The comets become children of `parent`, which has to outlive this object.
    explicit Comet(KnGroup& parent);

    /// Puts the comet where it is at a time in seconds, if there is one then.
    void moveTo(double time);

private:
    void appear(int number);

    KnGroup& m_parent;
    KnNodePtr m_comet; // null while there is none
    KnTransform* m_place = nullptr; // below the comet
    int m_number = 0; // of the comet; 0 for none
};
