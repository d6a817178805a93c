// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DrawList.h"

#include <cstdint>
#include <span>

class KnMaterial;

/// A light, in the coordinates of the world. A colour is red, green and blue.
struct SceneLight {
    QVector3D color; // times the intensity
    QVector3D direction; // in which the rays run, of length 1; zero for a light in one point
    QVector3D place; // of a light in one point
    QVector3D attenuation; // quadratic, linear and constant factors
};

/// What a face is made of.
struct Surface {
    QVector3D diffuse { 0.8F, 0.8F, 0.8F };
    QVector3D ambient { 0.2F, 0.2F, 0.2F };
    QVector3D emissive;
    float opacity = 1.0F;
};

/// The surface of a face by its number; null for no material.
Surface surfaceOf(const KnMaterial* material, int face);
/// The same with the colour of its own that a face may have: red, green, blue and alpha, a byte
/// each.
Surface packedSurface(const Surface& surface, std::uint32_t packedColor);

/// Gives a face its colours. Both sides of it are lit. Without any light there is one at the
/// camera, and with some there is still a weak one, so that nothing is lost in the dark.
void shade(DrawList::Face& face, const Surface& surface, std::span<const SceneLight> lights);

/// The colour of something that has no side, such as a line.
QRgb plainColor(const Surface& surface);
