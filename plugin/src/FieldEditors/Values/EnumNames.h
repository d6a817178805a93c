// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbName.h"

#include <QList>
#include <QString>

class KnSFEnum;

/// A name of an enum or a bit mask, as its editor shows it, with its value.
struct NamedValue {
    QString name;
    int value;
};

/// The names of a field with their values, in the field's order, read as Latin-1.
QList<NamedValue> namedValues(KnSFEnum* field);

/// The kernel's name for a text as it is shown.
KbName enumName(const QString& text);
