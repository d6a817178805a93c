// SPDX-License-Identifier: BSD-3-Clause
#include "LabelPainter.h"

#include "SceneRenderer.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal margin = 3.0; // around the text, in pixels
constexpr int leastContrast = 140; // of 255 steps of gray
constexpr float largestSize = 200.0F; // points

QColor mixed(const QColor& a, const QColor& b, float part)
{
    const auto mix = [part](float from, float to) { return from + (to - from) * part; };
    return QColor::fromRgbF(
        mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

/// The colour, or one on its way to the palette's text that stands out from the ground.
QColor readable(const std::optional<QColor>& color, const QPalette& palette)
{
    const QColor text = palette.color(QPalette::Text);
    if (!color)
        return text;
    const int ground = qGray(palette.color(QPalette::Base).rgb());
    for (const float part : { 0.0F, 0.25F, 0.5F, 0.75F }) {
        const QColor candidate = mixed(*color, text, part);
        if (std::abs(qGray(candidate.rgb()) - ground) >= leastContrast)
            return candidate;
    }
    return text;
}

} // namespace

void LabelPainter::layOut(const DrawList& list, const SceneRenderer& renderer, qreal scale)
{
    m_boxes.clear();
    for (const DrawList::Label& label : list.labels) {
        const auto at = renderer.project(label.at);
        if (!at || std::abs(at->x) > 1e6F || std::abs(at->y) > 1e6F)
            continue;
        m_boxes.push_back(boxOf(label, QPointF(at->x, at->y) / scale));
        m_boxes.back().nearness = at->nearness;
    }
    std::stable_sort(m_boxes.begin(), m_boxes.end(),
        [](const Box& a, const Box& b) { return a.nearness < b.nearness; });
}

LabelPainter::Box LabelPainter::boxOf(const DrawList::Label& label, const QPointF& at)
{
    Box box { &label, QFont(label.fontFamily), {}, {}, 0.0F };
    // What is no number compares as false.
    box.font.setPointSizeF(label.size >= 1.0F ? std::min(label.size, largestSize) : 1.0F);
    const QFontMetricsF metrics(box.font);
    const qreal step
        = std::abs(label.spacing) < 100.0F ? label.spacing * metrics.lineSpacing() : 0.0;
    // A width counts in points, as the size does.
    const qreal pixelsPerPoint = box.font.pointSizeF() > 0.0
        ? QFontInfo(box.font).pixelSize() / box.font.pointSizeF()
        : 1.0;
    qreal y = at.y();
    for (qsizetype i = 0; i < label.lines.size(); ++i, y += step) {
        const qreal natural = std::max(1.0, metrics.horizontalAdvance(label.lines.at(i)));
        const float asked = label.widths[std::size_t(i)];
        const qreal width = asked > 0.0F && asked < 1e4F ? asked * pixelsPerPoint : natural;
        const qreal before = label.justification == DrawList::Justification::Left ? 0.0
            : label.justification == DrawList::Justification::Center              ? width / 2.0
                                                                                  : width;
        box.lines.push_back({ label.lines.at(i), { at.x() - before, y }, width / natural });
        box.ground |= QRectF(at.x() - before, y - metrics.ascent(), width, metrics.height());
    }
    box.ground.adjust(-margin, -margin, margin, margin);
    return box;
}

void LabelPainter::paint(
    QPainter& painter, const QPalette& palette, const std::vector<bool>& isOutlined) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette.color(QPalette::Base);
    ground.setAlphaF(0.8F);
    for (const Box& box : m_boxes) {
        const bool isFramed = isOutlined[std::size_t(box.label->place)];
        painter.setPen(isFramed ? QPen(palette.color(QPalette::Highlight), 2.0) : QPen(Qt::NoPen));
        painter.setBrush(ground);
        painter.drawRoundedRect(box.ground, margin, margin);
        painter.setPen(readable(box.label->color, palette));
        painter.setFont(box.font);
        for (const Line& line : box.lines) {
            painter.save();
            painter.translate(line.baseline);
            painter.scale(line.stretch, 1.0);
            painter.drawText(QPointF(), line.text);
            painter.restore();
        }
    }
}

int LabelPainter::placeAt(const QPointF& point) const
{
    const auto found = std::find_if(m_boxes.rbegin(), m_boxes.rend(),
        [&point](const Box& box) { return box.ground.contains(point); });
    return found == m_boxes.rend() ? -1 : found->label->place;
}
