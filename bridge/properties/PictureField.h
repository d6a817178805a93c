// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnSFImage.h"
#include "PropertyFields.h"
#include "PropertyPicture.h"

#include <QBitmap>
#include <QIcon>
#include <QImage>
#include <QPixmap>

/// What of a type of Qt's is shown as a picture, and how a picture becomes such a value again.
template <class Qt>
struct PictureValue;

template <>
struct PictureValue<QImage> {
    static constexpr bool editable = true;
    static QImage fromQt(const QImage& image) { return image; }
    static QImage toQt(const QImage& image) { return image; }
};

template <>
struct PictureValue<QPixmap> {
    static constexpr bool editable = true;
    static QImage fromQt(const QPixmap& pixmap) { return pixmap.toImage(); }
    static QPixmap toQt(const QImage& image) { return QPixmap::fromImage(image); }
};

/// Shown and no more: one picture can't stand for all sizes and states of an icon.
template <>
struct PictureValue<QIcon> {
    static constexpr bool editable = false;
    static QImage fromQt(const QIcon& icon)
    {
        constexpr QSize largest(64, 64);
        return icon.isNull() ? QImage() : icon.pixmap(largest).toImage();
    }
    static QIcon toQt(const QImage& image) { return QIcon(QPixmap::fromImage(image)); }
};

/// A picture. It is converted only when it is another one than before, which Qt says by a number.
template <class Qt>
class PicturePropertyField final : public PropertyFieldOf<KnSFImage> {
public:
    explicit PicturePropertyField(const PropertyPlace& place)
        : PropertyFieldOf(place)
    {
        if (!PictureValue<Qt>::editable)
            setReadOnly(true);
    }

protected:
    QMetaType type() const override { return QMetaType::fromType<Qt>(); }
    bool shows(const QVariant& value) const override
    {
        return m_wasShown && !m_edited && value.value<Qt>().cacheKey() == m_shownKey;
    }
    void show(const QVariant& value) override
    {
        const auto picture = value.value<Qt>();
        m_shownKey = picture.cacheKey();
        m_wasShown = true;
        writePicture(*this, PictureValue<Qt>::fromQt(picture));
        m_edited = false; // what was just written is what the property holds
    }
    QVariant valueFor(const QVariant& before) override
    {
        const auto replaced = before.value<Qt>();
        const QImage wanted = readPicture(*this);
        const Qt* const former = m_former.find([&wanted](const Qt& picture) {
            return plainPicture(PictureValue<Qt>::fromQt(picture)) == wanted;
        });
        const QVariant value
            = QVariant::fromValue(former ? *former : PictureValue<Qt>::toQt(wanted));
        m_former.keep(replaced,
            [&replaced](const Qt& picture) { return picture.cacheKey() == replaced.cacheKey(); });
        return value;
    }
    void written() override
    {
        m_edited = m_wasShown;
        PropertyFieldOf::written();
    }

private:
    FormerValues<Qt> m_former;
    qint64 m_shownKey = 0;
    bool m_wasShown = false;
    bool m_edited = false; // the field holds another picture than the one shown
};
