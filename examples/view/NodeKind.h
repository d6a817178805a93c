// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"

#include <vector>

class KnFieldContainer;

/// What a node is to whoever draws it. A class that derives from one of these is of its kind.
enum class NodeKind {
    NotDrawn,
    Group,
    Transform,
    MatrixTransform,
    Material,
    Coordinates,
    IndexedFaceSet,
    Text,
    DrawStyle,
    DirectionalLight,
    PointLight,
    ClipPlane,
    ClipPlanes,
    Viewpoint,
};

NodeKind kindOf(const KnFieldContainer& node);

/// The fields of a node that the picture depends on. They stay the node's.
std::vector<KnField*> drawnFields(KnFieldContainer& node);

/// What the scene makes of a field: its value, or the given one if it is ignored.
template <class Field>
typename Field::Value valueOf(const Field& field, typename Field::Value otherwise)
{
    return field.isIgnored() ? otherwise : field.getValue();
}

/// The rows that the scene makes use of: none of an array that is ignored.
template <class Field>
int rowsOf(const Field& field)
{
    return field.isIgnored() ? 0 : field.getNum();
}
