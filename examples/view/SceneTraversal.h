// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ConvexPolygon.h"
#include "DrawList.h"
#include "Shading.h"

#include <QMatrix4x4>

#include <vector>

class KbPlane;
class KnCoordinates;
class KnDrawStyle;
class KnFieldContainer;
class KnGroup;
class KnIndexedFaceSet;
class KnLight;
class KnText;

/// Walks scene graphs and makes a draw list of them. Transforms, materials, coordinates, lights,
/// clip planes and styles act on what follows in their group. Coordinates that no face set takes up
/// are drawn as dots. Textures, normals and highlights are not drawn.
class SceneTraversal {
public:
    SceneTraversal();

    /// Adds what stands below a root. No node is kept.
    void walk(KnFieldContainer& root);

    DrawList takeList() { return std::move(m_list); }
    /// The nodes that were met; one that stands in several places comes as often.
    const std::vector<KnFieldContainer*>& nodes() const { return m_nodes; }

private:
    /// What the nodes of a group hand on to the next ones.
    struct State {
        QMatrix4x4 toWorld;
        const KnMaterial* material = nullptr;
        const KnDrawStyle* style = nullptr;
        int points = -1; // index of the coordinates in m_points
    };
    struct Points {
        KnCoordinates* node;
        State state; // in which they were met
        bool isUsed; // by a face set
    };

    void visit(KnFieldContainer& node, int parent);
    void visitGroup(KnGroup& group, int parent);
    void addLight(const KnLight& light, bool isPoint);
    void addClipPlane(const KbPlane& plane);
    void addViewpoint(const KnFieldContainer& node);
    void addFaces(KnIndexedFaceSet& node, int parent);
    void addFace(const Surface& surface, int place);
    void addFilled(const Surface& surface, const QVector3D& normal, int place);
    void addSegment(const QVector3D& from, const QVector3D& to, QRgb color, int place);
    void addDot(const QVector3D& at, QRgb color, float size, int place);
    void addDots(const Points& points, int parent);
    void addLabel(KnText& node, int parent);

    int addPlace(KnFieldContainer& node, int parent, NodeKind kind,
        DrawList::Reach reach = DrawList::Reach::Itself);
    bool isCutOff(const QVector3D& point) const;

    DrawList m_list;
    std::vector<KnFieldContainer*> m_nodes;
    State m_state;
    int m_depth = 0; // of groups
    // Each group cuts these back to what it found.
    std::vector<Points> m_points;
    std::vector<SceneLight> m_lights;
    std::vector<HalfSpace> m_clipPlanes;
    // These hold their memory from shape to shape.
    std::vector<QVector3D> m_corners; // of the coordinates
    std::vector<QVector3D> m_outline; // of a face
    ConvexPolygon m_polygon;
};
