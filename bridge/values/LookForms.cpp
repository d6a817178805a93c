// SPDX-License-Identifier: BSD-3-Clause
#include "ColorText.h"
#include "TextFormOf.h"

#include <QCursor>
#include <QFont>
#include <QMetaEnum>
#include <QPalette>
#include <QPen>
#include <QSizePolicy>

#include <array>
#include <utility>

namespace {

/// `Known` is what Qt knows the names of: the enumeration or its flags.
template <class Known, class Enum>
QString keyOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Known>().valueToKey(static_cast<int>(value)));
}

template <class Enum>
QString keyOf(Enum value)
{
    return keyOf<Enum, Enum>(value);
}

template <class Enum, class Known = Enum>
std::optional<Enum> enumOf(const QString& key)
{
    bool ok = false;
    const int value = QMetaEnum::fromType<Known>().keyToValue(key.toLatin1().constData(), &ok);
    return ok ? std::optional(static_cast<Enum>(value)) : std::nullopt;
}

/// The words of a text, one at a time.
class Words {
public:
    explicit Words(const QString& text)
        : m_words(text.simplified().split(u' ', Qt::SkipEmptyParts))
    {
    }
    bool isEmpty() const { return m_words.isEmpty(); }
    QString take() { return m_words.isEmpty() ? QString() : m_words.takeFirst(); }
    int takeNumber(bool* ok)
    {
        bool isNumber = false;
        const int number = take().toInt(&isNumber);
        *ok = *ok && isNumber;
        return number;
    }

private:
    QStringList m_words;
};

} // namespace

template <>
struct Text<QColor> {
    static QString write(const QColor& color) { return colorText(color); }
    static std::optional<QColor> parse(const QString& text) { return colorOf(text.trimmed()); }
};

/// One word: a colour, or the pattern, a colon and the colour.
template <>
struct Text<QBrush> {
    static QString write(const QBrush& brush)
    {
        if (brush.style() == Qt::SolidPattern)
            return colorText(brush.color());
        return keyOf(brush.style()) + u':' + colorText(brush.color());
    }
    static std::optional<QBrush> parse(const QString& text)
    {
        const QString word = text.trimmed();
        const std::optional style = enumOf<Qt::BrushStyle>(word.section(u':', 0, 0));
        const std::optional color = colorOf(style ? word.section(u':', 1) : word);
        if (!color || (style && *style > Qt::DiagCrossPattern)) // gradients and textures
            return std::nullopt;
        return QBrush(*color, style.value_or(Qt::SolidPattern));
    }
};

template <>
struct Text<QPen> {
    static QString write(const QPen& pen)
    {
        return QStringList { Text<QBrush>::write(pen.brush()), QString::number(pen.widthF()),
            keyOf(pen.style()), keyOf(pen.capStyle()), keyOf(pen.joinStyle()) }
            .join(u' ');
    }
    static std::optional<QPen> read(const QString& text, const QPen& before)
    {
        Words words(text);
        bool isNumber = false;
        const std::optional brush = Text<QBrush>::parse(words.take());
        const double width = words.take().toDouble(&isNumber);
        const std::optional style = enumOf<Qt::PenStyle>(words.take());
        const std::optional cap = enumOf<Qt::PenCapStyle>(words.take());
        const std::optional join = enumOf<Qt::PenJoinStyle>(words.take());
        if (!brush || !isNumber || !style || !cap || !join || !words.isEmpty())
            return std::nullopt;
        QPen pen(before);
        pen.setBrush(*brush);
        pen.setWidthF(width);
        if (*style != pen.style())
            pen.setStyle(*style); // which drops the dashes
        pen.setCapStyle(*cap);
        pen.setJoinStyle(*join);
        return pen;
    }
};

/// Only what differs from the text of the font before is set, since a font also says what of it was
/// set at all, and what comes from the parent.
template <>
struct Text<QFont> {
    static QString write(const QFont& font) { return font.toString(); }
    static std::optional<QFont> read(const QString& text, const QFont& before)
    {
        // Qt complains aloud of other numbers of attributes.
        const QList<qsizetype> counts { 1, 2, 10, 11, 16, 17 };
        const QString attributes = text.trimmed();
        QFont wanted;
        QFont shown;
        if (attributes.startsWith(u',') || !counts.contains(attributes.count(u',') + 1)
            || !wanted.fromString(attributes) || !shown.fromString(write(before)))
            return std::nullopt;
        QFont font(before);
        const auto take = [&](auto get, auto set) {
            if ((wanted.*get)() != (shown.*get)())
                (font.*set)((wanted.*get)());
        };
        take(&QFont::family, &QFont::setFamily);
        take(&QFont::weight, &QFont::setWeight);
        take(&QFont::style, &QFont::setStyle);
        take(&QFont::underline, &QFont::setUnderline);
        take(&QFont::strikeOut, &QFont::setStrikeOut);
        take(&QFont::fixedPitch, &QFont::setFixedPitch);
        take(&QFont::capitalization, &QFont::setCapitalization);
        take(&QFont::wordSpacing, &QFont::setWordSpacing);
        take(&QFont::stretch, &QFont::setStretch);
        take(&QFont::styleStrategy, &QFont::setStyleStrategy);
        take(&QFont::styleName, &QFont::setStyleName);
        if (wanted.styleHint() != shown.styleHint())
            font.setStyleHint(wanted.styleHint(), font.styleStrategy());
        if (wanted.letterSpacing() != shown.letterSpacing()
            || wanted.letterSpacingType() != shown.letterSpacingType())
            font.setLetterSpacing(wanted.letterSpacingType(), wanted.letterSpacing());
        if (wanted.pixelSize() != shown.pixelSize() && wanted.pixelSize() > 0)
            font.setPixelSize(wanted.pixelSize());
        else if (wanted.pointSizeF() != shown.pointSizeF() && wanted.pointSizeF() > 0)
            font.setPointSizeF(wanted.pointSizeF());
        return font;
    }
};

/// The colours of each role, once if all groups have the same, or else that of the active, the
/// inactive and the disabled one. A text may leave roles out, which stay as they are.
template <>
struct Text<QPalette> {
    static constexpr std::array groups { QPalette::Active, QPalette::Inactive, QPalette::Disabled };

    /// Most widgets of a program share one palette.
    static QString write(const QPalette& palette)
    {
        static qint64 lastKey = 0; // Qt's count from 1
        static auto& lastText = *new QString; // outlives all static objects
        if (std::exchange(lastKey, palette.cacheKey()) != palette.cacheKey())
            lastText = rolesText(palette);
        return lastText;
    }
    static QString rolesText(const QPalette& palette)
    {
        QStringList roles;
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            if (role == QPalette::NoRole)
                continue;
            QStringList words { keyOf(role) };
            for (const QPalette::ColorGroup group : groups)
                words += Text<QBrush>::write(palette.brush(group, role));
            if (words[1] == words[2] && words[1] == words[3])
                words.resize(2);
            roles += words.join(u' ');
        }
        return roles.join(QStringLiteral(", "));
    }
    static std::optional<QPalette> read(const QString& text, const QPalette& before)
    {
        QPalette palette(before);
        for (const QString& part : text.split(u',', Qt::SkipEmptyParts)) {
            Words words(part);
            const std::optional role = enumOf<QPalette::ColorRole>(words.take());
            if (!role || *role >= QPalette::NColorRoles || words.isEmpty())
                return std::nullopt;
            QString word;
            for (const QPalette::ColorGroup group : groups) {
                const bool isOne = !word.isEmpty() && words.isEmpty();
                word = isOne ? word : words.take();
                if (Text<QBrush>::write(before.brush(group, *role)) == word)
                    continue; // one that was set remains so, and others don't become it
                const std::optional brush = Text<QBrush>::parse(word);
                if (!brush)
                    return std::nullopt;
                palette.setBrush(group, *role, *brush);
            }
            if (!words.isEmpty())
                return std::nullopt;
        }
        return palette;
    }
};

template <>
struct Text<QCursor> {
    static QString write(const QCursor& cursor) { return keyOf(cursor.shape()); }
    static std::optional<QCursor> parse(const QString& text)
    {
        const std::optional shape = enumOf<Qt::CursorShape>(text.trimmed());
        return shape && *shape <= Qt::LastCursor ? std::optional(QCursor(*shape)) : std::nullopt;
    }
};

/// Both policies, and what of the rest isn't as usual: `Expanding Fixed stretch 1 0`.
template <>
struct Text<QSizePolicy> {
    static QString write(const QSizePolicy& policy)
    {
        QStringList words { keyOf(policy.horizontalPolicy()), keyOf(policy.verticalPolicy()) };
        if (policy.horizontalStretch() != 0 || policy.verticalStretch() != 0)
            words += QStringLiteral("stretch %1 %2")
                         .arg(policy.horizontalStretch())
                         .arg(policy.verticalStretch());
        if (policy.controlType() != QSizePolicy::DefaultType)
            words += keyOf<QSizePolicy::ControlTypes>(policy.controlType());
        if (policy.hasHeightForWidth())
            words += QStringLiteral("heightForWidth");
        if (policy.hasWidthForHeight())
            words += QStringLiteral("widthForHeight");
        if (policy.retainSizeWhenHidden())
            words += QStringLiteral("retainSizeWhenHidden");
        return words.join(u' ');
    }
    static std::optional<QSizePolicy> parse(const QString& text)
    {
        Words words(text);
        const std::optional horizontal = enumOf<QSizePolicy::Policy>(words.take());
        const std::optional vertical = enumOf<QSizePolicy::Policy>(words.take());
        if (!horizontal || !vertical)
            return std::nullopt;
        QSizePolicy policy(*horizontal, *vertical);
        bool ok = true;
        while (!words.isEmpty() && ok) {
            const QString word = words.take();
            const std::optional type
                = enumOf<QSizePolicy::ControlType, QSizePolicy::ControlTypes>(word);
            if (word == QLatin1String("stretch")) {
                const int across = words.takeNumber(&ok);
                const int down = words.takeNumber(&ok);
                ok = ok && across >= 0 && across <= 255 && down >= 0 && down <= 255;
                policy.setHorizontalStretch(ok ? across : 0);
                policy.setVerticalStretch(ok ? down : 0);
            } else if (word == QLatin1String("heightForWidth")) {
                policy.setHeightForWidth(true);
            } else if (word == QLatin1String("widthForHeight")) {
                policy.setWidthForHeight(true);
            } else if (word == QLatin1String("retainSizeWhenHidden")) {
                policy.setRetainSizeWhenHidden(true);
            } else if (type) {
                policy.setControlType(*type);
            } else {
                ok = false;
            }
        }
        return ok ? std::optional(policy) : std::nullopt;
    }
};

std::vector<TextForm> lookForms()
{
    return {
        makeForm<QColor>("SFColorText", "a colour, such as #ff8000 or hsv:0.1:1:1:1", true),
        makeForm<QBrush>("SFBrush", "a colour, or a pattern, a colon and a colour", true),
        makeForm<QPen>("SFPen",
            "colour, width, style, cap and join, such as red 1 SolidLine FlatCap BevelJoin", true),
        makeForm<QFont>("SFFont", "a font as Qt writes it: family, size in points, ..."),
        makeForm<QPalette>("SFPalette",
            "roles with their colours, such as Window #ffffff, Text #000000 #000000 #808080", true),
        makeForm<QCursor>("SFCursor", "the name of a shape, such as WaitCursor", true),
        makeForm<QSizePolicy>("SFSizePolicy", "two policies, such as Expanding Fixed stretch 1 0"),
    };
}
