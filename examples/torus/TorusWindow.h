// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QWidget>

class TorusScene;
namespace Qt3DExtras {
class Qt3DWindow;
}

/// A window of widgets, in which Qt 3D draws the scene.
class TorusWindow : public QWidget {
    Q_OBJECT
    /// The scene belongs to Qt 3D and has no parent, so this leads to it.
    Q_PROPERTY(QObject* scene READ scene CONSTANT)
    Q_PROPERTY(QObject* camera READ camera CONSTANT)
public:
    TorusWindow();

    QObject* scene() const;
    QObject* camera() const;

private:
    Qt3DExtras::Qt3DWindow* m_view; // the container's
    TorusScene* m_scene; // the view's
};
