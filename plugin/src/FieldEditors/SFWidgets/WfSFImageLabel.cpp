// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFImageLabel.h"

#include "PopupCloser.h"
#include "PopupPlacement.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

WfSFImageLabel::WfSFImageLabel(int width, int height, QWidget* parent, const char* name)
    : QLabel(parent)
    , m_pixmapLabel(new QLabel(this, Qt::Popup))
{
    setObjectName(QLatin1String(name));
    setScaledContents(true);
    setMouseTracking(true);
    setFixedWidth(width);
    setFixedHeight(height);
    setFocusPolicy(Qt::NoFocus);

    m_pixmapLabel->setObjectName(QStringLiteral("pixmapLabel"));
    m_pixmapLabel->setFrameShape(QFrame::StyledPanel);
    m_pixmapLabel->setFrameShadow(QFrame::Raised);
    m_pixmapLabel->setScaledContents(true);
    new PopupCloser(m_pixmapLabel, this);
}

void WfSFImageLabel::setImage(const QPixmap& pixmap)
{
    constexpr int maxSize = 256;
    m_pixmapLabel->setFixedSize(
        std::min(pixmap.width(), maxSize), std::min(pixmap.height(), maxSize));
    m_pixmapLabel->setPixmap(pixmap);
    setPixmap(pixmap);
}

void WfSFImageLabel::mouseMoveEvent(QMouseEvent*)
{
    // Without a picture the popup would be an invisible window that grabs the mouse.
    if (m_pixmapLabel->isVisible() || m_pixmapLabel->size().isEmpty())
        return;
    m_pixmapLabel->move(popupPosition(mapToGlobal(geometry().topLeft()),
        QGuiApplication::primaryScreen()->availableSize(), m_pixmapLabel->size()));
    m_pixmapLabel->show();
}
