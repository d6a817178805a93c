// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Comet.h"
#include "KnGroup.h"

#include <memory>
#include <vector>

class KnTransform;

/// A scene that moves: the sun, its planets with moons and rings, and a comet now and then. Sizes
/// and distances are made to be seen, the order of the years is the true one.
class Orrery {
public:
    Orrery();

    /// Everything; lives as long as this object, or longer if somebody else holds it.
    KnGroup* root() const { return m_root; }

    /// What stands directly below the root under a name; null if nothing does.
    KnFieldContainer* find(const char* name) const;

    /// Puts all bodies where they are at a time in seconds.
    void moveTo(double time);

private:
    struct Body;
    /// What goes around something else.
    struct Mover {
        KnTransform* place; // held by m_held
        KnTransform* spin; // null for a body that shows no turning
        float distance;
        float year; // seconds; negative for one that goes the other way round
        float day; // seconds
        float start; // as a part of the year
    };

    void addLights();
    void addSun();
    void addBelt();
    void addPlanet(const Body& body);
    void addMoon(KnGroup& planet, const Body& body, float start);
    void addMover(KnTransform* place, KnTransform* spin, const Body& body, float start);

    KnNodePtr m_holder; // of the root
    KnGroup* m_root; // held by m_holder
    std::vector<KnNodePtr> m_held; // what moves, since a person may take it out of the scene
    KnTransform* m_beltTurn = nullptr; // held by m_held
    std::vector<Mover> m_movers;
    int m_planets = 0;
    std::unique_ptr<Comet> m_comet;
};
