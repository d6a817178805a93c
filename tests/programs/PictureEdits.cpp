// SPDX-License-Identifier: BSD-3-Clause
#include "PictureEdits.h"

#include "CrvObjects.h"
#include "CrvServices.h"
#include "EditorInput.h"

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QWindow>

namespace {

constexpr int patience = 20000; // milliseconds, for software that draws on a busy machine

QWidget* torusWindow()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->objectName() == QLatin1String("torusWindow"))
            return widget;
    }
    return nullptr;
}

QObject* linked(const QWidget* window, const char* property)
{
    return window->property(property).value<QObject*>();
}

/// What the screen shows inside of a window.
QImage pictureOf(const QWidget* window)
{
    const QPoint corner = window->mapToGlobal(QPoint());
    return window->screen()
        ->grabWindow(0, corner.x(), corner.y(), window->width(), window->height())
        .toImage();
}

bool isOneColor(const QImage& picture)
{
    const QImage point = picture.copy(picture.width() / 2, 0, 1, 1);
    return picture == point.scaled(picture.size());
}

/// Whether something is drawn, and drawn completely: two looks see the same.
bool awaitDrawing(const QWidget* window)
{
    QImage last;
    return QTest::qWaitFor(
        [&] {
            const QImage picture = pictureOf(window);
            return !isOneColor(picture) && picture == std::exchange(last, picture);
        },
        patience);
}

/// Qt 3D's objects have no parent that leads to a window, so the scene becomes a root of its own.
void showInTree(QObject* object)
{
    if (InspectorInput::programObjects().contains(object))
        return;
    while (object->parent())
        object = object->parent();
    CrvServices* const services = CrvServices::getInstance();
    std::vector<KnNodePtr> roots = services->getRoots();
    roots.emplace_back(crvObjectNode(object));
    services->setRoots(std::move(roots));
    settle();
}

struct Drag {
    QObject* object;
    const char* field;
};

/// Empty if all went well.
QString drag(InspectorInput& input, const QWidget* window, const Drag& what)
{
    if (!what.object || !input.clickObject(what.object)
        || !input.clickField(QLatin1String(what.field)))
        return QStringLiteral("isn't in the tree");
    const QImage before = pictureOf(window);
    const QVariant value = what.object->property(what.field);
    if (!input.editor() || !editByInput(input.editor(), value)
        || what.object->property(what.field) == value)
        return QStringLiteral("isn't changed by the slider");
    const auto differs = [&] { return pictureOf(window) != before; };
    if (!QTest::qWaitFor(differs, patience))
        return QStringLiteral("doesn't change the picture");
    input.undo();
    if (what.object->property(what.field) != value)
        return QStringLiteral("isn't what it was after undo");
    if (!QTest::qWaitFor([&] { return !differs(); }, patience))
        return QStringLiteral("leaves another picture after undo");
    return QString();
}

} // namespace

PictureResult editPicture(InspectorInput& input)
{
    PictureResult result;
    QWidget* const window = torusWindow();
    if (!window)
        return { 0, { QStringLiteral("no window with a torus") } };
    // Beside each other, since the screen shows only what no window covers.
    window->move(20, 30);
    input.tree()->window()->resize(1200, 420);
    input.tree()->window()->move(20, 560);
    input.activate();
    if (!awaitDrawing(window))
        return { 0, { QStringLiteral("nothing is drawn") } };
    QObject* const scene = linked(window, "scene");
    showInTree(scene);
    const Drag drags[] = {
        { scene->findChild<QObject*>(QStringLiteral("torusTransform")), "rotationX" },
        { scene->findChild<QObject*>(QStringLiteral("torusMaterial")), "shininess" },
        { scene->findChild<QObject*>(QStringLiteral("torusMesh")), "minorRadius" },
        { scene->findChild<QObject*>(QStringLiteral("lampLight")), "intensity" },
        { linked(window, "camera"), "fieldOfView" },
    };
    for (const Drag& what : drags) {
        const QString fault = drag(input, window, what);
        if (fault.isEmpty())
            ++result.changes;
        else
            result.faults += QLatin1String(what.field) + u' ' + fault;
    }
    return result;
}
