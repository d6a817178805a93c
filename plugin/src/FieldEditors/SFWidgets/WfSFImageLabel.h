// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLabel>

/// A thumbnail of fixed size that shows a picture squeezed into it. Moving the mouse over it brings
/// up a popup with the picture at up to 256 by 256 pixels.
class WfSFImageLabel : public QLabel {
public:
    /// `width` and `height` are the thumbnail's, in pixels.
    WfSFImageLabel(int width, int height, QWidget* parent, const char* name);

    /// A null pixmap empties the thumbnail; nothing pops up then.
    void setImage(const QPixmap& pixmap);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QLabel* m_pixmapLabel; // the popup, a window and child of the thumbnail
};
