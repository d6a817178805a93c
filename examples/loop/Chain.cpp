// SPDX-License-Identifier: BSD-3-Clause
#include "Chain.h"

#include "KnMaterial.h"
#include "KnTransform.h"

#include <cmath>
#include <string>

namespace {

constexpr float stiffness = 120.0F; // in newtons for each metre, with balls of one kilogram
constexpr float damping = 0.6F; // of the velocity, in a second
constexpr float restLength = 0.8F;
constexpr float dropInterval = 0.7F;
constexpr float floorHeight = -12.0F;
constexpr int substeps = 4; // springs as stiff as these need short steps

/// `to`, and `factor` times `step` more.
KbVec3f moved(const KbVec3f& to, const KbVec3f& step, float factor)
{
    return KbVec3f(to[0] + step[0] * factor, to[1] + step[1] * factor, to[2] + step[2] * factor);
}

KbVec3f springForce(const KbVec3f& from, const KbVec3f& to)
{
    const KbVec3f between = moved(to, from, -1.0F);
    const float length = std::hypot(between[0], between[1], between[2]);
    const float factor = length > 0.0F ? stiffness * (length - restLength) / length : 0.0F;
    return moved(KbVec3f(0.0F, 0.0F, 0.0F), between, factor);
}

} // namespace

Chain::Chain(int ballCount)
    : m_rootHolder(new KnGroup)
    , m_root(static_cast<KnGroup*>(m_rootHolder.get()))
    , m_drops(new KnGroup)
    , m_anchor(makeBody("Anchor", KbVec3f(0.0F, 0.0F, 0.0F), 0.8F, 0.8F, 0.8F))
    , m_untilDrop(dropInterval)
{
    m_root->setName("Chain");
    auto* const gravity = new KnTransform;
    gravity->setName("Gravity");
    gravity->translation.setValue(KbVec3f(0.0F, -9.81F, 0.0F));
    m_gravity = &gravity->translation;
    m_root->addChild(gravity);
    m_root->addChild(m_anchor.node);
    for (int i = 1; i <= ballCount; ++i) {
        const auto far = static_cast<float>(i);
        // Not straight down, so that it swings.
        m_balls.push_back(makeBody(("Ball " + std::to_string(i)).c_str(),
            KbVec3f(far * restLength, 0.0F, 0.1F * far), 0.9F, 0.5F - 0.05F * far, 0.2F));
        m_root->addChild(m_balls.back().node);
    }
    m_drops->setName("Drops");
    m_root->addChild(m_drops);
}

Chain::Body Chain::makeBody(
    const char* name, const KbVec3f& place, float red, float green, float blue)
{
    auto* const node = new KnGroup;
    node->setName(name);
    auto* const transform = new KnTransform;
    transform->translation.setValue(place);
    auto* const material = new KnMaterial;
    material->emissiveColor.setValue(KbColor(red, green, blue));
    node->addChild(transform);
    node->addChild(material);
    return { node, &transform->translation, KbVec3f(0.0F, 0.0F, 0.0F) };
}

void Chain::step(float seconds)
{
    for (int i = 0; i < substeps; ++i)
        pull(seconds / substeps);
    drip(seconds);
}

void Chain::pull(float seconds)
{
    std::vector<KbVec3f> places { m_anchor.place->getValue() };
    for (const Body& ball : m_balls)
        places.push_back(ball.place->getValue());
    for (std::size_t i = 0; i < m_balls.size(); ++i) {
        Body& ball = m_balls[i];
        KbVec3f force = moved(m_gravity->getValue(), ball.velocity, -damping);
        force = moved(force, springForce(places[i + 1], places[i]), 1.0F);
        if (i + 1 < m_balls.size())
            force = moved(force, springForce(places[i + 1], places[i + 2]), 1.0F);
        ball.velocity = moved(ball.velocity, force, seconds);
        ball.place->setValue(moved(places[i + 1], ball.velocity, seconds));
    }
}

void Chain::drip(float seconds)
{
    m_untilDrop -= seconds;
    if (m_untilDrop <= 0.0F) {
        m_untilDrop += dropInterval;
        const std::string name = "Drop " + std::to_string(++m_dropCount);
        m_falling.push_back(
            makeBody(name.c_str(), m_balls.back().place->getValue(), 0.3F, 0.5F, 0.9F));
        m_drops->addChild(m_falling.back().node);
    }
    for (Body& drop : m_falling) {
        drop.velocity = moved(drop.velocity, m_gravity->getValue(), seconds);
        drop.place->setValue(moved(drop.place->getValue(), drop.velocity, seconds));
    }
    while (!m_falling.empty() && m_falling.front().place->getValue()[1] < floorHeight) {
        m_drops->removeChild(m_falling.front().node); // which destroys it, unless somebody looks
        m_falling.pop_front();
    }
}
