// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

/// Lets the undo and redo keys reach the window's actions while the focus is in a line edit that
/// has nothing of its own to undo or redo. A line edit claims these keys all the same, so that
/// right after an edit was applied they would do nothing. Installed on the application.
class UndoKeys : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
