// SPDX-License-Identifier: BSD-3-Clause
#include "Shading.h"

#include "KnMaterial.h"
#include "NodeKind.h"
#include "NodeMatrix.h"

#include <algorithm>

namespace {

constexpr float ambientLight = 0.5F;
constexpr float onlyHeadLamp = 0.9F;
constexpr float weakHeadLamp = 0.15F;

/// 0 for what is no number.
int channel(float value)
{
    return value > 0.0F ? static_cast<int>(std::min(value, 1.0F) * 255.0F + 0.5F) : 0;
}

QRgb toRgb(const QVector3D& color, float opacity = 1.0F)
{
    return qRgba(channel(color.x()), channel(color.y()), channel(color.z()), channel(opacity));
}

float fallOff(const SceneLight& light, float distance)
{
    const QVector3D& a = light.attenuation;
    const float divisor = (a.x() * distance + a.y()) * distance + a.z();
    return divisor > 0.0F ? 1.0F / divisor : 1.0F;
}

/// The colour of the side to which the normal points.
QVector3D litColor(const Surface& surface, const QVector3D& normal, const QVector3D& center,
    std::span<const SceneLight> lights)
{
    QVector3D color = surface.emissive + surface.ambient * ambientLight;
    for (const SceneLight& light : lights) {
        const bool isPoint = light.direction.isNull();
        QVector3D toLight = isPoint ? light.place - center : -light.direction;
        const float distance = toLight.length();
        if (distance == 0.0F)
            continue;
        const float slope = QVector3D::dotProduct(normal, toLight) / distance;
        if (slope > 0.0F)
            color
                += surface.diffuse * light.color * slope * (isPoint ? fallOff(light, distance) : 1);
    }
    return color;
}

} // namespace

Surface surfaceOf(const KnMaterial* material, int face)
{
    Surface surface;
    if (!material)
        return surface;
    if (const int count = rowsOf(material->diffuseColor))
        surface.diffuse = toVector(material->diffuseColor[std::min(face, count - 1)]);
    surface.ambient = toVector(valueOf(material->ambientColor, { 0.2F, 0.2F, 0.2F }));
    surface.emissive = toVector(valueOf(material->emissiveColor, {}));
    surface.opacity = 1.0F - valueOf(material->transparency, 0.0F);
    return surface;
}

Surface packedSurface(const Surface& surface, std::uint32_t packedColor)
{
    const auto byte
        = [packedColor](int shift) { return float(packedColor >> shift & 0xff) / 255.0F; };
    Surface packed = surface;
    packed.diffuse = { byte(24), byte(16), byte(8) };
    packed.opacity *= byte(0);
    return packed;
}

void shade(DrawList::Face& face, const Surface& surface, std::span<const SceneLight> lights)
{
    const QVector3D center = (face.corners[0] + face.corners[1] + face.corners[2]) / 3.0F;
    face.front = toRgb(litColor(surface, face.normal, center, lights), surface.opacity);
    face.back = toRgb(litColor(surface, -face.normal, center, lights));
    face.head = toRgb(surface.diffuse * (lights.empty() ? onlyHeadLamp : weakHeadLamp));
}

QRgb plainColor(const Surface& surface)
{
    return toRgb(surface.diffuse + surface.emissive, surface.opacity);
}
