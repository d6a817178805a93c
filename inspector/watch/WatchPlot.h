// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WatchPicture.h"
#include "WatchView.h"

#include <QWidget>

class WatchList;

/// The curves of a WatchList. The wheel zooms around the pointer, dragging pans, a double click
/// goes back to the last minute; a ruler stands below the pointer. With keys: left and right move
/// the ruler, together with Shift faster, with Ctrl they pan; plus and minus zoom; Home shows the
/// oldest samples and End the latest; Esc removes the ruler.
class WatchPlot : public QWidget {
    Q_OBJECT
public:
    /// `list` outlives the plot.
    explicit WatchPlot(const WatchList* list, QWidget* parent = nullptr);

    const WatchView& view() const { return m_view; }
    /// The time below the ruler; none while there is no ruler.
    std::optional<double> ruler() const;

    /// The row in front, -1 for none.
    void setCurrentRow(int row);
    void setCommonScale(bool common);
    /// To be called when samples have come.
    void follow();
    void goLive();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another time is shown, or stands below the ruler.
    void shownChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    WatchPicture picture() const;
    void zoomAround(double factor, std::optional<double> time);
    void pan(double seconds);
    void placeRuler(std::optional<double> place);
    void moveRuler(double pixels);

    const WatchList* m_list;
    WatchView m_view;
    int m_currentRow = -1;
    bool m_commonScale = false;
    // From 0 at the left edge to 1: while the view is live, the curves move below the ruler.
    std::optional<double> m_ruler;
    std::optional<double> m_dragX; // of the pointer, while it drags
};
