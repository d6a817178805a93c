// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class QAbstractButton;
class QWidget;

/// Closes an editor's popup when a person expects it: at a mouse press outside it and at the Esc
/// key, whatever its widget class does with them; at a press of the button that opened it, which
/// then doesn't open it again; and when the editor is hidden. Closing takes the focus out of the
/// popup, which commits what is being typed; Esc discards that.
class PopupCloser : public QObject {
    Q_OBJECT
public:
    /// The popup is the parent. It closes when `owner` is hidden. `button` may be null.
    PopupCloser(QWidget* popup, QWidget* owner, QAbstractButton* button = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* focusInPopup() const;

    QWidget* m_popup; // the parent
    QWidget* m_owner; // not owned
    QAbstractButton* m_button; // not owned
};
