// SPDX-License-Identifier: BSD-3-Clause
#include "Comet.h"

#include "KnCoordinates.h"
#include "KnGroup.h"
#include "KnTransform.h"
#include "NodeMaking.h"

#include <cmath>
#include <string>

namespace {

constexpr double interval = 14.0; // seconds, from one comet to the next
constexpr double passage = 10.0; // seconds
constexpr int tailLength = 90; // points

} // namespace

Comet::Comet(KnGroup& parent)
    : m_parent(parent)
    , m_holder(&parent)
{
}

void Comet::moveTo(double time)
{
    const double since = std::fmod(time, interval);
    const int number = since < passage ? 1 + static_cast<int>(time / interval) : 0;
    if (number != m_number) {
        if (m_comet)
            m_parent.removeChild(m_comet.get());
        m_comet = KnNodePtr();
        if (number > 0)
            appear(number);
        m_number = number;
    }
    if (!m_comet)
        return;
    // Along the branch of a parabola around the sun, the tail away from it.
    const double along = since / passage * 2.0 - 1.0;
    const double x = 13.0 * along;
    const double z = 11.0 * along * along - 4.0;
    m_place->translation.setValue(x, 1.5 * along + 1.0, z);
    m_place->rotation.setValue(KbRotation({ 0.0F, 1.0F, 0.0F }, float(std::atan2(-z, x))));
}

void Comet::appear(int number)
{
    const std::string name = "Comet " + std::to_string(number);
    KnGroup& comet = addGroup(m_parent, name);
    m_comet = KnNodePtr(&comet);
    m_place = &addTransform(comet, name + " place");
    m_placeHolder = KnNodePtr(m_place);
    addMaterial(comet, name + " ice", KbColor(0.6F, 0.75F, 0.8F), 0.0F, KbColor(0.3F, 0.4F, 0.45F));
    addBall(comet, name + " head", 0.16F, 6);
    KnGroup& tail = addGroup(comet, name + " tail");
    addMaterial(tail, name + " dust", KbColor(0.65F, 0.8F, 0.9F), 0.35F);
    auto* const dust = new KnCoordinates; // the tail's from the next line on
    tail.addChild(dust);
    dust->setName(KbName((name + " dust points").c_str()));
    for (int i = 0; i < tailLength; ++i) {
        const float along = static_cast<float>(i) / tailLength;
        const float aside = 0.35F * along;
        const float angle = 2.4F * static_cast<float>(i); // the golden angle, which fills evenly
        dust->point.set1Value(
            i, KbVec3f(3.0F * along, aside * std::cos(angle), aside * std::sin(angle)));
    }
}
