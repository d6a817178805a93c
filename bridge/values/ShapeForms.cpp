// SPDX-License-Identifier: BSD-3-Clause
#include "TextFormOf.h"

#include <QEasingCurve>
#include <QMetaEnum>
#include <QPolygon>
#include <QPolygonF>
#include <QRegion>

namespace {

/// The parts of a text between commas; none for a text of blanks.
QStringList partsOf(const QString& text)
{
    return text.trimmed().isEmpty() ? QStringList() : text.split(u',');
}

/// The items of a list by the form of one of them, with commas in between.
template <class List>
QString writeItems(const List& items)
{
    using Item = typename List::value_type;
    const TextForm& form = textFormOf(QMetaType::fromType<Item>());
    QStringList texts;
    for (const Item& item : items)
        texts += form.write(QVariant::fromValue(item));
    return texts.join(QStringLiteral(", "));
}

template <class List>
std::optional<List> readItems(const QString& text)
{
    using Item = typename List::value_type;
    const TextForm& form = textFormOf(QMetaType::fromType<Item>());
    List items;
    for (const QString& part : partsOf(text)) {
        const std::optional<QVariant> item = form.read(part, QVariant::fromValue(Item()));
        if (!item)
            return std::nullopt;
        items.append(item->value<Item>());
    }
    return items;
}

} // namespace

template <>
struct Text<QPolygon> {
    static QString write(const QPolygon& points) { return writeItems(points); }
    static std::optional<QPolygon> parse(const QString& text) { return readItems<QPolygon>(text); }
};

template <>
struct Text<QPolygonF> {
    static QString write(const QPolygonF& points) { return writeItems(points); }
    static std::optional<QPolygonF> parse(const QString& text)
    {
        return readItems<QPolygonF>(text);
    }
};

/// Its rectangles, which may overlap when they are read.
template <>
struct Text<QRegion> {
    static QString write(const QRegion& region)
    {
        return writeItems(QList<QRect>(region.begin(), region.end()));
    }
    static std::optional<QRegion> parse(const QString& text)
    {
        const std::optional rects = readItems<QList<QRect>>(text);
        if (!rects)
            return std::nullopt;
        QRegion region;
        for (const QRect& rect : *rects)
            region += rect;
        return region;
    }
};

/// The type, and amplitude, overshoot and period if they aren't as usual.
template <>
struct Text<QEasingCurve> {
    static QString write(const QEasingCurve& curve)
    {
        const QString type = QString::fromLatin1(
            QMetaEnum::fromType<QEasingCurve::Type>().valueToKey(curve.type()));
        if (curve == QEasingCurve(curve.type()))
            return type;
        return QStringLiteral("%1 %2 %3 %4")
            .arg(type)
            .arg(curve.amplitude(), 0, 'g', 17)
            .arg(curve.overshoot(), 0, 'g', 17)
            .arg(curve.period(), 0, 'g', 17);
    }
    static std::optional<QEasingCurve> parse(const QString& text)
    {
        const QStringList words = text.simplified().split(u' ');
        bool ok = false;
        const int type = QMetaEnum::fromType<QEasingCurve::Type>().keyToValue(
            words[0].toLatin1().constData(), &ok);
        // Those behind are made of points or of code.
        if (!ok || type >= QEasingCurve::BezierSpline || (words.size() != 1 && words.size() != 4))
            return std::nullopt;
        QEasingCurve curve(static_cast<QEasingCurve::Type>(type));
        if (words.size() == 1)
            return curve;
        bool isPeriod = false;
        bool isOvershoot = false;
        curve.setAmplitude(words[1].toDouble(&ok));
        curve.setOvershoot(words[2].toDouble(&isOvershoot));
        curve.setPeriod(words[3].toDouble(&isPeriod));
        return ok && isOvershoot && isPeriod ? std::optional(curve) : std::nullopt;
    }
};

std::vector<TextForm> shapeForms()
{
    return {
        makeForm<QPolygon>("SFPolygon", "points with commas between: x y, x y"),
        makeForm<QPolygonF>("SFPolygonF", "points with commas between: x y, x y"),
        makeForm<QRegion>("SFRegion", "rectangles with commas between: x y width height, ..."),
        makeForm<QEasingCurve>("SFEasingCurve",
            "the name of a curve, and perhaps amplitude, overshoot and period", true),
    };
}
