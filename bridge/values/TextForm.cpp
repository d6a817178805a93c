// SPDX-License-Identifier: BSD-3-Clause
#include "TextForm.h"

#include <QByteArray>
#include <QDateTime>
#include <QDebug>
#include <QFont>
#include <QKeySequence>
#include <QLine>
#include <QLocale>
#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QTimeZone>
#include <QTransform>
#include <QUuid>

#include <array>
#include <limits>
#include <optional>
#include <tuple>

namespace {

/// `write` and `read` of one type, from which a TextForm is made.
template <class Qt>
struct Text;

template <class Qt>
TextForm makeForm(const char* fieldType, const char* expected)
{
    return { QMetaType::fromType<Qt>(), fieldType, expected,
        [](const QVariant& value) { return Text<Qt>::write(value.value<Qt>()); },
        [](const QString& text) {
            const std::optional<Qt> value = Text<Qt>::read(text);
            return value ? QVariant::fromValue(*value) : QVariant();
        } };
}

// Whole numbers.

template <class Number>
struct WholeNumber {
    static QString write(Number number) { return QString::number(number); }
    static std::optional<Number> read(const QString& text)
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

// Numbers in a row, with blanks between them.

int readNumber(const QString& text, bool* ok, int /*kind*/) { return text.toInt(ok); }
double readNumber(const QString& text, bool* ok, double /*kind*/) { return text.toDouble(ok); }
QString writeNumber(int number) { return QString::number(number); }
QString writeNumber(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

/// `split` gives the numbers of a value, `make` takes them.
template <class Qt, class Number, int Count, auto split, auto make>
struct Numbers {
    static QString write(const Qt& value)
    {
        QStringList texts;
        for (const Number number : split(value))
            texts += writeNumber(number);
        return texts.join(u' ');
    }
    static std::optional<Qt> read(const QString& text)
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
constexpr auto fromTwo = [](auto a, auto b) { return Qt(a, b); };
constexpr auto rectNumbers
    = [](const auto& rect) { return row(rect.x(), rect.y(), rect.width(), rect.height()); };
constexpr auto lineNumbers
    = [](const auto& line) { return row(line.x1(), line.y1(), line.x2(), line.y2()); };
constexpr auto marginNumbers = [](const auto& margins) {
    return row(margins.left(), margins.top(), margins.right(), margins.bottom());
};
constexpr auto pointNumbers = [](const QPointF& point) { return row(point.x(), point.y()); };
constexpr auto sizeNumbers = [](const QSizeF& size) { return row(size.width(), size.height()); };
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
struct Text<QTransform> : Numbers<QTransform, double, 9, transformNumbers, transformFrom> {
};

// Texts of Qt's own.

/// Printable characters stand for themselves, all others and the backslash as `\x` and two digits.
template <>
struct Text<QByteArray> {
    static QString write(const QByteArray& bytes)
    {
        QString text;
        for (const char byte : bytes) {
            if (byte >= ' ' && byte <= '~' && byte != '\\')
                text += QLatin1Char(byte);
            else
                text += QStringLiteral("\\x") + QString::fromLatin1(QByteArray(1, byte).toHex());
        }
        return text;
    }
    static std::optional<QByteArray> read(const QString& text)
    {
        constexpr int escapeLength = 4;
        QByteArray bytes;
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] != u'\\') {
                if (text[i] < u' ' || text[i] > u'~')
                    return std::nullopt;
                bytes += text[i].toLatin1();
                continue;
            }
            bool ok = false;
            const QString escape = text.mid(i, escapeLength);
            const int byte = escape.mid(2).toInt(&ok, 16);
            if (!ok || escape.size() < escapeLength || escape[1] != u'x' || byte < 0)
                return std::nullopt;
            bytes += static_cast<char>(byte);
            i += escapeLength - 1;
        }
        return bytes;
    }
};

template <>
struct Text<QChar> {
    static QString write(QChar character) { return character.isNull() ? QString() : character; }
    static std::optional<QChar> read(const QString& text)
    {
        if (text.size() > 1)
            return std::nullopt;
        return text.isEmpty() ? QChar() : text.front();
    }
};

template <>
struct Text<QFont> {
    static QString write(const QFont& font) { return font.toString(); }
    static std::optional<QFont> read(const QString& text)
    {
        // Qt complains aloud of other numbers of attributes.
        const QList<qsizetype> counts { 1, 2, 10, 11, 16, 17 };
        const QString attributes = text.trimmed();
        QFont font;
        if (attributes.startsWith(u',') || !counts.contains(attributes.count(u',') + 1)
            || !font.fromString(attributes))
            return std::nullopt;
        return font;
    }
};

template <>
struct Text<QKeySequence> {
    static QString write(const QKeySequence& keys) { return keys.toString(); }
    static std::optional<QKeySequence> read(const QString& text)
    {
        const QKeySequence keys(text.trimmed());
        for (int i = 0; i < keys.count(); ++i) {
            if (keys[static_cast<uint>(i)].key() == Qt::Key_unknown)
                return std::nullopt;
        }
        return keys.isEmpty() && !text.trimmed().isEmpty() ? std::nullopt : std::optional(keys);
    }
};

template <>
struct Text<QLocale> {
    static QString write(const QLocale& locale)
    {
        // Not by comparing with it: the C locale of the system has other number options.
        return locale.language() == QLocale::C ? QStringLiteral("C") : locale.bcp47Name();
    }
    static std::optional<QLocale> read(const QString& text)
    {
        const QString name = text.trimmed();
        const QLocale locale(name);
        // Qt takes the C locale for a name that it doesn't know.
        if (locale.language() == QLocale::C && name != QLatin1String("C"))
            return std::nullopt;
        return locale;
    }
};

template <>
struct Text<QDate> {
    static QString write(QDate date) { return date.toString(Qt::ISODate); }
    static std::optional<QDate> read(const QString& text)
    {
        const QDate date = QDate::fromString(text.trimmed(), Qt::ISODate);
        return date.isValid() || text.trimmed().isEmpty() ? std::optional(date) : std::nullopt;
    }
};

template <>
struct Text<QTime> {
    static QString write(QTime time) { return time.toString(Qt::ISODateWithMs); }
    static std::optional<QTime> read(const QString& text)
    {
        const QTime time = QTime::fromString(text.trimmed(), Qt::ISODateWithMs);
        return time.isValid() || text.trimmed().isEmpty() ? std::optional(time) : std::nullopt;
    }
};

/// With Z for UTC, an offset from it, the name of a time zone, or nothing for local time.
template <>
struct Text<QDateTime> {
    static QString write(const QDateTime& time)
    {
        if (time.timeSpec() != Qt::TimeZone)
            return time.toString(Qt::ISODateWithMs);
        return QDateTime(time.date(), time.time()).toString(Qt::ISODateWithMs) + u' '
            + QString::fromLatin1(time.timeZone().id());
    }
    static std::optional<QDateTime> read(const QString& text)
    {
        const QStringList parts = text.simplified().split(u' ');
        QDateTime time = QDateTime::fromString(parts[0], Qt::ISODateWithMs);
        if (parts.size() == 2) {
            const QTimeZone zone(parts[1].toLatin1());
            if (!zone.isValid() || !time.isValid())
                return std::nullopt;
            time = QDateTime(time.date(), time.time(), zone);
        }
        const bool empty = parts.size() == 1 && parts[0].isEmpty();
        return (time.isValid() && parts.size() <= 2) || empty ? std::optional(time) : std::nullopt;
    }
};

template <>
struct Text<QUuid> {
    static QString write(const QUuid& id) { return id.toString(); }
    static std::optional<QUuid> read(const QString& text)
    {
        const QUuid id(text.trimmed());
        const bool isNull = text.trimmed() == QUuid().toString();
        return !id.isNull() || isNull ? std::optional(id) : std::nullopt;
    }
};

QString describe(const QVariant& value)
{
    if (!value.isValid())
        return QStringLiteral("nothing");
    QString text;
    QDebug debug = QDebug(&text).nospace();
    if (value.metaType().hasRegisteredDebugStreamOperator())
        value.metaType().debugStream(debug, value.constData());
    else if (value.canConvert<QString>())
        text = value.toString();
    if (text.isEmpty())
        text = QLatin1String(value.typeName());
    return text;
}

QString describeObject(const QVariant& value)
{
    const auto* const object = value.value<QObject*>();
    if (!object)
        return QStringLiteral("none");
    const QLatin1String type(object->metaObject()->className());
    return object->objectName().isEmpty()
        ? QString(type)
        : QStringLiteral("%1 \"%2\"").arg(type, object->objectName());
}

} // namespace

const TextForm* textFormOf(QMetaType type)
{
    static const TextForm forms[] = {
        makeForm<qlonglong>("SFInt64", "a whole number of 64 bits"),
        makeForm<qulonglong>("SFUInt64", "a whole number of 64 bits, not below 0"),
        makeForm<long>("SFLong", "a whole number"),
        makeForm<ulong>("SFULong", "a whole number, not below 0"),
        makeForm<char>("SFChar", "a whole number of 8 bits"),
        makeForm<signed char>("SFInt8", "a whole number from -128 to 127"),
        makeForm<uchar>("SFUInt8", "a whole number from 0 to 255"),
        makeForm<QChar>("SFCharacter", "one character"),
        makeForm<QByteArray>("SFBytes", "ASCII characters, and \\x with two digits for others"),
        makeForm<QPointF>("SFPoint", "x and y"),
        makeForm<QSizeF>("SFSize", "width and height"),
        makeForm<QRect>("SFRect", "x, y, width and height as whole numbers"),
        makeForm<QRectF>("SFRectF", "x, y, width and height"),
        makeForm<QLine>("SFLine", "x and y of both ends as whole numbers"),
        makeForm<QLineF>("SFLineF", "x and y of both ends"),
        makeForm<QMargins>("SFMargins", "left, top, right and bottom as whole numbers"),
        makeForm<QMarginsF>("SFMarginsF", "left, top, right and bottom"),
        makeForm<QTransform>("SFTransform", "the nine elements, row after row"),
        makeForm<QFont>("SFFont", "a font as Qt writes it: family, size in points, ..."),
        makeForm<QKeySequence>("SFKeys", "keys, such as Ctrl+S"),
        makeForm<QLocale>("SFLocale", "a locale, such as de-DE, or C"),
        makeForm<QDate>("SFDate", "a date, such as 2030-12-31"),
        makeForm<QTime>("SFTimeOfDay", "a time, such as 23:59:59.999"),
        makeForm<QDateTime>(
            "SFDateTime", "a date and a time, such as 2030-12-31T23:59:59.999 Europe/Berlin"),
        makeForm<QUuid>("SFUuid", "a UUID in braces"),
    };
    for (const TextForm& form : forms) {
        if (form.type == type)
            return &form;
    }
    return nullptr;
}

const TextForm& descriptionForm()
{
    static const TextForm form { QMetaType(), "SFDescription", "", &describe, nullptr };
    return form;
}

const TextForm& objectForm()
{
    static const TextForm form { QMetaType(), "SFObject", "", &describeObject, nullptr };
    return form;
}
