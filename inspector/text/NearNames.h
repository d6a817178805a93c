// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QStringList>

/// How many letters have to be put in, left out, replaced or swapped with their neighbour to make
/// one text of the other. Upper and lower case are the same.
int editDistance(const QString& a, const QString& b);

/// What somebody who typed `text` may have meant: up to three of the names, the nearest first,
/// those that only contain it last. None if no name is near.
QStringList nearNames(const QString& text, const QStringList& names);
