// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldSensor.h"
#include "KnSensorQueue.h"
#include "SceneLines.h"
#include "SceneView.h"
#include "TextRows.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

// Seen from 10 units away; the squares are 80 pixels wide, side by side, the label is below them.
const char* const someScene = R"(
Viewpoint eye: position=0 0 10; heightAngle=0.5235988
Material paint: diffuseColor=[1 0 0]; ambientColor=0 0 0
DirectionalLight sun
ClipPlane cut: on=FALSE; plane=0 1 0 0.5
DrawStyle style
Group left
  Transform move: translation=-1.5 0 0
  Square leftSquare
Group right
  MatrixTransform matrix: matrix=1 0 0 0 0 1 0 0 0 0 1 0 1.5 0 0 1
  Coordinates points: point=[-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]
  IndexedFaceSet rightSquare: coordIndex=[0, 1, 2, 3, -1]
Material next
Group sign
  Transform: translation=0 -2 0
  Text label: string=["Text"]; justification=CENTER
)";

/// What a click would hit, in pixels of the view.
const QPoint onLeft(140, 100);
const QPoint onRight(260, 100);
const QPoint onLabel(200, 171);
const QPoint onNothing(200, 20);

class PaintCounter : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

} // namespace

/// The view as a person meets it.
class TestSceneView : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        m_scene = std::make_unique<SceneLines>(someScene);
        m_view = std::make_unique<SceneView>();
        m_view->setRoots({ m_scene->root });
        m_view->resize(400, 200);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
        settle();
    }
    void cleanup()
    {
        m_view.reset();
        CrvServices::getInstance()->setPaused(false);
        CrvServices::getInstance()->selectNode(nullptr);
        QCOMPARE(m_scene->root->getReferenceCount(), 1);
    }

    void aChangeIsSeen_data()
    {
        addTextRows({ { "eye.position", "0 0 12" }, { "paint.diffuseColor", "0 1 0" },
            { "sun.intensity", "0.5" }, { "cut.on", "TRUE" }, { "style.style", "LINES" },
            { "left.visible", "FALSE" }, { "move.rotation", "0 0 1 0.5" },
            { "matrix.matrix", "1 0 0 0 0 1 0 0 0 0 1 0 2 0 0 1" },
            { "points.point", "[-1 -1 0, 1 -1 0, 1 1.5 0, -1 1 0]" },
            { "rightSquare.coordIndex", "[0, 1, 2]" },
            { "rightSquare.packedColor", "[0x00ff00ff]" }, { "next.diffuseColor", "[0 1 0]" },
            { "label.string", "[\"More\"]" } });
    }
    void aChangeIsSeen()
    {
        const auto [place, value] = textRow<2>();
        KnField* const field = m_scene->field(place);
        const QImage before = picture();
        KbString text;
        field->get(text);
        field->set(toKbString(value));
        settle();
        QVERIFY(picture() != before);
        field->set(text);
        settle();
        QCOMPARE(picture(), before);
    }

    // Nodes that have come are watched, those that have gone are not.
    void nodesComeAndGo()
    {
        auto& root = static_cast<KnGroup&>(*m_scene->root.get());
        const QImage before = picture();
        auto* const group = static_cast<KnGroup*>(m_scene->add(root, u"Group new"_s));
        settle();
        m_scene->add(*group, u"Transform shift: translation=0 1.5 0"_s);
        m_scene->add(*group, u"Text: string=[\"New\"]"_s);
        settle();
        const QImage with = picture();
        QVERIFY(with != before);
        m_scene->field(u"shift.translation"_s)->set("0 1 0");
        settle();
        QVERIFY(picture() != with);

        const KnNodePtr kept(group);
        root.removeChild(group);
        settle();
        QCOMPARE(picture(), before);
        m_scene->field(u"shift.translation"_s)->touch();
        QVERIFY(KnSensorQueue::getInstance().isEmpty());
    }

    void manyChangesArePaintedOnce()
    {
        PaintCounter counter;
        m_view->installEventFilter(&counter);
        for (KnField* const field : m_scene->fields())
            field->touch();
        settle();
        QCOMPARE(counter.count, 1);
    }

    void aHiddenViewWatchesNothing()
    {
        m_scene->field(u"move.translation"_s)->touch();
        QVERIFY(!KnSensorQueue::getInstance().isEmpty());
        m_view->hide();
        const QImage before = picture(); // which nobody sees, and which attaches nothing
        touchEverything();
        QVERIFY(KnSensorQueue::getInstance().isEmpty());
        m_scene->field(u"paint.diffuseColor"_s)->set("0 1 0");
        const QImage after = picture();
        QVERIFY(after != before);
        m_view->show();
        settle();
        QCOMPARE(picture(), after);
    }

    void clicks_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QString>("selected");
        QTest::newRow("left") << onLeft << onLeft << u"leftSquare"_s;
        QTest::newRow("right, a little shaken")
            << onRight << onRight + QPoint(2, 1) << u"rightSquare"_s;
        QTest::newRow("text") << onLabel << onLabel << u"label"_s;
        QTest::newRow("background") << onNothing << onNothing << u"eye"_s;
        QTest::newRow("drag") << onLeft << onLeft + QPoint(40, 0) << u"eye"_s;
        QTest::newRow("drag to and fro") << onLeft << onLeft << u"eye"_s;
    }
    void clicks()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        CrvServices::getInstance()->selectNode(m_scene->node(u"eye"_s));
        QTest::mousePress(m_view.get(), Qt::LeftButton, {}, from);
        if (QByteArray(QTest::currentDataTag()).startsWith("drag"))
            moveMouse(from + QPoint(60, 0), Qt::LeftButton);
        moveMouse(to, Qt::LeftButton);
        QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, to);
        QTEST(toQString(CrvServices::getInstance()->getSelectedNode()->getName()), "selected");
    }

    // While the view is paused it shows nodes that may be gone.
    void aNodeThatIsGoneIsNotSelected()
    {
        CrvServices::getInstance()->setPaused(true);
        auto& root = static_cast<KnGroup&>(*m_scene->root.get());
        KnFieldContainer* const right = m_scene->node(u"rightSquare"_s);
        root.removeChild(m_scene->node(u"left"_s)); // for good: nobody else holds it
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, onLeft);
        QCOMPARE(CrvServices::getInstance()->getSelectedNode(), nullptr);
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, onRight);
        QCOMPARE(CrvServices::getInstance()->getSelectedNode(), right);
    }

    void whatIsSelectedIsOutlined_data()
    {
        addTextRows({ { "leftSquare", "left" }, { "right", "right" }, { "sign" },
            { "paint", "left right" }, { "move", "left" }, { "points", "right" }, { "next" } });
    }
    void whatIsSelectedIsOutlined()
    {
        const auto [name, framed] = textRow<2>();
        CrvServices::getInstance()->selectNode(m_scene->node(name));
        settle();
        const QColor highlight = m_view->palette().color(QPalette::Highlight);
        const QImage shown = picture();
        const auto isFramed = [&](QPoint in) { // on the way up from inside
            for (; in.y() > 40; in.ry()--) {
                if (shown.pixelColor(in) == highlight)
                    return true;
            }
            return false;
        };
        QCOMPARE(isFramed(onLeft), framed.contains(u"left"));
        QCOMPARE(isFramed(onRight), framed.contains(u"right"));
    }

    void looking_data()
    {
        addTextRows({ { "orbit" }, { "pan" }, { "middle" }, { "wheel" }, { "double click" },
            { "Home" }, { "Left" }, { "Right" }, { "Up" }, { "Down" }, { "+" }, { "-" } });
    }
    void looking()
    {
        std::vector<std::unique_ptr<KnFieldSensor>> sensors;
        for (KnField* const field : m_scene->fields()) {
            sensors.push_back(std::make_unique<KnFieldSensor>(
                +[](void*, KnSensor*) {}, nullptr));
            sensors.back()->attach(field);
        }
        const QImage before = picture();
        look(textRow<1>()[0]);
        QVERIFY(KnSensorQueue::getInstance().isEmpty()); // nobody has written
        settle();
        QVERIFY(picture() != before);

        const QImage after = picture();
        m_scene->field(u"eye.position"_s)->set("0 0 12"); // which the person has left
        settle();
        QCOMPARE(picture(), after);
    }

    void anEmptySceneSaysSo()
    {
        m_view->setRoots({});
        const QImage without = picture();
        m_view->setRoots({ KnNodePtr(new KnGroup) });
        const QImage empty = picture();
        QVERIFY(empty != without);
        for (const QImage& image : { without, empty }) {
            bool isWritten = false; // the background is of one colour from left to right
            for (int i = 0; i < 380 * 30; ++i) {
                const QPoint pixel(10 + i % 380, 85 + i / 380);
                isWritten = isWritten || image.pixel(pixel) != image.pixel(5, pixel.y());
            }
            QVERIFY(isWritten);
        }
    }

private:
    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        KnSensorQueue::getInstance().process();
        QCoreApplication::processEvents();
    }
    QImage picture() { return m_view->grab().toImage(); }
    void touchEverything()
    {
        for (KnField* const field : m_scene->fields())
            field->touch();
        static_cast<KnGroup&>(*m_scene->root.get()).moveChild(0, 1);
    }
    void moveMouse(const QPoint& to, Qt::MouseButton button, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(
            QEvent::MouseMove, to, m_view->mapToGlobal(to), Qt::NoButton, button, keys);
        QApplication::sendEvent(m_view.get(), &event);
    }
    void drag(Qt::MouseButton button, Qt::KeyboardModifiers keys)
    {
        QTest::mousePress(m_view.get(), button, keys, onLeft);
        moveMouse(onLeft + QPoint(20, 10), button, keys);
        moveMouse(onLeft + QPoint(40, 20), button, keys);
        QTest::mouseRelease(m_view.get(), button, keys, onLeft + QPoint(40, 20));
    }
    void look(const QString& input)
    {
        if (input == u"orbit" || input == u"middle") {
            drag(input == u"middle" ? Qt::MiddleButton : Qt::LeftButton, {});
        } else if (input == u"pan") {
            drag(Qt::LeftButton, Qt::ShiftModifier);
        } else if (input == u"wheel") {
            QWheelEvent event(onLeft, m_view->mapToGlobal(onLeft), {}, { 0, 120 }, Qt::NoButton, {},
                Qt::NoScrollPhase, false);
            QApplication::sendEvent(m_view.get(), &event);
        } else if (input == u"double click") {
            QTest::mouseDClick(m_view.get(), Qt::LeftButton, {}, onNothing);
        } else {
            QTest::keySequence(m_view.get(), QKeySequence(input));
        }
    }

    std::unique_ptr<SceneLines> m_scene;
    std::unique_ptr<SceneView> m_view;
};

QTEST_MAIN(TestSceneView)
#include "test_scene_view.moc"
