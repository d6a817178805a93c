// SPDX-License-Identifier: BSD-3-Clause
#include "SceneView.h"

#include "CrvServices.h"
#include "SceneTraversal.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr float keyStep = std::numbers::pi_v<float> / 36.0F; // radians
constexpr float keyZoom = 0.85F;

} // namespace

SceneView::SceneView(QWidget* parent, Updates updates)
    : QWidget(parent)
    , m_updates(updates)
    , m_watch([this](SceneWatch::Change change) { sceneChanged(change); })
{
    setObjectName(QStringLiteral("sceneView"));
    setAccessibleName(tr("Scene view"));
    setWhatsThis(
        tr("Drag to turn the scene, with Shift to move it. The wheel zooms, a double click "
           "shows everything, a click selects what is under it."));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_camera.reset();
}

SceneView::~SceneView() = default;

QSize SceneView::sizeHint() const { return { 480, 360 }; }

void SceneView::setRoots(std::vector<KnNodePtr> roots)
{
    const auto isShown = [this](const KnNodePtr& root) {
        return std::any_of(m_roots.begin(), m_roots.end(),
            [&root](const KnNodePtr& shown) { return shown.get() == root.get(); });
    };
    // A root more or less isn't another scene, and leaves the person where they are.
    if (std::none_of(roots.begin(), roots.end(), isShown)) {
        m_camera.reset();
        m_isPlaced = false;
        m_isMoved = false;
    }
    m_roots = std::move(roots);
    forgetScene();
    update();
}

void SceneView::refresh()
{
    m_isRead = false;
    update();
}

void SceneView::fitAll()
{
    const auto bounds = m_list.bounds();
    if (!bounds)
        return;
    m_camera.fit(*bounds, aspect());
    cameraMoved();
}

void SceneView::cameraMoved()
{
    m_isMoved = true;
    update();
}

void SceneView::sceneChanged(SceneWatch::Change change)
{
    m_nodesChanged = m_nodesChanged || change == SceneWatch::Change::Nodes;
    refresh();
}

void SceneView::forgetScene()
{
    m_watch.setNodes({});
    m_list = DrawList();
    m_isRead = false;
    m_nodesChanged = true;
}

void SceneView::readScene()
{
    SceneTraversal traversal;
    for (const KnNodePtr& root : m_roots)
        traversal.walk(*root.get());
    m_list = traversal.takeList();
    // A hidden view may be asked for a picture, but isn't told of changes.
    m_isRead = isVisible();
    if (!m_isRead || !m_nodesChanged || m_updates == Updates::ByCall)
        return;
    m_watch.setNodes(traversal.nodes());
    m_nodesChanged = false;
}

void SceneView::placeCamera()
{
    const auto bounds = m_list.bounds();
    if (m_isMoved || !bounds)
        return;
    if (m_list.viewpoint)
        m_camera.place(*m_list.viewpoint, *bounds);
    else if (!m_isPlaced)
        m_camera.fit(*bounds, aspect());
    m_isPlaced = true;
}

float SceneView::aspect() const { return float(width()) / float(std::max(1, height())); }

QImage SceneView::background() const
{
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    const auto shade = [&](int part) {
        const auto mix = [part](int from, int to) { return from + (to - from) * part / 100; };
        return QColor(mix(base.red(), text.red()), mix(base.green(), text.green()),
            mix(base.blue(), text.blue()));
    };
    QImage image(size() * devicePixelRatioF(), QImage::Format_RGB32);
    QLinearGradient gradient(0.0, 0.0, 0.0, image.height());
    gradient.setColorAt(0.0, shade(2));
    gradient.setColorAt(1.0, shade(14));
    QPainter(&image).fillRect(image.rect(), gradient);
    return image;
}

void SceneView::draw()
{
    if (!m_isRead)
        readScene();
    placeCamera();
    const qreal scale = devicePixelRatioF();
    m_renderer.draw(m_list, m_camera, background(), float(scale));
    m_labels.layOut(m_list, m_renderer, scale);
    KnFieldContainer* const selected = CrvServices::getInstance()->getSelectedNode();
    if (selected)
        m_isOutlined = m_list.placesOf(selected);
    else
        m_isOutlined.assign(m_list.places.size(), false);
    if (selected)
        m_renderer.pixels().outline(m_isOutlined, palette().color(QPalette::Highlight).rgb());
}

void SceneView::paintEvent(QPaintEvent*)
{
    draw();
    QStylePainter painter(this);
    painter.drawImage(rect(), m_renderer.pixels().image());
    m_labels.paint(painter, palette(), m_isOutlined);
    paintMessage(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
}

void SceneView::paintMessage(QPainter& painter)
{
    QString message;
    if (m_roots.empty())
        message = tr("No scene is open.");
    else if (m_list.isEmpty())
        message = tr("Nothing to draw. Face sets, points and texts of the scene appear here.");
    else if (m_list.isCut)
        message = tr("The scene has more nodes than can be drawn.");
    painter.setPen(palette().color(QPalette::Text));
    painter.setFont(font());
    painter.drawText(rect().adjusted(12, 12, -12, -12),
        int(m_list.isEmpty() ? Qt::AlignCenter : Qt::AlignHCenter | Qt::AlignBottom)
            | int(Qt::TextWordWrap),
        message);
}

void SceneView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    connect(CrvServices::getInstance(), &CrvServices::selectedNodeChanged, this,
        qOverload<>(&QWidget::update), Qt::UniqueConnection);
    refresh();
}

void SceneView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    disconnect(CrvServices::getInstance(), nullptr, this, nullptr);
    forgetScene();
}

void SceneView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_isPlaced = false;
}

void SceneView::mousePressEvent(QMouseEvent* event)
{
    const bool isMiddle = event->button() == Qt::MiddleButton;
    if (m_drag != Drag::None || (event->button() != Qt::LeftButton && !isMiddle)) {
        event->ignore();
        return;
    }
    m_pressed = m_dragged = event->pos();
    m_drag = isMiddle ? Drag::Move : Drag::Undecided;
}

void SceneView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag == Drag::Undecided
        && (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        m_drag = event->modifiers() & Qt::ShiftModifier ? Drag::Move : Drag::Turn;
    if (m_drag != Drag::Turn && m_drag != Drag::Move)
        return;
    // Half a turn, or the whole picture, over the height of the view.
    const QVector2D part
        = QVector2D(QPointF(event->pos() - m_dragged)) / float(std::max(1, height()));
    m_dragged = event->pos();
    if (m_drag == Drag::Turn)
        m_camera.orbit(-part.x() * std::numbers::pi_v<float>, part.y() * std::numbers::pi_v<float>);
    else
        m_camera.pan(part, aspect());
    cameraMoved();
}

void SceneView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->buttons() & (Qt::LeftButton | Qt::MiddleButton))
        return;
    if (m_drag == Drag::Undecided)
        selectAt(event->pos());
    m_drag = Drag::None;
}

void SceneView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        fitAll();
}

void SceneView::wheelEvent(QWheelEvent* event)
{
    if (event->angleDelta().y() == 0) {
        event->ignore();
        return;
    }
    m_camera.zoom(std::pow(keyZoom, float(event->angleDelta().y()) / 120.0F));
    cameraMoved();
    event->accept();
}

void SceneView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Home:
        fitAll();
        return;
    case Qt::Key_Left:
        m_camera.orbit(-keyStep, 0.0F);
        break;
    case Qt::Key_Right:
        m_camera.orbit(keyStep, 0.0F);
        break;
    case Qt::Key_Up:
        m_camera.orbit(0.0F, keyStep);
        break;
    case Qt::Key_Down:
        m_camera.orbit(0.0F, -keyStep);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal: // where the plus sign needs Shift
        m_camera.zoom(keyZoom);
        break;
    case Qt::Key_Minus:
        m_camera.zoom(1.0F / keyZoom);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    cameraMoved();
}

void SceneView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void SceneView::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void SceneView::selectAt(const QPoint& point)
{
    // The scene of a view that isn't told of changes may have lost what the picture shows.
    if (m_updates == Updates::ByCall)
        m_isRead = false;
    if (!m_isRead)
        draw();
    const QPoint pixel = (QPointF(point) * devicePixelRatioF()).toPoint();
    int place = m_labels.placeAt(point);
    if (place < 0)
        place = m_renderer.pixels().markAt(pixel.x(), pixel.y());
    if (place < 0)
        return;
    KnFieldContainer* const node = m_list.places[std::size_t(place)].node;
    if (m_updates == Updates::ByCall || m_watch.isWatched(node))
        CrvServices::getInstance()->selectNode(node);
}
