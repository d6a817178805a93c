// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFields.h"

#include <string>

class KnGroup;
class KnIndexedFaceSet;
class KnTransform;

// Nodes, made and put to the end of a group that owns them.

KnGroup& addGroup(KnGroup& parent, const std::string& name);
KnTransform& addTransform(KnGroup& parent, const std::string& name);
void addMaterial(KnGroup& parent, const std::string& name, const KbColor& color,
    float transparency = 0.0F, const KbColor& emissive = {});
/// A ball around the origin, with its poles on the y axis: twice as many faces around as from pole
/// to pole, those at the north pole first. It brings its own coordinates.
KnIndexedFaceSet& addBall(KnGroup& parent, const std::string& name, float radius, int faces);
/// A flat ring around the y axis.
void addRing(KnGroup& parent, const std::string& name, float inner, float outer, int faces);
/// A circle around the y axis, drawn as a line.
void addCircle(KnGroup& parent, const std::string& name, float radius, int corners);
/// A line of text in the middle over a place.
void addLabel(KnGroup& parent, const std::string& text, float size, const KbVec3f& at);
