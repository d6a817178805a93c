// SPDX-License-Identifier: BSD-3-Clause
#include "Orrery.h"

#include "KnCoordinates.h"
#include "KnDirectionalLight.h"
#include "KnIndexedFaceSet.h"
#include "KnPointLight.h"
#include "KnTransform.h"
#include "KnViewpoint.h"
#include "NodeMaking.h"

#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace {

constexpr float turn = 2.0F * std::numbers::pi_v<float>;
constexpr int ballFaces = 12; // from pole to pole
constexpr int moonFaces = 6;

using Colors = std::array<std::uint32_t, ballFaces>; // of the bands from pole to pole: RGBA

constexpr Colors jupiterBands { 0xa8907aff, 0xd8c0a0ff, 0xb88a62ff, 0xe6d6b8ff, 0xc89a70ff,
    0xf0e4ccff, 0xb07a54ff, 0xe0ccaaff, 0xc0946cff, 0xdcc8a8ff, 0xb89a80ff, 0xa08874ff };
constexpr Colors earthBands { 0xf0f4f8ff, 0xb8c8c0ff, 0x3f7a4aff, 0x2f6aa8ff, 0x5a8a44ff,
    0x2a62a4ff, 0x2860a0ff, 0x4a8040ff, 0x2a62a4ff, 0x2f6aa8ff, 0xc8d8e0ff, 0xf4f8fcff };

void paintBands(KnIndexedFaceSet& ball, const Colors& bands)
{
    const int around = 2 * static_cast<int>(bands.size());
    std::vector<std::uint32_t> colors;
    for (std::size_t band = 0; band < bands.size(); ++band) {
        for (int i = 0; i < around; ++i) {
            // Every few faces the next band reaches in, so that the turning is seen.
            const bool isNeighbour = (i * 7 + static_cast<int>(band) * 5) % 11 < 3;
            colors.push_back(bands[isNeighbour && band + 1 < bands.size() ? band + 1 : band]);
        }
    }
    ball.packedColor.setValues(0, static_cast<int>(colors.size()), colors.data());
}

} // namespace

struct Orrery::Body {
    const char* name;
    float radius;
    float distance; // from what it goes around
    float year; // seconds
    float day; // seconds
    KbColor color;
    float tilt = 0.0F; // radians, of the axis
    float ring = 0.0F; // outer radius; 0 for none
    const Colors* bands = nullptr;
    std::vector<Body> moons {};
};

Orrery::Orrery()
    : m_holder(new KnGroup)
    , m_root(static_cast<KnGroup*>(m_holder.get()))
{
    const KbColor gray(0.6F, 0.58F, 0.55F);
    const std::vector<Body> planets {
        { "Mercury", 0.22F, 2.4F, 5.0F, 9.0F, KbColor(0.62F, 0.56F, 0.5F) },
        { "Venus", 0.38F, 3.4F, 9.0F, -14.0F, KbColor(0.92F, 0.78F, 0.48F) },
        { "Earth", 0.42F, 4.8F, 14.0F, 3.0F, KbColor(0.3F, 0.5F, 0.8F), 0.41F, 0.0F, &earthBands,
            { { "Moon", 0.12F, 0.8F, 3.0F, 0.0F, gray } } },
        { "Mars", 0.3F, 6.2F, 22.0F, 3.2F, KbColor(0.8F, 0.38F, 0.22F), 0.44F, 0.0F, nullptr,
            { { "Phobos", 0.06F, 0.45F, 1.1F, 0.0F, gray },
                { "Deimos", 0.05F, 0.66F, 2.2F, 0.0F, gray } } },
        { "Jupiter", 0.95F, 9.2F, 40.0F, 2.0F, KbColor(0.8F, 0.7F, 0.55F), 0.05F, 0.0F,
            &jupiterBands,
            { { "Io", 0.11F, 1.3F, 1.8F, 0.0F, KbColor(0.9F, 0.82F, 0.4F) },
                { "Europa", 0.1F, 1.6F, 2.9F, 0.0F, KbColor(0.82F, 0.78F, 0.7F) },
                { "Ganymede", 0.14F, 2.0F, 4.6F, 0.0F, gray },
                { "Callisto", 0.13F, 2.4F, 7.4F, 0.0F, KbColor(0.45F, 0.42F, 0.4F) } } },
        { "Saturn", 0.8F, 12.8F, 62.0F, 2.2F, KbColor(0.9F, 0.8F, 0.58F), 0.47F, 1.75F, nullptr,
            { { "Titan", 0.15F, 2.2F, 5.2F, 0.0F, KbColor(0.88F, 0.66F, 0.34F) },
                { "Rhea", 0.09F, 1.95F, 3.1F, 0.0F, gray } } },
        { "Uranus", 0.58F, 16.0F, 95.0F, -3.4F, KbColor(0.55F, 0.8F, 0.85F), 1.5F, 1.0F, nullptr,
            { { "Titania", 0.1F, 1.3F, 4.1F, 0.0F, gray } } },
        { "Neptune", 0.56F, 18.8F, 130.0F, 3.3F, KbColor(0.3F, 0.42F, 0.9F), 0.49F, 0.0F, nullptr,
            { { "Triton", 0.1F, 1.0F, -3.6F, 0.0F, gray } } },
    };
    m_root->setName(KbName("Solar system"));
    addLights();
    addSun();
    for (const Body& planet : planets)
        addPlanet(planet);
    addBelt();
    m_comet = std::make_unique<Comet>(addGroup(*m_root, "Comets"));
    moveTo(0.0);
}

KnFieldContainer* Orrery::find(const char* name) const
{
    const KbName wanted(name);
    for (int i = 0; i < m_root->getNumChildren(); ++i) {
        if (m_root->getChild(i)->getName() == wanted)
            return m_root->getChild(i);
    }
    return nullptr;
}

void Orrery::addLights()
{
    auto* const viewpoint = new KnViewpoint; // these are the root's as soon as they are added
    m_root->addChild(viewpoint);
    viewpoint->setName(KbName("From above the plane"));
    viewpoint->position.setValue(0.0F, 13.0F, 26.0F);
    viewpoint->orientation.setValue(KbRotation({ 1.0F, 0.0F, 0.0F }, -0.46F));
    auto* const sunlight = new KnPointLight;
    m_root->addChild(sunlight);
    sunlight->setName(KbName("Sunlight"));
    sunlight->location.setValue(0.0F, 0.0F, 0.0F);
    sunlight->color.setValue(1.0F, 0.97F, 0.9F);
    auto* const starlight = new KnDirectionalLight;
    m_root->addChild(starlight);
    starlight->setName(KbName("Starlight"));
    starlight->direction.setValue(0.3F, -1.0F, -0.2F);
    starlight->intensity.setValue(0.12F);
    starlight->color.setValue(0.7F, 0.8F, 1.0F);
}

void Orrery::addSun()
{
    KnGroup& sun = addGroup(*m_root, "Sun");
    KnTransform& spin = addTransform(sun, "Sun turn");
    addMaterial(sun, "Sun fire", KbColor(0.5F, 0.35F, 0.1F), 0.0F, KbColor(0.95F, 0.72F, 0.22F));
    addBall(sun, "Sun ball", 1.2F, 16);
    addLabel(sun, "Sun", 11.0F, { 0.0F, 1.6F, 0.0F });
    addMover(nullptr, &spin, { "Sun", 0.0F, 0.0F, 1.0F, 12.0F, {} }, 0.0F);
}

void Orrery::addPlanet(const Body& body)
{
    const std::string name = body.name;
    KnGroup& system = addGroup(*m_root, name + " system");
    KnGroup& orbit = addGroup(system, name + " orbit");
    addMaterial(orbit, name + " orbit color", KbColor(0.42F, 0.5F, 0.66F), 0.6F);
    addCircle(orbit, name + " orbit line", body.distance, 128);

    KnTransform& place = addTransform(system, name + " place");
    KnGroup& planet = addGroup(system, name);
    addTransform(planet, name + " tilt")
        .rotation.setValue(KbRotation({ 0.0F, 0.0F, 1.0F }, -body.tilt));
    KnGroup& ball = addGroup(planet, name + " globe");
    KnTransform& spin = addTransform(ball, name + " turn");
    addMaterial(ball, name + " color", body.color);
    KnIndexedFaceSet& faces = addBall(ball, name + " ball", body.radius, ballFaces);
    if (body.bands)
        paintBands(faces, *body.bands);
    if (body.ring > 0.0F) {
        addMaterial(planet, name + " ice", body.color, 0.35F);
        addRing(planet, name + " ring", 0.65F * body.ring + 0.1F, body.ring, 64);
    }
    addLabel(system, name, 9.0F, { 0.0F, body.radius + 0.3F, 0.0F });
    // The golden angle keeps them apart.
    const float start = 0.382F * static_cast<float>(++m_planets);
    addMover(&place, &spin, body, start);
    for (std::size_t i = 0; i < body.moons.size(); ++i)
        addMoon(system, body.moons[i], start + static_cast<float>(i) * 0.382F);
}

void Orrery::addMoon(KnGroup& planet, const Body& body, float start)
{
    const std::string name = body.name;
    KnGroup& moon = addGroup(planet, name);
    KnTransform& place = addTransform(moon, name + " place");
    addMaterial(moon, name + " color", body.color);
    addBall(moon, name + " ball", body.radius, moonFaces);
    addMover(&place, nullptr, body, start);
}

void Orrery::addBelt()
{
    constexpr int count = 360;
    KnGroup& belt = addGroup(*m_root, "Asteroid belt");
    m_beltTurn = &addTransform(belt, "Belt turn");
    m_held.emplace_back(m_beltTurn);
    addMaterial(belt, "Belt color", KbColor(0.6F, 0.55F, 0.48F));
    auto* const points = new KnCoordinates; // the belt's from the next line on
    belt.addChild(points);
    points->setName(KbName("Asteroids"));
    for (int i = 0; i < count; ++i) {
        // Scattered, but the same in each run.
        const auto scatter = [i](float step) { return std::fmod(float(i) * step, 1.0F) - 0.5F; };
        const float angle = turn * scatter(0.6180F);
        const float distance = 7.5F + 0.9F * scatter(0.7549F);
        points->point.set1Value(i,
            KbVec3f(
                distance * std::cos(angle), 0.3F * scatter(0.5698F), distance * std::sin(angle)));
    }
}

void Orrery::addMover(KnTransform* place, KnTransform* spin, const Body& body, float start)
{
    m_movers.push_back({ place, spin, body.distance, body.year, body.day, start });
    m_held.emplace_back(place);
    m_held.emplace_back(spin);
}

void Orrery::moveTo(double time)
{
    // The angle as a part of a turn stays exact however long the program runs.
    const auto angle = [time](float period, float start) {
        return turn * static_cast<float>(std::fmod(time / double(period) + double(start), 1.0));
    };
    const KbVec3f axis(0.0F, 1.0F, 0.0F);
    for (const Mover& mover : m_movers) {
        if (mover.place) {
            const float a = angle(mover.year, mover.start);
            mover.place->translation.setValue(
                mover.distance * std::cos(a), 0.0F, -mover.distance * std::sin(a));
        }
        if (mover.spin)
            mover.spin->rotation.setValue(KbRotation(axis, angle(mover.day, 0.0F)));
    }
    m_beltTurn->rotation.setValue(KbRotation(axis, angle(48.0F, 0.0F)));
    m_comet->moveTo(time);
}
