// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>
#include <QString>

/// The titles of the inspector's window.
class WindowTitle {
    Q_DECLARE_TR_FUNCTIONS(WindowTitle)
public:
    /// Of a window on a scene file, with the place of the mark for "modified". An empty name stands
    /// for a scene that was never saved.
    static QString ofFile(const QString& fileName);
    /// Of a window on somebody else's scene.
    static QString ofGuest();
};
