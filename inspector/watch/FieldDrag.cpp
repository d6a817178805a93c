// SPDX-License-Identifier: BSD-3-Clause
#include "FieldDrag.h"

#include "FieldMimeData.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDrag>
#include <QMouseEvent>

#include <memory>
#include <utility>

FieldDrag::FieldDrag(QAbstractItemView* view, FieldOf fieldOf)
    : QObject(view)
    , m_view(view)
    , m_fieldOf(std::move(fieldOf))
{
    view->viewport()->installEventFilter(this);
}

bool FieldDrag::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* const press = static_cast<QMouseEvent*>(event);
        m_position = press->position().toPoint();
        m_pressed = press->button() == Qt::LeftButton ? m_view->indexAt(m_position) : QModelIndex();
    } else if (event->type() == QEvent::MouseButtonRelease) {
        m_pressed = QModelIndex();
    } else if (event->type() == QEvent::MouseMove && m_pressed.isValid()) {
        const QPoint way = static_cast<QMouseEvent*>(event)->position().toPoint() - m_position;
        if (way.manhattanLength() >= QApplication::startDragDistance())
            start();
        return true; // the view would select the rows on the way
    }
    return QObject::eventFilter(watched, event);
}

void FieldDrag::start()
{
    KnField* const field = m_fieldOf(std::exchange(m_pressed, QPersistentModelIndex()));
    if (!field)
        return;
    auto* const drag = new QDrag(m_view); // goes away by itself
    auto data = std::make_unique<FieldMimeData>(*field);
    drag->setMimeData(data.release()); // which the drag owns
    drag->exec(Qt::CopyAction);
}
