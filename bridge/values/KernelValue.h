// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvStrings.h"
#include "KnMFields.h"
#include "KnSFields.h"

#include <QColor>
#include <QMatrix4x4>
#include <QPoint>
#include <QQuaternion>
#include <QSize>
#include <QUrl>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <algorithm>
#include <cmath>

/// How a value of Qt's becomes one of the kernel's and back, by pure functions: `fromQt`, `toQt`,
/// and the fields that show one value (`Single`) and a list of them (`Array`). `standsFor` says
/// whether `toQt` of a value is this one of Qt's, where several values of the kernel stand for one.
/// `canShow` is false for a value that the field would show as another one.
template <class Qt>
struct KernelValue;

/// The fields of a type, and what holds for all types that don't say otherwise.
template <class Qt, class SingleField, class ArrayField = void>
struct KernelFields {
    using Single = SingleField;
    using Array = ArrayField;
    using Value = typename SingleField::Value;

    static bool standsFor(const Value&, const Qt&) { return false; }
    static bool canShow(const Qt&) { return true; }
};

/// A type that is the same on both sides.
template <class Qt, class SingleField, class ArrayField = void>
struct SameValue : KernelFields<Qt, SingleField, ArrayField> {
    static Qt fromQt(Qt value) { return value; }
    static Qt toQt(Qt value) { return value; }
};

template <>
struct KernelValue<bool> : SameValue<bool, KnSFBool> {
};
template <>
struct KernelValue<short> : SameValue<short, KnSFShort, KnMFShort> {
};
template <>
struct KernelValue<ushort> : SameValue<ushort, KnSFUShort, KnMFUShort> {
};
template <>
struct KernelValue<int> : SameValue<int, KnSFInt32, KnMFInt32> {
};
template <>
struct KernelValue<uint> : SameValue<uint, KnSFUInt32, KnMFUInt32> {
};
template <>
struct KernelValue<float> : SameValue<float, KnSFFloat, KnMFFloat> {
};
template <>
struct KernelValue<double> : SameValue<double, KnSFDouble, KnMFDouble> {
};

template <>
struct KernelValue<QString> : KernelFields<QString, KnSFString, KnMFString> {
    static KbString fromQt(const QString& text) { return toKbString(text); }
    static QString toQt(const KbString& text) { return toQString(text); }
    /// The kernel's null text is empty, and so is Qt's.
    static bool standsFor(const KbString& text, const QString& value)
    {
        return toQt(text) == value;
    }
};

/// Percent-encoded, which is the one text of a URL that reads back to it.
template <>
struct KernelValue<QUrl> : KernelFields<QUrl, KnSFString, KnMFString> {
    static KbString fromQt(const QUrl& url) { return toKbString(url.toString(QUrl::FullyEncoded)); }
    static QUrl toQt(const KbString& text) { return QUrl(toQString(text), QUrl::TolerantMode); }
    /// Several texts may stand for one URL, and what was typed stays.
    static bool standsFor(const KbString& text, const QUrl& url) { return toQt(text) == url; }
};

/// Exact for colours of the RGB model, which has 16 bits for each component. An edit makes a colour
/// of any other model one of this. An invalid colour would be shown as black.
template <>
struct KernelValue<QColor> : KernelFields<QColor, KnSFColorRGBA, KnMFColorRGBA> {
    static KbColorRGBA fromQt(const QColor& color)
    {
        float red = 0;
        float green = 0;
        float blue = 0;
        float alpha = 0;
        color.getRgbF(&red, &green, &blue, &alpha);
        return { red, green, blue, alpha };
    }
    static QColor toQt(const KbColorRGBA& color)
    {
        return QColor::fromRgbF(color[0], color[1], color[2], std::clamp(color[3], 0.0F, 1.0F));
    }
    static bool canShow(const QColor& color) { return color.isValid(); }
};

template <>
struct KernelValue<QPoint> : KernelFields<QPoint, KnSFVec2i32, KnMFVec2i32> {
    static KbVec2i32 fromQt(QPoint point) { return { point.x(), point.y() }; }
    static QPoint toQt(const KbVec2i32& vector) { return { vector[0], vector[1] }; }
};

template <>
struct KernelValue<QSize> : KernelFields<QSize, KnSFVec2i32, KnMFVec2i32> {
    static KbVec2i32 fromQt(QSize size) { return { size.width(), size.height() }; }
    static QSize toQt(const KbVec2i32& vector) { return { vector[0], vector[1] }; }
};

template <>
struct KernelValue<QVector2D> : KernelFields<QVector2D, KnSFVec2f, KnMFVec2f> {
    static KbVec2f fromQt(QVector2D v) { return { v.x(), v.y() }; }
    static QVector2D toQt(const KbVec2f& v) { return { v[0], v[1] }; }
};

template <>
struct KernelValue<QVector3D> : KernelFields<QVector3D, KnSFVec3f, KnMFVec3f> {
    static KbVec3f fromQt(QVector3D v) { return { v.x(), v.y(), v.z() }; }
    static QVector3D toQt(const KbVec3f& v) { return { v[0], v[1], v[2] }; }
};

template <>
struct KernelValue<QVector4D> : KernelFields<QVector4D, KnSFVec4f, KnMFVec4f> {
    static KbVec4f fromQt(QVector4D v) { return { v.x(), v.y(), v.z(), v.w() }; }
    static QVector4D toQt(const KbVec4f& v) { return { v[0], v[1], v[2], v[3] }; }
};

/// Exact to rounding: the kernel keeps an axis and an angle, from which the quaternion is computed.
template <>
struct KernelValue<QQuaternion> : KernelFields<QQuaternion, KnSFRotation, KnMFRotation> {
    static KbRotation fromQt(const QQuaternion& q)
    {
        return KbRotation({ q.x(), q.y(), q.z(), q.scalar() });
    }
    static QQuaternion toQt(const KbRotation& rotation)
    {
        const auto [x, y, z, w] = rotation.getValue();
        return { w, x, y, z };
    }
    /// So the axis that was typed isn't lost while the angle is still 0.
    static bool standsFor(const KbRotation& rotation, const QQuaternion& q)
    {
        const auto [x, y, z, w] = rotation.getValue();
        return x == q.x() && y == q.y() && z == q.z() && w == q.scalar();
    }
    /// A rotation has no length, and only as much of one as rounding leaves may be lost.
    static bool canShow(const QQuaternion& q)
    {
        constexpr float tolerance = 1e-5F;
        return std::abs(q.lengthSquared() - 1) < tolerance;
    }
};

template <>
struct KernelValue<QMatrix4x4> : KernelFields<QMatrix4x4, KnSFMatrix, KnMFMatrix> {
    static KbMatrix fromQt(const QMatrix4x4& matrix)
    {
        KbMatrix result;
        matrix.copyDataTo(result[0]);
        return result;
    }
    static QMatrix4x4 toQt(const KbMatrix& matrix) { return QMatrix4x4(matrix.getValue()); }
};
