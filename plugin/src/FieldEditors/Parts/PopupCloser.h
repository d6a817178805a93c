// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class QAbstractButton;
class QWidget;

/// Lets a popup of an editor go when a person expects it to: at a mouse press outside it and at the
/// Esc key, whatever its widget class makes of them; when the button that opened it is pressed,
/// without opening again; and together with the editor. The focus leaves the popup with it, which
/// ends what is being typed; Esc ends it unheard.
class PopupCloser : public QObject {
    Q_OBJECT
public:
    /// The popup is the parent. `owner` is the widget that it must not outlive on the screen;
    /// `button` may be null.
    PopupCloser(QWidget* popup, QWidget* owner, QAbstractButton* button = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* focusInPopup() const;

    QWidget* m_popup; // the parent
    QWidget* m_owner; // not owned
    QAbstractButton* m_button; // not owned
};
