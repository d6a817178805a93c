// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

/// Lets the undo and redo keys reach the window's actions while a line edit has the focus that has
/// nothing of its own to undo or redo. A line edit claims these keys in any case, so that behind
/// an edit that was just applied they would do nothing. Installed on the application.
class UndoKeys : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
