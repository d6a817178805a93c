// SPDX-License-Identifier: BSD-3-Clause
#include "TextFormOf.h"

#include <QBitArray>
#include <QByteArray>
#include <QDateTime>
#include <QKeySequence>
#include <QLocale>
#include <QRegularExpression>
#include <QTimeZone>
#include <QUrl>
#include <QUuid>
#include <QVersionNumber>

#include <algorithm>
#include <iterator>

template <>
struct Text<QString> {
    static QString write(const QString& text) { return text; }
    static std::optional<QString> parse(const QString& text) { return text; }
};

template <>
struct Text<QUrl> {
    static QString write(const QUrl& url) { return url.toString(QUrl::FullyEncoded); }
    static std::optional<QUrl> parse(const QString& text) { return QUrl(text, QUrl::TolerantMode); }
};

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
    static std::optional<QByteArray> parse(const QString& text)
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
    static std::optional<QChar> parse(const QString& text)
    {
        if (text.size() > 1)
            return std::nullopt;
        return text.isEmpty() ? QChar() : text.front();
    }
};

template <>
struct Text<QKeySequence> {
    static QString write(const QKeySequence& keys) { return keys.toString(); }
    static std::optional<QKeySequence> parse(const QString& text)
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
    /// The options for numbers aren't part of the text.
    static std::optional<QLocale> read(const QString& text, const QLocale& before)
    {
        const QString name = text.trimmed();
        QLocale locale(name);
        locale.setNumberOptions(before.numberOptions());
        // Qt takes the C locale for a name that it doesn't know.
        if (locale.language() == QLocale::C && name != QLatin1String("C"))
            return std::nullopt;
        return locale;
    }
};

template <>
struct Text<QDate> {
    static constexpr QLatin1String julian { "JD " };

    /// Years that ISO 8601 doesn't know by the number of the Julian day.
    static QString write(QDate date)
    {
        const QString text = date.toString(Qt::ISODate);
        return text.isEmpty() && date.isValid() ? julian + QString::number(date.toJulianDay())
                                                : text;
    }
    static std::optional<QDate> parse(const QString& text)
    {
        if (text.trimmed().startsWith(julian)) {
            bool ok = false;
            const QDate day
                = QDate::fromJulianDay(text.trimmed().mid(julian.size()).toLongLong(&ok));
            return ok && day.isValid() ? std::optional(day) : std::nullopt;
        }
        const QDate date = QDate::fromString(text.trimmed(), Qt::ISODate);
        return date.isValid() || text.trimmed().isEmpty() ? std::optional(date) : std::nullopt;
    }
};

template <>
struct Text<QTime> {
    static QString write(QTime time) { return time.toString(Qt::ISODateWithMs); }
    static std::optional<QTime> parse(const QString& text)
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
    static std::optional<QDateTime> parse(const QString& text)
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
    static std::optional<QUuid> parse(const QString& text)
    {
        const QUuid id(text.trimmed());
        const bool isNull = text.trimmed() == QUuid().toString();
        return !id.isNull() || isNull ? std::optional(id) : std::nullopt;
    }
};

/// One digit for each bit.
template <>
struct Text<QBitArray> {
    static QString write(const QBitArray& bits)
    {
        QString text;
        for (qsizetype i = 0; i < bits.size(); ++i)
            text += bits.testBit(i) ? u'1' : u'0';
        return text;
    }
    static std::optional<QBitArray> parse(const QString& text)
    {
        const QString digits = text.trimmed();
        QBitArray bits(digits.size());
        for (qsizetype i = 0; i < digits.size(); ++i) {
            if (digits[i] != u'0' && digits[i] != u'1')
                return std::nullopt;
            bits.setBit(i, digits[i] == u'1');
        }
        return bits;
    }
};

/// `/pattern/im`, with a letter for each option.
template <>
struct Text<QRegularExpression> {
    using Option = QRegularExpression::PatternOption;
    struct Letter {
        QChar letter;
        Option option;
    };
    static constexpr Letter letters[] = {
        { u'i', QRegularExpression::CaseInsensitiveOption },
        { u's', QRegularExpression::DotMatchesEverythingOption },
        { u'm', QRegularExpression::MultilineOption },
        { u'x', QRegularExpression::ExtendedPatternSyntaxOption },
        { u'U', QRegularExpression::InvertedGreedinessOption },
        { u'n', QRegularExpression::DontCaptureOption },
        { u'u', QRegularExpression::UseUnicodePropertiesOption },
    };

    static QString write(const QRegularExpression& expression)
    {
        QString text = u'/' + expression.pattern() + u'/';
        for (const Letter& known : letters) {
            if (expression.patternOptions().testFlag(known.option))
                text += known.letter;
        }
        return text;
    }
    static std::optional<QRegularExpression> parse(const QString& text)
    {
        const qsizetype end = text.lastIndexOf(u'/');
        if (end < 1 || !text.startsWith(u'/'))
            return std::nullopt;
        QRegularExpression::PatternOptions options;
        for (const QChar letter : QStringView(text).mid(end + 1).trimmed()) {
            const auto* const known = std::find_if(std::begin(letters), std::end(letters),
                [letter](const Letter& other) { return other.letter == letter; });
            if (known == std::end(letters))
                return std::nullopt;
            options |= known->option;
        }
        return QRegularExpression(text.mid(1, end - 1), options);
    }
};

template <>
struct Text<QVersionNumber> {
    static QString write(const QVersionNumber& version) { return version.toString(); }
    static std::optional<QVersionNumber> parse(const QString& text)
    {
        qsizetype end = 0;
        const QVersionNumber version = QVersionNumber::fromString(text.trimmed(), &end);
        return end == text.trimmed().size() ? std::optional(version) : std::nullopt;
    }
};

std::vector<TextForm> plainForms()
{
    return {
        makeForm<QString>("SFString", "a text"),
        makeForm<QUrl>("SFUrl", "a URL"),
        makeForm<QChar>("SFCharacter", "one character"),
        makeForm<QByteArray>("SFBytes", "ASCII characters, and \\x with two digits for others"),
        makeForm<QKeySequence>("SFKeys", "keys, such as Ctrl+S"),
        makeForm<QLocale>("SFLocale", "a locale, such as de-DE, or C"),
        makeForm<QDate>("SFDate", "a date, such as 2030-12-31"),
        makeForm<QTime>("SFTimeOfDay", "a time, such as 23:59:59.999"),
        makeForm<QDateTime>(
            "SFDateTime", "a date and a time, such as 2030-12-31T23:59:59.999 Europe/Berlin"),
        makeForm<QUuid>("SFUuid", "a UUID in braces"),
        makeForm<QBitArray>("SFBits", "the digits 0 and 1"),
        makeForm<QRegularExpression>("SFRegularExpression",
            "a pattern between slashes, and letters for options, such as /a.*b/i"),
        makeForm<QVersionNumber>("SFVersion", "numbers with points between them"),
    };
}
