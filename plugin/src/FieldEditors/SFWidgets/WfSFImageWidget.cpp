// SPDX-License-Identifier: BSD-3-Clause
#include "WfSFImageWidget.h"

#include "ImageConversion.h"
#include "KnSFImage.h"
#include "LayoutMetrics.h"
#include "WfSFImageLabel.h"

#include <QBoxLayout>
#include <QFrame>
#include <QPixmap>

namespace {

QPixmap toPixmap(const KnField* field)
{
    if (!field->isOfType(KnSFImage::getClassTypeId()))
        return {};
    KbVec2s size;
    int components = 0;
    const unsigned char* const bytes
        = static_cast<const KnSFImage*>(field)->getValue(size, components);
    return QPixmap::fromImage(imageFromPixels(bytes, size[0], size[1], components));
}

} // namespace

WfSFImageWidget::WfSFImageWidget(const char* name)
    : WfSFieldWidget(name)
{
    identify(KnSFImage::getClassTypeId(), "SFImage", name, "WfSFImageWidget");
}

void WfSFImageWidget::load()
{
    setLabel(QStringLiteral("SFImage"));
    WfSFieldWidget::load();
    const int size = layoutMetric(QStringLiteral("SFBoolWidth"));
    m_imageBox = new WfSFImageLabel(size, size, m_editionFrame, "m_imageBox");
    m_editLayout->addWidget(m_imageBox, 0);
}

void WfSFImageWidget::updateFromField()
{
    m_imageBox->setImage(m_field ? toPixmap(m_field) : QPixmap());
    WfSFieldWidget::updateFromField();
}

void WfSFImageWidget::applyChanges() { }
