// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvServices.h"
#include "FieldListModel.h"
#include "InspectorFixture.h"

#include <QLabel>
#include <QUndoStack>

/// Base of tests of the list of fields: the list, its cells and what stands below it.
class FieldListTest : public InspectorTest {
    Q_OBJECT
protected:
    QTreeView* list() const { return m_inspector->view(u"fieldList"_s); }
    QUndoStack& stack() const { return *CrvServices::getInstance()->getUndoStack(); }
    /// By "Node.field".
    void choose(const QString& place)
    {
        m_inspector->clickField(place.section(u'.', 0, 0), place.section(u'.', 1));
    }
    QModelIndex cell(const QString& field, int column = FieldListModel::ValueColumn) const
    {
        const QAbstractItemModel& model = *list()->model();
        const QModelIndex found = model.match(model.index(0, 0), Qt::DisplayRole, field).value(0);
        list()->scrollTo(found);
        return found.siblingAtColumn(column);
    }
    void clickWith(Qt::KeyboardModifiers modifiers, const QString& field) const
    {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers,
            list()->visualRect(cell(field, FieldListModel::NameColumn)).center());
    }
    /// What the panel tells.
    QString message() const
    {
        const auto* const label = m_inspector->window.findChild<QLabel*>(u"fieldMessage"_s);
        return label->isVisible() ? label->text() : QString();
    }
    /// The widget of that kind that is open in the list.
    template <class Widget>
    Widget* open() const
    {
        for (auto* const widget :
            list()->viewport()->findChildren<Widget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }
};
