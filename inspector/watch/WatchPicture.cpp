// SPDX-License-Identifier: BSD-3-Clause
#include "WatchPicture.h"

#include "WatchColors.h"
#include "WatchList.h"
#include "WatchView.h"
#include "WatchedValue.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

namespace {

// In pixels, as are all sizes here.
constexpr double gap = 4; // between a label and what it belongs to
constexpr double thin = 2;
constexpr double thick = 3; // the current curve
constexpr double markSize = 4;

QColor blend(const QColor& back, const QColor& front, double share)
{
    const auto mix = [share](int b, int f) { return qRound(b + (f - b) * share); };
    return QColor(mix(back.red(), front.red()), mix(back.green(), front.green()),
        mix(back.blue(), front.blue()));
}

} // namespace

WatchPicture::WatchPicture(const WatchList& list, const WatchView& view, const Settings& settings)
    : m_list(list)
    , m_view(view)
    , m_settings(settings)
    , m_scaledRow(settings.currentRow >= 0 ? settings.currentRow : 0)
{
    for (int row = 0; row < list.rowCount(); ++row)
        m_common.include(list.shownRange(row));
    const QFontMetricsF metrics(settings.font);
    const double labelHeight = metrics.height();
    double labelWidth = metrics.horizontalAdvance(QStringLiteral("-0.00"));
    m_area
        = QRectF(settings.frame).adjusted(0, labelHeight / 2 + gap, -2 * gap, -labelHeight - gap);
    if (m_scaledRow < list.rowCount()) {
        const WatchScale scale = scaleOf(m_scaledRow);
        m_levels = roundTicks(
            scale.low(), scale.high(), static_cast<int>(m_area.height() / (2.5 * labelHeight)));
    }
    for (const WatchTick& level : m_levels)
        labelWidth = std::max(labelWidth, metrics.horizontalAdvance(level.label));
    m_area.setLeft(m_area.left() + std::ceil(labelWidth) + 2 * gap);
    m_area = m_area.toAlignedRect();
}

WatchScale WatchPicture::scaleOf(int row) const
{
    return WatchScale(m_settings.commonScale ? m_common : m_list.shownRange(row));
}

double WatchPicture::timeAt(double x) const
{
    return m_view.from() + (x - m_area.left()) / m_area.width() * m_view.span();
}

double WatchPicture::xOf(double time) const
{
    return m_area.left() + (time - m_view.from()) / m_view.span() * m_area.width();
}

double WatchPicture::yOf(double value, const WatchScale& scale) const
{
    return m_area.bottom() - scale.fraction(value) * m_area.height();
}

QColor WatchPicture::colorOf(int row) const
{
    return watchColor(m_list.value(row).color(), m_settings.palette);
}

void WatchPicture::paint(QPainter& painter) const
{
    painter.setFont(m_settings.font);
    painter.fillRect(m_settings.frame, m_settings.palette.color(QPalette::Base));
    if (m_area.width() < 1 || m_area.height() < 1)
        return;
    paintGrid(painter);
    painter.save();
    painter.setClipRect(m_area);
    for (int row = 0; row < m_list.rowCount(); ++row)
        paintMarks(painter, row);
    paintCurves(painter);
    painter.restore();
    if (m_settings.ruler)
        paintRuler(painter);
}

void WatchPicture::paintGrid(QPainter& painter) const
{
    const QPalette& palette = m_settings.palette;
    const QColor text = palette.color(QPalette::Text);
    const QColor line = blend(palette.color(QPalette::Base), text, 0.16);
    const QFontMetricsF metrics(m_settings.font);
    const double labelWidth = metrics.horizontalAdvance(QStringLiteral("000.0 s")) + 2 * gap;
    painter.setPen(line);
    painter.drawRect(m_area.adjusted(0, 0, -1, -1));
    for (const WatchTick& tick : roundTicks(
             m_view.from(), m_view.to(), static_cast<int>(m_area.width() / (1.3 * labelWidth)))) {
        const double x = std::floor(xOf(tick.value));
        painter.setPen(line);
        painter.drawLine(QPointF(x, m_area.top()), QPointF(x, m_area.bottom() - 1));
        // Nothing was stored before the first sample.
        if (tick.value < 0)
            continue;
        const QRectF place(
            x - labelWidth / 2, m_area.bottom() + gap / 2, labelWidth, metrics.height());
        if (place.right() > m_settings.frame.right())
            continue;
        painter.setPen(text);
        painter.drawText(place, Qt::AlignCenter, WatchList::tr("%1 s").arg(tick.label));
    }
    if (m_scaledRow >= m_list.rowCount())
        return;
    const WatchScale scale = scaleOf(m_scaledRow);
    const QColor scaleColor = m_settings.commonScale ? text : colorOf(m_scaledRow);
    for (const WatchTick& level : m_levels) {
        const double y = std::floor(yOf(level.value, scale));
        painter.setPen(line);
        painter.drawLine(QPointF(m_area.left(), y), QPointF(m_area.right() - 1, y));
        painter.setPen(scaleColor);
        painter.drawText(QRectF(m_settings.frame.left(), y - metrics.height() / 2,
                             m_area.left() - m_settings.frame.left() - gap, metrics.height()),
            Qt::AlignRight | Qt::AlignVCenter, level.label);
    }
}

// A value holds until it is written, so a curve consists of level and upright pieces only. Each
// column of pixels gets one upright piece, from the least to the most that was held in its time.
// The pixels are set by hand: a painter takes several times as long for lines one pixel wide.
void WatchPicture::paintCurves(QPainter& painter) const
{
    const double ratio = painter.device()->devicePixelRatioF();
    QImage layer((m_area.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    layer.setDevicePixelRatio(ratio);
    for (int row = 0; row < m_list.rowCount(); ++row) {
        if (row != m_settings.currentRow)
            plotCurve(layer, row, qRound(thin * ratio));
    }
    if (m_settings.currentRow >= 0)
        plotCurve(layer, m_settings.currentRow, qRound(thick * ratio));
    painter.drawImage(m_area.topLeft(), layer);
}

void WatchPicture::plotCurve(QImage& layer, int row, int thickness) const
{
    std::vector<WatchRange> columns(static_cast<std::size_t>(layer.width()));
    m_list.value(row).series().columns(m_view.from(), m_view.to(), m_view.end(), columns);
    const WatchScale scale = scaleOf(row);
    const int height = layer.height();
    const auto place = [&scale, height](double value) {
        return static_cast<int>(std::round((1 - scale.fraction(value)) * height));
    };
    const QRgb color = colorOf(row).rgba();
    auto* const pixels = reinterpret_cast<QRgb*>(layer.bits());
    const qsizetype line = layer.bytesPerLine() / qsizetype(sizeof(QRgb));
    // Upright pieces are half as wide as level ones are high, also on dense screens.
    const int width = std::max(thickness / 2, 1);
    for (std::size_t x = 0; x < columns.size(); ++x) {
        if (columns[x].isEmpty())
            continue;
        const int right = std::min(static_cast<int>(x) + width, layer.width());
        const int top = std::max(place(columns[x].high) - thickness / 2, 0);
        const int bottom = std::min(place(columns[x].low) - thickness / 2 + thickness, height);
        for (int y = top; y < bottom; ++y)
            std::fill(pixels + y * line + qsizetype(x), pixels + y * line + right, color);
    }
}

void WatchPicture::paintMarks(QPainter& painter, int row) const
{
    const WatchSeries& series = m_list.value(row).series();
    const QColor color = colorOf(row);
    const QColor faint = blend(m_settings.palette.color(QPalette::Base), color, 0.5);
    double last = -1; // what falls on the same pixel is drawn once
    for (std::size_t i = series.firstAfter(m_view.from()); i < series.size(); ++i) {
        const WatchSample& sample = series[i];
        if (sample.time > m_view.to())
            return;
        const double x = std::floor(xOf(sample.time));
        if (sample.kind != WatchSample::Kind::Edited || x == last)
            continue;
        last = x;
        painter.setPen(QPen(faint, 1, Qt::DashLine));
        painter.drawLine(QPointF(x, m_area.top()), QPointF(x, m_area.bottom()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        const QPointF head[] = { { x - markSize, m_area.top() }, { x + markSize + 1, m_area.top() },
            { x + 0.5, m_area.top() + 2 * markSize } };
        painter.drawConvexPolygon(head, static_cast<int>(std::size(head)));
    }
}

void WatchPicture::paintRuler(QPainter& painter) const
{
    const QPalette& palette = m_settings.palette;
    const QFontMetricsF metrics(m_settings.font);
    const double x = std::floor(xOf(*m_settings.ruler));
    painter.setPen(palette.color(QPalette::Text));
    painter.drawLine(QPointF(x, m_area.top()), QPointF(x, m_area.bottom()));
    for (int row = 0; row < m_list.rowCount(); ++row) {
        const WatchSample* const sample = m_list.value(row).series().at(*m_settings.ruler);
        if (!sample || !std::isfinite(sample->value))
            continue;
        painter.setBrush(colorOf(row));
        painter.setPen(palette.color(QPalette::Base));
        painter.drawEllipse(QPointF(x + 0.5, yOf(sample->value, scaleOf(row))), markSize, markSize);
    }

    const QString label = WatchList::tr("%1 s").arg(QString::number(*m_settings.ruler, 'f', 3));
    QRectF place(0, m_area.bottom() + 1, metrics.horizontalAdvance(label) + 2 * gap,
        metrics.height() + gap / 2);
    place.moveLeft(std::clamp(x - place.width() / 2, m_area.left(),
        std::max(m_area.left(), m_settings.frame.right() - place.width())));
    painter.fillRect(place, palette.color(QPalette::Text));
    painter.setPen(palette.color(QPalette::Base));
    painter.drawText(place, Qt::AlignCenter, label);
}
