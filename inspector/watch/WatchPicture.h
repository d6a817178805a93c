// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WatchScale.h"

#include <QFont>
#include <QPalette>
#include <QRect>

#include <optional>
#include <vector>

class QImage;
class QPainter;
class WatchList;
class WatchView;

/// One picture of the curves. What it costs grows with the pixels and not with the samples, except
/// for the look at each of those that are shown.
class WatchPicture {
public:
    struct Settings {
        QRect frame;
        QFont font;
        QPalette palette;
        int currentRow = -1; ///< drawn in front; its scale stands at the side
        bool commonScale = false; ///< else each curve fills the height
        std::optional<double> ruler; ///< a time
    };

    /// Both outlive the picture. The ranges of the list must be those of the view.
    WatchPicture(const WatchList& list, const WatchView& view, const Settings& settings);

    /// Without the labels.
    const QRectF& plotArea() const { return m_area; }
    double timeAt(double x) const;

    void paint(QPainter& painter) const;

private:
    WatchScale scaleOf(int row) const;
    double xOf(double time) const;
    double yOf(double value, const WatchScale& scale) const;
    QColor colorOf(int row) const;
    void paintGrid(QPainter& painter) const;
    void paintCurves(QPainter& painter) const;
    /// In pixels of the layer, which covers the plot area.
    void plotCurve(QImage& layer, int row, int thickness) const;
    void paintMarks(QPainter& painter, int row) const;
    void paintRuler(QPainter& painter) const;

    const WatchList& m_list;
    const WatchView& m_view;
    Settings m_settings;
    WatchRange m_common;
    int m_scaledRow; // whose scale stands at the side
    std::vector<WatchTick> m_levels; // of that scale
    QRectF m_area;
};
