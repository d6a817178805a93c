// SPDX-License-Identifier: BSD-3-Clause
#include "FileDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <utility>

FileDrop::FileDrop(QWidget* widget, std::function<void(const QString&)> take)
    : QObject(widget)
    , m_take(std::move(take))
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto* const drop = static_cast<QDropEvent*>(event);
    const QString file = fileOf(drop->mimeData());
    if (file.isEmpty())
        return QObject::eventFilter(watched, event);
    drop->acceptProposedAction();
    if (type == QEvent::Drop)
        m_take(file);
    return true;
}

/// Empty unless it is one local file.
QString FileDrop::fileOf(const QMimeData* data)
{
    return data->urls().size() == 1 ? data->urls().constFirst().toLocalFile() : QString();
}
