// SPDX-License-Identifier: BSD-3-Clause
#include "NodeKind.h"

#include "KnClipPlane.h"
#include "KnClipPlanes.h"
#include "KnCoordinates.h"
#include "KnDirectionalLight.h"
#include "KnDrawStyle.h"
#include "KnGroup.h"
#include "KnIndexedFaceSet.h"
#include "KnMaterial.h"
#include "KnMatrixTransform.h"
#include "KnPointLight.h"
#include "KnText.h"
#include "KnTransform.h"
#include "KnViewpoint.h"

namespace {

template <class Node>
bool isA(const KnFieldContainer& node)
{
    return dynamic_cast<const Node*>(&node) != nullptr;
}

template <class Node, class... Members>
std::vector<KnField*> fieldsOf(KnFieldContainer& node, Members... members)
{
    Node& drawn = static_cast<Node&>(node);
    return { &(drawn.*members)... };
}

} // namespace

NodeKind kindOf(const KnFieldContainer& node)
{
    struct Row {
        bool (*matches)(const KnFieldContainer& node);
        NodeKind kind;
    };
    static constexpr Row rows[] = {
        { isA<KnGroup>, NodeKind::Group },
        { isA<KnTransform>, NodeKind::Transform },
        { isA<KnMaterial>, NodeKind::Material },
        { isA<KnIndexedFaceSet>, NodeKind::IndexedFaceSet },
        { isA<KnCoordinates>, NodeKind::Coordinates },
        { isA<KnMatrixTransform>, NodeKind::MatrixTransform },
        { isA<KnText>, NodeKind::Text },
        { isA<KnDrawStyle>, NodeKind::DrawStyle },
        { isA<KnDirectionalLight>, NodeKind::DirectionalLight },
        { isA<KnPointLight>, NodeKind::PointLight },
        { isA<KnClipPlane>, NodeKind::ClipPlane },
        { isA<KnClipPlanes>, NodeKind::ClipPlanes },
        { isA<KnViewpoint>, NodeKind::Viewpoint },
    };
    for (const Row& row : rows) {
        if (row.matches(node))
            return row.kind;
    }
    return NodeKind::NotDrawn;
}

std::vector<KnField*> drawnFields(KnFieldContainer& node)
{
    switch (kindOf(node)) {
    case NodeKind::Group:
        return fieldsOf<KnGroup>(node, &KnGroup::visible);
    case NodeKind::Transform:
        return fieldsOf<KnTransform>(node, &KnTransform::translation, &KnTransform::rotation,
            &KnTransform::scaleFactor, &KnTransform::scaleOrientation, &KnTransform::center);
    case NodeKind::MatrixTransform:
        return fieldsOf<KnMatrixTransform>(node, &KnMatrixTransform::matrix);
    case NodeKind::Material:
        return fieldsOf<KnMaterial>(node, &KnMaterial::ambientColor, &KnMaterial::diffuseColor,
            &KnMaterial::emissiveColor, &KnMaterial::transparency);
    case NodeKind::Coordinates:
        return fieldsOf<KnCoordinates>(node, &KnCoordinates::point);
    case NodeKind::IndexedFaceSet:
        return fieldsOf<KnIndexedFaceSet>(
            node, &KnIndexedFaceSet::coordIndex, &KnIndexedFaceSet::packedColor);
    case NodeKind::Text:
        return fieldsOf<KnText>(node, &KnText::string, &KnText::fontName, &KnText::size,
            &KnText::spacing, &KnText::justification, &KnText::width);
    case NodeKind::DrawStyle:
        return fieldsOf<KnDrawStyle>(
            node, &KnDrawStyle::style, &KnDrawStyle::pointSize, &KnDrawStyle::lineWidth);
    case NodeKind::DirectionalLight:
        return fieldsOf<KnDirectionalLight>(node, &KnLight::on, &KnLight::intensity,
            &KnLight::color, &KnDirectionalLight::direction);
    case NodeKind::PointLight:
        return fieldsOf<KnPointLight>(node, &KnLight::on, &KnLight::intensity, &KnLight::color,
            &KnPointLight::location, &KnPointLight::attenuation);
    case NodeKind::ClipPlane:
        return fieldsOf<KnClipPlane>(node, &KnClipPlane::on, &KnClipPlane::plane);
    case NodeKind::ClipPlanes:
        return fieldsOf<KnClipPlanes>(node, &KnClipPlanes::on, &KnClipPlanes::plane);
    case NodeKind::Viewpoint:
        return fieldsOf<KnViewpoint>(
            node, &KnViewpoint::position, &KnViewpoint::orientation, &KnViewpoint::heightAngle);
    case NodeKind::NotDrawn:
        break;
    }
    return {};
}
