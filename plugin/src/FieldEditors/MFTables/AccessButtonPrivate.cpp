// SPDX-License-Identifier: BSD-3-Clause
#include "AccessButtonPrivate.h"

#include "NumberLocale.h"

#include <QKeyEvent>

AccessButtonPrivate::AccessButtonPrivate(
    int minimum, int maximum, int step, QWidget* parent, const char* name)
    : AccessButtonPrivate(parent, name)
{
    setRange(minimum, maximum);
    setSingleStep(step);
}

AccessButtonPrivate::AccessButtonPrivate(QWidget* parent, const char* name)
    : QSpinBox(parent)
{
    setObjectName(QLatin1String(name));
    setLocale(numberLocale());
}

void AccessButtonPrivate::setNewValue(int value) { setValue(value + 1); }

void AccessButtonPrivate::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT valueChanged(value());
    else
        QAbstractSpinBox::keyPressEvent(event);
}
