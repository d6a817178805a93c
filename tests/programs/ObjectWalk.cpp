// SPDX-License-Identifier: BSD-3-Clause
#include "ObjectWalk.h"

#include <QMetaObject>
#include <QPointer>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTreeView>

namespace {

void press(QTreeView* view, Qt::Key key)
{
    QTest::keyClick(view, key);
    settle();
}

/// The property of that name with the class that declares it.
QByteArray declared(const QObject* object, const QByteArray& name)
{
    const QMetaObject* type = object->metaObject();
    const int index = type->indexOfProperty(name);
    while (index >= 0 && type->propertyOffset() > index)
        type = type->superClass();
    return QByteArray(type->className()) + '.' + name;
}

void clickNewFields(InspectorInput& input, QSet<QByteArray>& known, WalkResult& result)
{
    const QPointer<QObject> object = input.object();
    const QAbstractItemModel& model = *input.list()->model();
    for (int row = 0; row < model.rowCount() && object; ++row) {
        const QString name = model.index(row, 0).data().toString();
        const QByteArray field = declared(object, name.toUtf8());
        if (known.contains(field))
            continue;
        known.insert(field);
        if (!input.clickField(name)) {
            result.faults += QStringLiteral("a click on \"%1\" doesn't select it").arg(name);
            continue;
        }
        ++result.fields;
        result.editors += input.editor() ? 1 : 0;
    }
}

void pageThroughFields(const InspectorInput& input)
{
    const QScrollBar* const bar = input.list()->verticalScrollBar();
    input.list()->scrollToTop();
    while (bar->value() < bar->maximum()) {
        const int before = bar->value();
        input.list()->setFocus();
        press(input.list(), Qt::Key_PageDown);
        if (bar->value() == before)
            return;
    }
}

} // namespace

WalkResult walkThroughObjects(InspectorInput& input)
{
    WalkResult result;
    QSet<QByteArray> classes;
    QSet<QByteArray> fields;
    QTreeView* const tree = input.tree();
    input.activate();
    tree->setFocus();
    press(tree, Qt::Key_Home);
    for (;;) {
        const QModelIndex current = tree->currentIndex();
        if (tree->model()->hasChildren(current) && !tree->isExpanded(current))
            press(tree, Qt::Key_Right);
        const QObject* const object = input.object();
        if (!input.hasNode()) {
            // From here on the keys would begin anew at the top.
            result.faults
                += QStringLiteral("no node is selected at \"%1\"").arg(current.data().toString());
            break;
        }
        if (!object) {
            // A node of the inspector's own, which holds others together.
            pageThroughFields(input);
        } else if (object == input.tree() || object == input.list()) {
            result.faults += QStringLiteral("the inspector shows itself");
        } else {
            ++result.objects;
            classes.insert(object->metaObject()->className());
            clickNewFields(input, fields, result);
            pageThroughFields(input);
        }
        tree->setFocus();
        const QPersistentModelIndex before(tree->currentIndex());
        press(tree, Qt::Key_Down);
        if (tree->currentIndex() == before)
            break;
    }
    result.classes = static_cast<int>(classes.size());
    return result;
}
