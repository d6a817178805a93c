// SPDX-License-Identifier: BSD-3-Clause
// The time that a picture of 10,000 triangles takes at 640 by 480, from a list of them and from the
// scene, against QPainter::drawPolygon of the same triangles, already projected, shaded and sorted,
// run in turns.
//
// Usage: bench_view [turns]
#include "KnCoordinates.h"
#include "KnGroup.h"
#include "KnIndexedFaceSet.h"
#include "KnNodePtr.h"
#include "OrbitCamera.h"
#include "SceneRenderer.h"
#include "SceneTraversal.h"
#include "Timing.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace {

constexpr int rows = 50;
constexpr int columns = 100; // of two triangles each

struct Triangle {
    QPointF corners[3];
    QRgb color;
    float nearness;
};

/// A ball whose surface is dented, so that parts of it hide others.
KnNodePtr makeScene()
{
    auto* const group = new KnGroup;
    KnNodePtr root(group);
    auto* const points = new KnCoordinates;
    auto* const faces = new KnIndexedFaceSet;
    group->addChild(points);
    group->addChild(faces);
    std::vector<std::int32_t> indices;
    for (int row = 0; row <= rows; ++row) {
        for (int i = 0; i < columns; ++i) {
            const float down = 3.14159F * float(row) / rows;
            const float around = 6.28319F * float(i) / columns;
            const float radius = 1.0F + 0.15F * std::sin(7.0F * down) * std::cos(5.0F * around);
            points->point.set1Value(row * columns + i,
                KbVec3f(radius * std::sin(down) * std::cos(around), radius * std::cos(down),
                    radius * std::sin(down) * std::sin(around)));
            const int here = row * columns + i;
            const int next = row * columns + (i + 1) % columns;
            if (row < rows)
                indices.insert(indices.end(),
                    { here, here + columns, next, -1, next, here + columns, next + columns, -1 });
        }
    }
    faces->coordIndex.setValues(0, int(indices.size()), indices.data());
    return root;
}

DrawList read(const KnNodePtr& root)
{
    SceneTraversal traversal;
    traversal.walk(*root.get());
    return traversal.takeList();
}

/// What the renderer has just drawn, as a painter needs it.
std::vector<Triangle> projected(const DrawList& list, const SceneRenderer& renderer)
{
    std::vector<Triangle> triangles;
    for (const DrawList::Face& face : list.faces) {
        Triangle triangle { {}, face.head, 0.0F };
        for (std::size_t i = 0; i < 3; ++i) {
            const auto at = renderer.project(face.corners[i]);
            if (!at)
                std::abort();
            triangle.corners[i] = QPointF(at->x, at->y);
            triangle.nearness += at->nearness;
        }
        triangles.push_back(triangle);
    }
    std::sort(triangles.begin(), triangles.end(),
        [](const Triangle& a, const Triangle& b) { return a.nearness < b.nearness; });
    return triangles;
}

void paint(QImage& image, const QImage& background, const std::vector<Triangle>& triangles)
{
    image = background;
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    for (const Triangle& triangle : triangles) {
        painter.setBrush(QColor::fromRgb(triangle.color));
        painter.drawPolygon(triangle.corners, 3);
    }
}

/// Milliseconds of processor time, which doesn't count what else the machine has to do.
template <class Work>
double measure(Work work)
{
    const std::clock_t start = std::clock();
    work();
    return double(std::clock() - start) * 1e3 / CLOCKS_PER_SEC;
}

} // namespace

int main(int argc, char** argv)
{
    const int turns = numberArgument(argc, argv, 1, 101);
    const KnNodePtr root = makeScene();
    QImage background(640, 480, QImage::Format_RGB32);
    background.fill(Qt::white);
    OrbitCamera camera;
    camera.reset();
    DrawList list = read(root);
    camera.fit(*list.bounds(), 4.0F / 3.0F);
    SceneRenderer renderer;
    QImage painted;

    std::vector<double> draws;
    std::vector<double> reads;
    std::vector<double> rivals;
    for (int turn = 0; turn < turns; ++turn) {
        camera.orbit(0.02F, 0.0F);
        reads.push_back(measure([&] { list = read(root); }));
        draws.push_back(measure([&] { renderer.draw(list, camera, background); }));
        const std::vector<Triangle> triangles = projected(list, renderer);
        rivals.push_back(measure([&] { paint(painted, background, triangles); }));
    }
    const double drawing = median(draws);
    const double all = drawing + median(reads);
    const double rival = median(rivals);
    std::printf(
        "%zu triangles at 640 x 480, frames a second of processor time\n", list.faces.size());
    std::printf(
        "  from the list:      %6.0f (ratio of the times %.2f)\n", 1e3 / drawing, drawing / rival);
    std::printf("  from the scene:     %6.0f (ratio of the times %.2f)\n", 1e3 / all, all / rival);
    std::printf("  QPainter, sorted:   %6.0f\n", 1e3 / rival);
    return 0;
}
