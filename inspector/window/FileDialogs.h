// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

/// What the menus that read and write scene files ask and say.
class FileDialogs {
    Q_DECLARE_TR_FUNCTIONS(FileDialogs)
public:
    /// Has a line or a cell of the window that somebody is typing into write what was typed.
    static void commitTyping(const QWidget* window);
    static QString sceneFilter();
    /// The file to write; empty if the person thinks better of it. `fileName` is what is proposed,
    /// with its folder; it may be empty.
    static QString askWhereToSave(QWidget* parent, const QString& title, const QString& fileName);
    /// Says that a file was not written, and why, in a box and on `std::cerr`.
    static void reportUnsaved(QWidget* parent, const QString& error);
};
