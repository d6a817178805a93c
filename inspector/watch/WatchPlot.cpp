// SPDX-License-Identifier: BSD-3-Clause
#include "WatchPlot.h"

#include "WatchList.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr double zoomStep = 0.8; // of a notch of the wheel, and of a key
constexpr double wheelNotch = 120;
constexpr double panStep = 0.1; // of what is shown
constexpr double fastPixels = 20;
constexpr double forever = 1e12; // in seconds

} // namespace

WatchPlot::WatchPlot(const WatchList* list, QWidget* parent)
    : QWidget(parent)
    , m_list(list)
{
    setObjectName(QStringLiteral("watchPlot"));
    setAccessibleName(tr("Watched values over time"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

std::optional<double> WatchPlot::ruler() const
{
    if (!m_ruler)
        return std::nullopt;
    return m_view.from() + *m_ruler * m_view.span();
}

void WatchPlot::setCurrentRow(int row)
{
    m_currentRow = row;
    update();
}

void WatchPlot::setCommonScale(bool common)
{
    m_commonScale = common;
    update();
}

void WatchPlot::follow()
{
    m_view.setStored(m_list->start(), m_list->clock().latest());
    Q_EMIT shownChanged();
    update();
}

void WatchPlot::goLive()
{
    m_view.goLive();
    follow();
}

QSize WatchPlot::sizeHint() const
{
    return { fontMetrics().averageCharWidth() * 40, fontMetrics().height() * 12 };
}

QSize WatchPlot::minimumSizeHint() const
{
    return { fontMetrics().averageCharWidth() * 20, fontMetrics().height() * 4 };
}

WatchPicture WatchPlot::picture() const
{
    WatchPicture::Settings settings;
    settings.frame = rect();
    settings.font = font();
    settings.palette = palette();
    settings.currentRow = m_currentRow;
    settings.commonScale = m_commonScale;
    settings.ruler = ruler();
    return { *m_list, m_view, settings };
}

void WatchPlot::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    picture().paint(painter);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

// Without a time, what is latest stays where it is.
void WatchPlot::zoomAround(double factor, std::optional<double> time)
{
    m_view.zoom(factor, time.value_or(m_view.to()));
    follow();
}

void WatchPlot::pan(double seconds)
{
    m_view.pan(seconds);
    follow();
}

void WatchPlot::placeRuler(std::optional<double> place)
{
    if (place == m_ruler)
        return;
    m_ruler = place;
    follow();
}

void WatchPlot::moveRuler(double pixels)
{
    const double place = m_ruler.value_or(1) + pixels / picture().plotArea().width();
    placeRuler(std::clamp(place, 0.0, 1.0));
}

void WatchPlot::wheelEvent(QWheelEvent* event)
{
    const QPoint notches = event->angleDelta();
    if (notches.y() != 0) {
        zoomAround(
            std::pow(zoomStep, notches.y() / wheelNotch), picture().timeAt(event->position().x()));
    } else {
        pan(-notches.x() / wheelNotch * panStep * m_view.span());
    }
    event->accept();
}

void WatchPlot::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_dragX = event->position().x();
    setCursor(Qt::ClosedHandCursor);
}

void WatchPlot::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF position = event->position();
    const QRectF area = picture().plotArea();
    if (m_dragX) {
        const double way = position.x() - *m_dragX;
        m_dragX = position.x();
        pan(-way / area.width() * m_view.span());
    }
    if (area.contains(position))
        placeRuler((position.x() - area.left()) / area.width());
    else
        placeRuler(std::nullopt);
}

void WatchPlot::mouseReleaseEvent(QMouseEvent*)
{
    m_dragX.reset();
    unsetCursor();
}

void WatchPlot::mouseDoubleClickEvent(QMouseEvent*) { goLive(); }

void WatchPlot::leaveEvent(QEvent*) { placeRuler(std::nullopt); }

void WatchPlot::keyPressEvent(QKeyEvent* event)
{
    const bool pans = event->modifiers().testFlag(Qt::ControlModifier);
    const bool fast = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const double direction = event->key() == Qt::Key_Left ? -1 : 1;
        if (pans)
            pan(direction * panStep * m_view.span());
        else
            moveRuler(direction * (fast ? fastPixels : 1));
        return;
    }
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomAround(zoomStep, ruler());
        return;
    case Qt::Key_Minus:
        zoomAround(1 / zoomStep, ruler());
        return;
    case Qt::Key_Home:
        pan(-forever);
        return;
    case Qt::Key_End:
        goLive();
        return;
    case Qt::Key_Escape:
        if (m_ruler) {
            placeRuler(std::nullopt);
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}
