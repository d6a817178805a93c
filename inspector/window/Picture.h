// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>

class QMainWindow;
class QString;

/// Draws a window into a file.
class Picture {
    Q_DECLARE_TR_FUNCTIONS(Picture)
public:
    /// Shows the window, waits until nothing in it moves any more and writes a PNG file. False if
    /// the file can't be written; `error` says why.
    static bool take(QMainWindow& window, const QString& fileName, QString* error);
};
