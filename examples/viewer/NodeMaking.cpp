// SPDX-License-Identifier: BSD-3-Clause
#include "NodeMaking.h"

#include "KnCoordinates.h"
#include "KnDrawStyle.h"
#include "KnGroup.h"
#include "KnIndexedFaceSet.h"
#include "KnMaterial.h"
#include "KnText.h"
#include "KnTransform.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace {

constexpr float turn = 2.0F * std::numbers::pi_v<float>;

template <class Node>
Node& add(KnGroup& parent, const std::string& name)
{
    auto* const node = new Node; // the group's from the next line on
    parent.addChild(node);
    node->setName(KbName(name.c_str()));
    return *node;
}

void addPoints(KnGroup& parent, const std::string& name, const std::vector<KbVec3f>& points)
{
    add<KnCoordinates>(parent, name)
        .point.setValues(0, static_cast<int>(points.size()), points.data());
}

KnIndexedFaceSet& addFaces(
    KnGroup& parent, const std::string& name, const std::vector<std::int32_t>& indices)
{
    auto& faces = add<KnIndexedFaceSet>(parent, name);
    faces.coordIndex.setValues(0, static_cast<int>(indices.size()), indices.data());
    return faces;
}

KbVec3f onCircle(float radius, float y, int corner, int corners)
{
    const float angle = turn * static_cast<float>(corner) / static_cast<float>(corners);
    return { radius * std::cos(angle), y, -radius * std::sin(angle) };
}

} // namespace

KnGroup& addGroup(KnGroup& parent, const std::string& name) { return add<KnGroup>(parent, name); }

KnTransform& addTransform(KnGroup& parent, const std::string& name)
{
    return add<KnTransform>(parent, name);
}

void addMaterial(KnGroup& parent, const std::string& name, const KbColor& color, float transparency,
    const KbColor& emissive)
{
    auto& material = add<KnMaterial>(parent, name);
    material.diffuseColor.set1Value(0, color);
    material.ambientColor.setValue(KbColor(color[0] * 0.2F, color[1] * 0.2F, color[2] * 0.2F));
    material.emissiveColor.setValue(emissive);
    material.transparency.setValue(transparency);
}

KnIndexedFaceSet& addBall(KnGroup& parent, const std::string& name, float radius, int faces)
{
    const int around = 2 * faces;
    std::vector<KbVec3f> points;
    for (int row = 0; row <= faces; ++row) {
        const float angle = turn / 2.0F * static_cast<float>(row) / static_cast<float>(faces);
        for (int i = 0; i < around; ++i)
            points.push_back(
                onCircle(radius * std::sin(angle), radius * std::cos(angle), i, around));
    }
    std::vector<std::int32_t> indices;
    for (int row = 0; row < faces; ++row) {
        for (int i = 0; i < around; ++i) {
            const int next = (i + 1) % around;
            const int above = row * around;
            const int below = above + around;
            indices.insert(indices.end(), { above + i, below + i, below + next, above + next, -1 });
        }
    }
    addPoints(parent, name + " points", points);
    return addFaces(parent, name, indices);
}

void addRing(KnGroup& parent, const std::string& name, float inner, float outer, int faces)
{
    std::vector<KbVec3f> points;
    std::vector<std::int32_t> indices;
    for (int i = 0; i < faces; ++i) {
        points.push_back(onCircle(inner, 0.0F, i, faces));
        points.push_back(onCircle(outer, 0.0F, i, faces));
        const int next = (i + 1) % faces;
        indices.insert(indices.end(), { 2 * i, 2 * i + 1, 2 * next + 1, 2 * next, -1 });
    }
    addPoints(parent, name + " points", points);
    addFaces(parent, name, indices);
}

void addCircle(KnGroup& parent, const std::string& name, float radius, int corners)
{
    std::vector<KbVec3f> points;
    std::vector<std::int32_t> indices;
    for (int i = 0; i < corners; ++i) {
        points.push_back(onCircle(radius, 0.0F, i, corners));
        indices.push_back(i);
    }
    add<KnDrawStyle>(parent, name + " style").style.setValue(KbName("LINES"));
    addPoints(parent, name + " points", points);
    addFaces(parent, name, indices);
}

void addLabel(KnGroup& parent, const std::string& text, float size, const KbVec3f& at)
{
    KnGroup& group = addGroup(parent, text + " label");
    addTransform(group, text + " label place").translation.setValue(at);
    auto& label = add<KnText>(group, text + " text");
    label.string.set1Value(0, KbString(text.c_str()));
    label.size.setValue(size);
    label.justification.setValue(KbName("CENTER"));
}
