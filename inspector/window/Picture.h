// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>

class QMainWindow;
class QSize;
class QString;

/// Draws a window into a file.
class Picture {
    Q_DECLARE_TR_FUNCTIONS(Picture)
public:
    /// Whether a picture can be written in the format that the suffix of the file says; a file
    /// without one is a PNG. Otherwise `error` names the suffixes that can be.
    static bool hasKnownFormat(const QString& fileName, QString* error);

    /// Shows the window, waits until nothing in it moves any more and writes the file. An invalid
    /// size leaves the window as large as it is. False if the file can't be written; `error` says
    /// why.
    static bool take(
        QMainWindow& window, const QSize& size, const QString& fileName, QString* error);
};
