// SPDX-License-Identifier: BSD-3-Clause
#include "OrbitCamera.h"
#include "SceneLines.h"
#include "SceneRenderer.h"
#include "SceneTraversal.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

DrawList listOf(const SceneLines& scene)
{
    SceneTraversal traversal;
    traversal.walk(*scene.root.get());
    return traversal.takeList();
}

QString toText(const QVector3D& v)
{
    QStringList numbers;
    for (int i = 0; i < 3; ++i)
        numbers += QString::number(std::round(v[i] * 100.0F) / 100.0F + 0.0F);
    return numbers.join(u' ');
}

/// The box around all that is drawn.
QString boxOf(const SceneLines& scene)
{
    const auto bounds = listOf(scene).bounds();
    return bounds ? toText(bounds->lowest) + u", "_s + toText(bounds->highest) : u"nothing"_s;
}

/// A camera on the z axis that looks at the origin; it sees two units up and down there.
OrbitCamera frontCamera()
{
    OrbitCamera camera;
    camera.place({ { 0.0F, 0.0F, 10.0F }, {}, 2.0F * std::atan(0.2F) }, { {}, {} });
    return camera;
}

QImage blackImage(int size)
{
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(Qt::black);
    return image;
}

} // namespace

/// How a scene becomes a picture, without a widget.
class TestSceneDrawing : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void placesAndCuts_data()
    {
        QTest::addColumn<QString>("box");
        const auto row = [](const char* lines, const char* box) {
            QTest::newRow(lines) << QString::fromUtf8(box);
        };
        row("Square", "-1 -1 0, 1 1 0");
        row("Transform: translation=5 0 0; rotation=0 0 1 1.5707963; scaleFactor=1 3 1\nSquare",
            "2 -1 0, 8 1 0");
        row("Transform: rotation=0 0 1 3.1415927; center=1 1 0\nSquare", "1 1 0, 3 3 0");
        row("Transform: scaleFactor=1 3 1; scaleOrientation=0 0 1 1.5707963\nSquare",
            "-3 -1 0, 3 1 0");
        row("MatrixTransform: matrix=1 0 0 0 0 1 0 0 0 0 1 0 1 2 3 1\nSquare", "0 1 3, 2 3 3");
        row("Transform: translation=1 0 0\nTransform: scaleFactor=2 2 2\nSquare", "-1 -2 0, 3 2 0");
        row("Group\n  Transform: translation=9 9 9\nSquare", "-1 -1 0, 1 1 0");
        row("Transform: translation=1 0 0\nGroup\n  Transform: translation=0 4 0\n  Square",
            "0 3 0, 2 5 0");
        row("Group: visible=FALSE\n  Square", "nothing");
        row("DrawStyle: style=INVISIBLE\nSquare", "nothing");
        row("DrawStyle: style=LINES\nSquare", "-1 -1 0, 1 1 0");
        row("Coordinates: point=[1 2 3, 4 5 6]", "1 2 3, 4 5 6");
        row("Coordinates: point=[0 0 0, 1 1 nan, inf 0 0]\nIndexedFaceSet: coordIndex=[0, 1, 2]",
            "nothing");
        row("Coordinates: point=[0 0 0]\nIndexedFaceSet: coordIndex=[0, 1, 7]", "nothing");
        row("Coordinates: point=[1 2 3]\nIndexedFaceSet: coordIndex=[0, 0, 0]", "nothing");
        row("ClipPlane: plane=1 0 0 0.25\nSquare", "0.25 -1 0, 1 1 0");
        row("ClipPlane: on=FALSE; plane=1 0 0 0.25\nSquare", "-1 -1 0, 1 1 0");
        row("ClipPlanes: plane=[2 0 0 0, 0 -1 0 -0.5]\nSquare", "0 -1 0, 1 0.5 0");
        row("Transform: translation=2 0 0; scaleFactor=2 1 1\nClipPlane: plane=1 0 0 0\nSquare",
            "2 -1 0, 4 1 0");
        row("Group\n  ClipPlane: plane=1 0 0 9\nSquare", "-1 -1 0, 1 1 0");
        row("ClipPlane: plane=1 0 0 0\nDrawStyle: style=LINES\nSquare", "0 -1 0, 1 1 0");
        row("ClipPlane: plane=1 0 0 2\nText: string=[\"a\"]", "nothing");
    }
    void placesAndCuts()
    {
        QFETCH(QString, box);
        QCOMPARE(boxOf(SceneLines(QTest::currentDataTag())), box);
    }

    void anIgnoredFieldHasItsDefault()
    {
        const SceneLines scene("Transform t: translation=5 0 0; scaleFactor=2 2 2\nSquare");
        scene.field(u"t.translation"_s)->setIgnored(1);
        scene.field(u"t.scaleFactor"_s)->setIgnored(1);
        QCOMPARE(boxOf(scene), u"-1 -1 0, 1 1 0"_s);
    }

    // A viewpoint stands where it is put, and looks where it is turned, in whatever scale.
    void theViewpointIsTransformed()
    {
        const SceneLines scene("Transform: translation=0 0 5; scaleFactor=3 3 3; rotation=0 1 0 "
                               "1.5707963\nViewpoint: position=1 0 0; orientation=0 0 1 1.5707963");
        const DrawList::Viewpoint viewpoint = *listOf(scene).viewpoint;
        QCOMPARE(toText(viewpoint.position), u"0 0 2"_s);
        QCOMPARE(toText(viewpoint.orientation.rotatedVector({ 0, 0, -1 })), u"-1 0 0"_s);
        QCOMPARE(toText(viewpoint.orientation.rotatedVector({ 0, 1, 0 })), u"0 0 1"_s);
    }

    void colors_data()
    {
        QTest::addColumn<QString>("pixel"); // in the middle
        // The lamp at the camera gives nine tenths, or 0.15 where there is another one, and it
        // shines at the squares from a little aside, which takes a hundredth away.
        const auto row = [](const char* lines, const char* pixel) {
            QTest::newRow(lines) << QString::fromUtf8(pixel);
        };
        row("Material: diffuseColor=1 0 0; ambientColor=0 0 0\nSquare", "#e30000");
        row("Material: diffuseColor=[0 1 0, 1 0 0]; ambientColor=0 0 0\nSquare", "#00e300");
        row("Material: ambientColor=0 0 0; transparency=0.5\nIndexedFaceSet", "#000000");
        row("Material: diffuseColor=0 0 0; ambientColor=0 0 0; emissiveColor=0 0 1\nSquare",
            "#0000ff");
        row("Material: diffuseColor=1 1 1; ambientColor=0 0 0\nDirectionalLight: color=1 0 0; "
            "intensity=0.5\nSquare",
            "#a52525");
        row("Material: diffuseColor=1 1 1; ambientColor=0 0 0\nPointLight: location=0 0 -9\nSquare",
            "#252525"); // from behind
        row("Material: diffuseColor=1 1 1; ambientColor=0 0 0\nPointLight: location=0 0 9; "
            "color=0 1 0; attenuation=0 0 2\nSquare",
            "#25a425");
        row("Group\n  DirectionalLight: on=FALSE\nMaterial: diffuseColor=1 0 0; ambientColor=0 0 "
            "0\nSquare",
            "#e30000");
        row("Material: diffuseColor=1 0 0; ambientColor=0 0 0\nSquare\nTransform: translation=0 0 "
            "1\nMaterial: diffuseColor=0 0 1; ambientColor=0 0 0\nSquare",
            "#0000e3"); // the nearer one
        row("Transform: translation=0 0 1\nMaterial: diffuseColor=0 0 1; ambientColor=0 0 "
            "0\nSquare\nTransform: translation=0 0 -1\nMaterial: diffuseColor=1 0 0; "
            "ambientColor=0 0 0\nSquare",
            "#0000e3");
        row("Transform: translation=0 0 1\nMaterial: diffuseColor=0 0 1; ambientColor=0 0 0; "
            "transparency=0.5\nSquare\nTransform: translation=0 0 -1\nMaterial: diffuseColor=1 0 "
            "0; ambientColor=0 0 0\nSquare",
            "#710071");
        row("Transform: translation=0 0 1\nMaterial: diffuseColor=0 0 1; ambientColor=0 0 0; "
            "transparency=0.5\nSquare\nTransform: translation=0 0 -1\nMaterial: diffuseColor=1 0 "
            "0; ambientColor=0 0 0; transparency=0.5\nSquare",
            "#380071");
        row("Transform: translation=0 0 11\nSquare", "#000000"); // behind the camera
    }
    void colors()
    {
        QFETCH(QString, pixel);
        SceneRenderer renderer;
        renderer.draw(listOf(SceneLines(QTest::currentDataTag())), frontCamera(), blackImage(41));
        QCOMPARE(renderer.pixels().image().pixelColor(22, 18).name(), pixel);
    }

    void aFaceHasItsOwnColor()
    {
        const SceneLines scene("Square s");
        scene.field(u"s.packedColor"_s)->set("[0x0000ff80]");
        const DrawList::Face face = listOf(scene).faces.front();
        QCOMPARE(qAlpha(face.front), 0x80);
        QCOMPARE(qBlue(face.head), 230);
        QCOMPARE(qRed(face.head), 0);
    }

    // A large face around the camera, cut at all sides of the picture, covers each pixel.
    void aFaceAroundTheCameraIsCutToThePicture()
    {
        const SceneLines scene("Transform: translation=0 -1 0; rotation=1 0 0 -1.5707963; "
                               "scaleFactor=1000 1000 1\nSquare floor");
        SceneRenderer renderer;
        renderer.draw(listOf(scene), frontCamera(), blackImage(40));
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x)
                QCOMPARE(renderer.pixels().markAt(x, y) != Rasterizer::noMark, y >= 20);
        }
    }

    // Triangles of a fan meet without gaps, and none draws a pixel that is another's.
    void trianglesMeet()
    {
        Rasterizer pixels;
        pixels.start(blackImage(100));
        const auto corner = [](int i) {
            const float angle = float(i) * 0.6283185F;
            return Rasterizer::Vertex { 50.3F + 40.0F * std::cos(angle),
                50.7F + 40.0F * std::sin(angle), 1.0F };
        };
        for (int i = 0; i < 10; ++i)
            pixels.fillTriangle(
                { 50.3F, 50.7F, 1.0F }, corner(i), corner(i + 1), qRgba(255, 255, 255, 100), i);
        int drawn = 0;
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 100; ++x) {
                const bool isIn = std::hypot(float(x) - 49.8F, float(y) - 50.2F) < 37.0F;
                QVERIFY(!isIn || pixels.markAt(x, y) >= 0);
                drawn += pixels.image().pixelColor(x, y).red() == 100;
            }
        }
        QVERIFY(drawn > 4200); // each once: twice would be lighter
    }
};

QTEST_GUILESS_MAIN(TestSceneDrawing)
#include "test_scene_drawing.moc"
