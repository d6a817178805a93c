// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

class CrvUndoSteps;
class QWidget;

/// Tells the undo steps what a person does in one go: from pressing the mouse to releasing it, from
/// the first key in a line to leaving it or to a pause, a run of wheel turns. It watches panes with
/// editors and all that comes to stand in them or belongs to them: cell editors, popups, dialogs.
/// While it lives, commands make steps by gestures.
class EditGestures : public QObject {
    Q_OBJECT
public:
    /// Both outlive it, or the parent goes with the application object.
    EditGestures(CrvUndoSteps* steps, QObject* parent);
    ~EditGestures() override;

    /// The pane's own widget and all below it; watched already, nothing changes.
    void watch(QObject* pane);
    void unwatch(QObject* pane);

    /// In milliseconds: after so long without a key or a turn, the next one is another gesture.
    void setPause(int milliseconds) { m_pauseTime = milliseconds; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    enum class Kind {
        None,
        Mouse, ///< until the button is released
        Keys, ///< in one widget, until the focus leaves it
        Wheel, ///< over one widget
        Leaving, ///< what a widget does when it loses the focus or the screen
    };

    void begin(Kind kind, QObject* widget);
    /// The same gesture goes on, or another one begins.
    void goOn(Kind kind, QObject* widget);
    void input();
    void endAfterwards();
    void leave(QObject* widget);
    void focusChanged(QWidget* former);

    CrvUndoSteps* const m_steps;
    Kind m_kind = Kind::None;
    QPointer<QObject> m_widget; // that the gesture is made in
    int m_serial = 0; // of the gesture
    int m_ending = 0; // serial of the gesture that ends as soon as its input has been handled
    int m_posted = 0; // events under way, each of which says that an input has been handled
    int m_pauseTime = 1000; // who stops for so long has finished something
    QBasicTimer m_pause; // runs out when the next key or turn is another gesture
};
