// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnNodePtr.h"

class KnGroup;
class KnTransform;

/// Comets that pass one after the other: each comes into the scene as nodes of its own, and these
/// leave it again.
class Comet {
public:
    /// The comets become children of `parent`, which this object holds.
    explicit Comet(KnGroup& parent);

    /// Puts the comet where it is at a time in seconds, if there is one then.
    void moveTo(double time);

private:
    void appear(int number);

    KnGroup& m_parent; // held by m_holder
    KnNodePtr m_holder;
    KnNodePtr m_comet; // null while there is none
    KnNodePtr m_placeHolder; // a person may take it out of the comet
    KnTransform* m_place = nullptr; // held by m_placeHolder
    int m_number = 0; // of the comet; 0 for none
};
