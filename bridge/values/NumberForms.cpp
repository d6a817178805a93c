// SPDX-License-Identifier: BSD-3-Clause
#include "TextFormOf.h"

#include <QLine>
#include <QLocale>
#include <QMargins>
#include <QPoint>
#include <QQuaternion>
#include <QRect>
#include <QSize>
#include <QTransform>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <array>
#include <limits>
#include <tuple>

template <class Number>
struct WholeNumber {
    static QString write(Number number) { return QString::number(number); }
    static std::optional<Number> parse(const QString& text)
    {
        using Limits = std::numeric_limits<Number>;
        bool ok = false;
        if constexpr (Limits::is_signed) {
            const qlonglong number = text.trimmed().toLongLong(&ok, 0);
            if (ok && number >= Limits::min() && number <= Limits::max())
                return static_cast<Number>(number);
        } else {
            const qulonglong number = text.trimmed().toULongLong(&ok, 0);
            if (ok && number <= Limits::max())
                return static_cast<Number>(number);
        }
        return std::nullopt;
    }
};

template <>
struct Text<qlonglong> : WholeNumber<qlonglong> {
};
template <>
struct Text<qulonglong> : WholeNumber<qulonglong> {
};
template <>
struct Text<long> : WholeNumber<long> {
};
template <>
struct Text<ulong> : WholeNumber<ulong> {
};
template <>
struct Text<char> : WholeNumber<char> {
};
template <>
struct Text<signed char> : WholeNumber<signed char> {
};
template <>
struct Text<uchar> : WholeNumber<uchar> {
};
template <>
struct Text<int> : WholeNumber<int> {
};
template <>
struct Text<uint> : WholeNumber<uint> {
};
template <>
struct Text<short> : WholeNumber<short> {
};
template <>
struct Text<ushort> : WholeNumber<ushort> {
};

// Numbers in a row, with blanks between them.

int readNumber(const QString& text, bool* ok, int /*kind*/) { return text.toInt(ok); }
float readNumber(const QString& text, bool* ok, float /*kind*/) { return text.toFloat(ok); }
double readNumber(const QString& text, bool* ok, double /*kind*/) { return text.toDouble(ok); }
QString writeNumber(int number) { return QString::number(number); }
QString writeNumber(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}
/// The shortest text that reads back.
QString writeNumber(float number)
{
    QString text;
    for (int digits = std::numeric_limits<float>::digits10;
         digits <= std::numeric_limits<float>::max_digits10; ++digits) {
        text = QString::number(static_cast<double>(number), 'g', digits);
        if (text.toFloat() == number)
            break;
    }
    return text;
}

/// `split` gives the numbers of a value, `make` takes them.
// NOLINTNEXTLINE(readability-identifier-naming): functions, as far as a reader is concerned
template <class Qt, class Number, int Count, auto split, auto make>
struct Numbers {
    static QString write(const Qt& value)
    {
        QStringList texts;
        for (const Number number : split(value))
            texts += writeNumber(number);
        return texts.join(u' ');
    }
    static std::optional<Qt> parse(const QString& text)
    {
        const QStringList texts = text.simplified().split(u' ');
        std::array<Number, Count> numbers;
        if (texts.size() != Count)
            return std::nullopt;
        for (int i = 0; i < Count; ++i) {
            bool ok = false;
            numbers[static_cast<std::size_t>(i)] = readNumber(texts[i], &ok, Number());
            if (!ok)
                return std::nullopt;
        }
        return std::apply(make, numbers);
    }
};

template <class Number, class... Rest>
std::array<Number, sizeof...(Rest) + 1> row(Number first, Rest... rest)
{
    return { first, rest... };
}

template <class Qt>
constexpr auto fromFour = [](auto a, auto b, auto c, auto d) { return Qt(a, b, c, d); };
template <class Qt>
constexpr auto fromThree = [](auto a, auto b, auto c) { return Qt(a, b, c); };
template <class Qt>
constexpr auto fromTwo = [](auto a, auto b) { return Qt(a, b); };
constexpr auto fromOne = [](auto number) { return number; };
constexpr auto rectNumbers
    = [](const auto& rect) { return row(rect.x(), rect.y(), rect.width(), rect.height()); };
constexpr auto lineNumbers
    = [](const auto& line) { return row(line.x1(), line.y1(), line.x2(), line.y2()); };
constexpr auto marginNumbers = [](const auto& margins) {
    return row(margins.left(), margins.top(), margins.right(), margins.bottom());
};
constexpr auto pointNumbers = [](const auto& point) { return row(point.x(), point.y()); };
constexpr auto sizeNumbers = [](const auto& size) { return row(size.width(), size.height()); };
constexpr auto itself = [](auto number) { return row(number); };
constexpr auto threeNumbers = [](const QVector3D& v) { return row(v.x(), v.y(), v.z()); };
constexpr auto fourNumbers = [](const QVector4D& v) { return row(v.x(), v.y(), v.z(), v.w()); };
constexpr auto turnNumbers
    = [](const QQuaternion& q) { return row(q.scalar(), q.x(), q.y(), q.z()); };
constexpr auto transformNumbers = [](const QTransform& t) {
    return row(t.m11(), t.m12(), t.m13(), t.m21(), t.m22(), t.m23(), t.m31(), t.m32(), t.m33());
};
constexpr auto transformFrom = [](auto... numbers) { return QTransform(numbers...); };

template <>
struct Text<QRect> : Numbers<QRect, int, 4, rectNumbers, fromFour<QRect>> {
};
template <>
struct Text<QRectF> : Numbers<QRectF, double, 4, rectNumbers, fromFour<QRectF>> {
};
template <>
struct Text<QLine> : Numbers<QLine, int, 4, lineNumbers, fromFour<QLine>> {
};
template <>
struct Text<QLineF> : Numbers<QLineF, double, 4, lineNumbers, fromFour<QLineF>> {
};
template <>
struct Text<QMargins> : Numbers<QMargins, int, 4, marginNumbers, fromFour<QMargins>> {
};
template <>
struct Text<QMarginsF> : Numbers<QMarginsF, double, 4, marginNumbers, fromFour<QMarginsF>> {
};
template <>
struct Text<QPointF> : Numbers<QPointF, double, 2, pointNumbers, fromTwo<QPointF>> {
};
template <>
struct Text<QSizeF> : Numbers<QSizeF, double, 2, sizeNumbers, fromTwo<QSizeF>> {
};
template <>
struct Text<QPoint> : Numbers<QPoint, int, 2, pointNumbers, fromTwo<QPoint>> {
};
template <>
struct Text<QSize> : Numbers<QSize, int, 2, sizeNumbers, fromTwo<QSize>> {
};
template <>
struct Text<float> : Numbers<float, float, 1, itself, fromOne> {
};
template <>
struct Text<double> : Numbers<double, double, 1, itself, fromOne> {
};
template <>
struct Text<QVector2D> : Numbers<QVector2D, float, 2, pointNumbers, fromTwo<QVector2D>> {
};
template <>
struct Text<QVector3D> : Numbers<QVector3D, float, 3, threeNumbers, fromThree<QVector3D>> {
};
template <>
struct Text<QVector4D> : Numbers<QVector4D, float, 4, fourNumbers, fromFour<QVector4D>> {
};
template <>
struct Text<QQuaternion> : Numbers<QQuaternion, float, 4, turnNumbers, fromFour<QQuaternion>> {
};
template <>
struct Text<QTransform> : Numbers<QTransform, double, 9, transformNumbers, transformFrom> {
};

template <>
struct Text<bool> {
    static QString write(bool value)
    {
        return value ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    }
    static std::optional<bool> parse(const QString& text)
    {
        const QString word = text.trimmed().toUpper();
        if (word == QLatin1String("TRUE") || word == QLatin1String("1"))
            return true;
        if (word == QLatin1String("FALSE") || word == QLatin1String("0"))
            return false;
        return std::nullopt;
    }
};

std::vector<TextForm> numberForms()
{
    return {
        makeForm<bool>("SFBool", "TRUE or FALSE"),
        makeForm<short>("SFShort", "a whole number from -32768 to 32767"),
        makeForm<ushort>("SFUShort", "a whole number from 0 to 65535"),
        makeForm<int>("SFInt32", "a whole number of 32 bits"),
        makeForm<uint>("SFUInt32", "a whole number of 32 bits, not below 0"),
        makeForm<qlonglong>("SFInt64", "a whole number of 64 bits"),
        makeForm<qulonglong>("SFUInt64", "a whole number of 64 bits, not below 0"),
        makeForm<long>("SFLong", "a whole number"),
        makeForm<ulong>("SFULong", "a whole number, not below 0"),
        makeForm<char>("SFChar", "a whole number of 8 bits"),
        makeForm<signed char>("SFInt8", "a whole number from -128 to 127"),
        makeForm<uchar>("SFUInt8", "a whole number from 0 to 255"),
        makeForm<float>("SFFloat", "a number"),
        makeForm<double>("SFDouble", "a number"),
        makeForm<QPoint>("SFPoint", "x and y as whole numbers"),
        makeForm<QPointF>("SFPointF", "x and y"),
        makeForm<QSize>("SFSize", "width and height as whole numbers"),
        makeForm<QSizeF>("SFSizeF", "width and height"),
        makeForm<QRect>("SFRect", "x, y, width and height as whole numbers"),
        makeForm<QRectF>("SFRectF", "x, y, width and height"),
        makeForm<QLine>("SFLine", "x and y of both ends as whole numbers"),
        makeForm<QLineF>("SFLineF", "x and y of both ends"),
        makeForm<QMargins>("SFMargins", "left, top, right and bottom as whole numbers"),
        makeForm<QMarginsF>("SFMarginsF", "left, top, right and bottom"),
        makeForm<QVector2D>("SFVec2f", "x and y"),
        makeForm<QVector3D>("SFVec3f", "x, y and z"),
        makeForm<QVector4D>("SFVec4f", "x, y, z and w"),
        makeForm<QQuaternion>("SFQuaternion", "scalar, x, y and z"),
        makeForm<QTransform>("SFTransform", "the nine elements, row after row"),
    };
}
