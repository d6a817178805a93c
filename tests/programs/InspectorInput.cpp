// SPDX-License-Identifier: BSD-3-Clause
#include "InspectorInput.h"

#include "CrvObjects.h"
#include "CrvServices.h"

#include <QApplication>
#include <QDockWidget>
#include <QTest>
#include <QThread>
#include <QTreeView>

namespace {

QTreeView* viewOf(QLatin1String name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        if (widget->objectName() == name)
            return qobject_cast<QTreeView*>(widget);
    }
    return nullptr;
}

void click(QTreeView* view, const QModelIndex& index)
{
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
    settle();
}

} // namespace

void settle()
{
    // An event may post another one: a field is touched, its sensor runs, a view is painted.
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

bool InspectorInput::isReady()
{
    const QTreeView* const tree = viewOf(QLatin1String("sceneTree"));
    return tree && tree->window()->isVisible() && tree->model()->rowCount() > 1;
}

QObjectList InspectorInput::programObjects()
{
    QObjectList objects;
    for (const KnNodePtr& root : CrvServices::getInstance()->getRoots()) {
        if (QObject* const top = crvNodeObject(root.get())) {
            objects += top;
            objects += top->findChildren<QObject*>();
        }
    }
    objects.removeIf(
        [](const QObject* object) { return object->thread() != QThread::currentThread(); });
    return objects;
}

InspectorInput::InspectorInput()
    : m_tree(viewOf(QLatin1String("sceneTree")))
    , m_list(viewOf(QLatin1String("fieldList")))
    , m_window(m_tree->window())
{
}

QWidget* InspectorInput::editor() const
{
    const auto* const dock = m_window->findChild<QDockWidget*>(QStringLiteral("Field Editor"));
    return dock && dock->isVisible() ? dock->widget() : nullptr;
}

QObject* InspectorInput::object() const
{
    return crvNodeObject(CrvServices::getInstance()->getSelectedNode());
}

bool InspectorInput::hasNode() const { return CrvServices::getInstance()->getSelectedNode(); }

KnField* InspectorInput::field() const { return CrvServices::getInstance()->getSelectedField(); }

void InspectorInput::activate()
{
    m_window->raise();
    m_window->activateWindow();
    if (!QTest::qWaitForWindowActive(m_window))
        qWarning("the inspector's window isn't active");
}

QModelIndex InspectorInput::rowOf(QObject* object) const
{
    if (!object)
        return {};
    QAbstractItemModel& model = *m_tree->model();
    const QModelIndex parent = rowOf(object->parent());
    if (parent.isValid())
        m_tree->expand(parent);
    const QString label = object->objectName().isEmpty()
        ? QString::fromLatin1(object->metaObject()->className())
        : object->objectName();
    // Several may bear the name; a click tells which of them it is.
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() != label)
            continue;
        click(m_tree, index);
        if (this->object() == object)
            return index;
    }
    return {};
}

bool InspectorInput::clickObject(QObject* object)
{
    return this->object() == object || rowOf(object).isValid();
}

bool InspectorInput::clickField(const QString& name)
{
    const QAbstractItemModel& model = *m_list->model();
    const QModelIndex index
        = model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    if (!index.isValid())
        return false;
    click(m_list, index);
    return field() != nullptr;
}

void InspectorInput::press(QKeySequence::StandardKey keys)
{
    // An edit may have brought a window of the program to the front.
    if (!m_window->isActiveWindow())
        activate();
    m_list->setFocus();
    QTest::keySequence(m_list, keys);
    settle();
}

void InspectorInput::undo() { press(QKeySequence::Undo); }
void InspectorInput::redo() { press(QKeySequence::Redo); }
