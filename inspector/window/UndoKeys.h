// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Lets the undo and redo keys reach the window's actions while the focus is in a line edit that
/// has nothing of its own to undo or redo. A line edit claims these keys all the same, so that
/// right after an edit was applied they would do nothing. Only the widget with the focus is
/// watched, and only while it belongs to the window.
class UndoKeys : public QObject {
    Q_OBJECT
public:
    /// A child of the window.
    explicit UndoKeys(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followFocus(QWidget* former, QWidget* focus);

    QWidget* const m_window;
    QPointer<QWidget> m_watched;
};
