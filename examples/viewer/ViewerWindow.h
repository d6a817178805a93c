// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvInspector.h"
#include "Orrery.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

class SceneView;

/// A program's own window: a scene that moves, drawn frame after frame.
class ViewerWindow : public QMainWindow {
    Q_OBJECT
public:
    ViewerWindow();

    void showInspector();
    /// Ends the program after so many frames.
    void endAfter(int frames) { m_framesLeft = frames; }
    /// Draws the window, as it is at one certain moment, into a PNG file, and beside it the
    /// inspector, if it was shown before. False if that fails.
    bool takePicture(const QString& fileName);

private:
    void makeMenu();
    void setRunning(bool isRunning);
    void nextFrame();
    /// Puts a window that covers this one beside it, if the screen is wide enough.
    void placeBeside(QWidget& other) const;

    Orrery m_orrery;
    CrvInspector m_inspector { m_orrery.root() };
    SceneView* m_view; // the central widget
    QTimer m_timer; // a tick is a frame
    QElapsedTimer m_clock; // runs while the scene moves
    double m_time = 0.0; // seconds, when the clock was last started
    int m_framesLeft = -1; // none counted
};
