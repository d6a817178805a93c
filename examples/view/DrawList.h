// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "NodeKind.h"

#include <QColor>
#include <QQuaternion>
#include <QStringList>
#include <QVector3D>

#include <array>
#include <optional>
#include <vector>

class KnFieldContainer;

/// What a scene looks like, as plain values in the coordinates of the world: it can be drawn from
/// any side without a look at the scene. The nodes in it are names to compare with and nothing
/// more, since they may be gone by the time.
class DrawList {
public:
    /// How far a place reaches beyond what stands below it.
    enum class Reach {
        Itself,
        Rest, // what follows in its group, as a transform does
        RestToNext, // the same up to the next of its kind, as a material does
    };
    /// Where a node stands in the scene; one that stands in several places has several.
    struct Place {
        KnFieldContainer* node;
        int parent; // index of the place above; -1 at a root
        NodeKind kind;
        Reach reach;
    };
    /// A triangle of one colour. The alpha of `front` counts for all of them.
    struct Face {
        std::array<QVector3D, 3> corners;
        QVector3D normal; // of length 1, on the front
        QRgb front; // in the light of the scene
        QRgb back;
        QRgb head; // what a lamp at the camera adds when it shines straight at the face
        int place;
    };
    struct Segment {
        std::array<QVector3D, 2> ends;
        QRgb color;
        float width; // pixels
        int place;
    };
    struct Dot {
        QVector3D at;
        QRgb color;
        float size; // pixels
        int place;
    };
    enum class Justification { Left, Center, Right };
    /// Lines of text, all in one place.
    struct Label {
        QVector3D at;
        QStringList lines;
        std::vector<float> widths; // of the lines, in the unit of the size; 0 for the natural one
        QString fontFamily;
        float size; // points
        float spacing; // lines
        Justification justification;
        std::optional<QColor> color; // none for one that goes with the background
        int place;
    };
    struct Viewpoint {
        QVector3D position;
        QQuaternion orientation; // of a camera that looks along -z, with y up
        float heightAngle; // radians
    };
    /// The lowest and the highest corner of the box around all that is drawn.
    struct Bounds {
        QVector3D lowest;
        QVector3D highest;

        QVector3D center() const { return (lowest + highest) / 2.0F; }
        float radius() const { return (highest - lowest).length() / 2.0F; }
    };

    std::vector<Place> places; // a parent comes before what is below it
    std::vector<Face> faces;
    std::vector<Segment> segments;
    std::vector<Dot> dots;
    std::vector<Label> labels;
    std::optional<Viewpoint> viewpoint; // the first of the scene
    bool isCut = false; // whether the scene holds more than is drawn

    bool isEmpty() const;
    /// None for an empty list.
    std::optional<Bounds> bounds() const;
    /// For each place, whether it is one of the node, stands below one or is in its reach.
    std::vector<bool> placesOf(const KnFieldContainer* node) const;
};
