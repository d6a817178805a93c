// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DrawList.h"
#include "KnNodePtr.h"
#include "LabelPainter.h"
#include "OrbitCamera.h"
#include "SceneRenderer.h"
#include "SceneWatch.h"

#include <QPoint>
#include <QWidget>

#include <vector>

/// A viewfinder: draws scene graphs in flat colours, and lets a person look at them from all sides
/// and select what they see. Drags turn, with Shift or the middle button they move, the wheel and
/// "+" and "-" zoom, the arrow keys turn, a double click and Home show everything, a click selects
/// the node under it with CrvServices. The selected node is outlined: what is below it, and of a
/// transform or a material what it acts on.
///
/// It starts at the first viewpoint of the scene and stays with it until a person moves; without
/// one it shows everything. It writes no field. Hidden, it watches nothing and costs nothing.
class SceneView : public QWidget {
    Q_OBJECT
public:
    /// How the view learns of changes.
    enum class Updates {
        BySensors, // on its own
        ByCall, // by `refresh`, which a program calls that draws frame after frame anyway
    };

    explicit SceneView(QWidget* parent = nullptr, Updates updates = Updates::BySensors);
    ~SceneView() override;

    /// Holds a reference on each root; none is null.
    void setRoots(std::vector<KnNodePtr> roots);

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Draws the scene as it is now, with the next paint event.
    void refresh();
    /// Shows everything from the side from which the person looks.
    void fitAll();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    enum class Drag { None, Undecided, Turn, Move };

    void sceneChanged(SceneWatch::Change change);
    void forgetScene();
    void readScene();
    void placeCamera();
    void draw();
    /// Width by height.
    float aspect() const;
    QImage background() const;
    void paintMessage(QPainter& painter);
    void selectAt(const QPoint& point);
    /// A person has moved the camera.
    void cameraMoved();

    const Updates m_updates;
    std::vector<KnNodePtr> m_roots;
    SceneWatch m_watch;
    bool m_isRead = false; // whether the list is what the scene looks like
    bool m_nodesChanged = true; // whether others than before are to be watched
    DrawList m_list;
    OrbitCamera m_camera;
    bool m_isPlaced = false; // whether the camera stands where it should
    bool m_isMoved = false; // whether a person has taken the camera over
    SceneRenderer m_renderer;
    LabelPainter m_labels;
    std::vector<bool> m_isOutlined; // by place
    Drag m_drag = Drag::None;
    QPoint m_pressed;
    QPoint m_dragged; // where the pointer was last
};
