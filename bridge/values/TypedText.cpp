// SPDX-License-Identifier: BSD-3-Clause
#include "TypedText.h"

#include "TextForm.h"

#include <QLocale>
#include <QStringList>

namespace {

constexpr int maxDepth = 64; // of lists and maps in each other, for a text that is typed

QString quoted(const QString& text)
{
    QString result(u'"');
    for (const QChar character : text) {
        if (character == u'"' || character == u'\\')
            result += u'\\';
        if (character == u'\n')
            result += QStringLiteral("\\n");
        else
            result += character;
    }
    return result + u'"';
}

template <class Map>
QString mapText(const Map& map)
{
    QStringList entries;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        entries += quoted(entry.key()) + QStringLiteral(": ") + typedText(entry.value());
    return entries.isEmpty() ? QStringLiteral("{}")
                             : QStringLiteral("{ %1 }").arg(entries.join(QStringLiteral(", ")));
}

template <class List>
QString listText(const List& list)
{
    QStringList entries;
    for (const auto& value : list)
        entries += typedText(QVariant(value));
    return entries.isEmpty() ? QStringLiteral("[]")
                             : QStringLiteral("[ %1 ]").arg(entries.join(QStringLiteral(", ")));
}

/// With a point or an exponent, so that it isn't taken for a whole number.
QString doubleText(double number)
{
    const QString text = QString::number(number, 'g', QLocale::FloatingPointShortest);
    for (const QChar character : text) {
        if (character == u'.' || character.isLetter())
            return text;
    }
    return text + QStringLiteral(".0");
}

class Reader {
public:
    explicit Reader(const QString& text)
        : m_text(text)
    {
    }

    /// None for a bad text.
    std::optional<QVariant> readAll()
    {
        std::optional<QVariant> value = read();
        return value && next().isNull() ? value : std::nullopt;
    }

private:
    std::optional<QVariant> read();
    std::optional<QVariant> readNamed(const QString& name);
    std::optional<QString> readString();
    template <class List>
    std::optional<QVariant> readList();
    template <class Map>
    std::optional<QVariant> readMap();

    /// What stands next, behind blanks; null at the end.
    QChar next()
    {
        while (m_place < m_text.size() && m_text[m_place].isSpace())
            ++m_place;
        return m_place < m_text.size() ? m_text[m_place] : QChar();
    }
    bool take(QChar character)
    {
        if (next() != character)
            return false;
        ++m_place;
        return true;
    }

    const QString m_text;
    qsizetype m_place = 0;
    int m_depth = 0;
};

std::optional<QString> Reader::readString()
{
    if (!take(u'"'))
        return std::nullopt;
    QString text;
    for (; m_place < m_text.size(); ++m_place) {
        QChar letter = m_text[m_place];
        if (letter == u'"') {
            ++m_place;
            return text;
        }
        if (letter == u'\\') {
            if (++m_place == m_text.size())
                break;
            letter = m_text[m_place] == u'n' ? QChar(u'\n') : m_text[m_place];
        }
        text += letter;
    }
    return std::nullopt;
}

template <class List>
std::optional<QVariant> Reader::readList()
{
    using Item = typename List::value_type;
    List list;
    if (!take(u'['))
        return std::nullopt;
    if (take(u']'))
        return QVariant(list);
    do {
        const std::optional<QVariant> value = read();
        if (!value)
            return std::nullopt;
        if constexpr (std::is_same_v<Item, QVariant>)
            list.append(*value);
        else if (value->metaType() == QMetaType::fromType<Item>())
            list.append(value->value<Item>());
        else
            return std::nullopt;
    } while (take(u','));
    return take(u']') ? std::optional(QVariant(list)) : std::nullopt;
}

template <class Map>
std::optional<QVariant> Reader::readMap()
{
    Map map;
    if (!take(u'{'))
        return std::nullopt;
    if (take(u'}'))
        return QVariant(map);
    do {
        next();
        const std::optional<QString> key = readString();
        const std::optional<QVariant> value = key && take(u':') ? read() : std::nullopt;
        if (!value)
            return std::nullopt;
        map.insert(*key, *value);
    } while (take(u','));
    return take(u'}') ? std::optional(QVariant(map)) : std::nullopt;
}

std::optional<QVariant> Reader::readNamed(const QString& name)
{
    if (name == QLatin1String("QVariantHash"))
        return readMap<QVariantHash>();
    if (name == QLatin1String("QStringList"))
        return readList<QStringList>();
    const QMetaType type = QMetaType::fromName(name.toLatin1());
    const std::optional<QString> text = readString();
    const TextForm& form = textFormOf(type);
    if (!type.isValid() || !text || !form.read)
        return std::nullopt;
    return form.read(*text, QVariant(type));
}

std::optional<QVariant> Reader::read()
{
    const QChar first = next();
    if (first == u'"') {
        const std::optional<QString> text = readString();
        return text ? std::optional(QVariant(*text)) : std::nullopt;
    }
    if (first == u'[' || first == u'{') {
        if (++m_depth > maxDepth)
            return std::nullopt;
        std::optional<QVariant> value
            = first == u'[' ? readList<QVariantList>() : readMap<QVariantMap>();
        --m_depth;
        return value;
    }
    // A number, or a name, which may hold blanks: "unsigned char".
    const qsizetype start = m_place;
    while (m_place < m_text.size() && !QStringLiteral("\"[]{},").contains(m_text[m_place]))
        ++m_place;
    const QString word = m_text.mid(start, m_place - start).trimmed();
    if (word == QLatin1String("null"))
        return QVariant();
    if (word == QLatin1String("true") || word == QLatin1String("false"))
        return QVariant(word == QLatin1String("true"));
    bool ok = false;
    const int whole = word.toInt(&ok);
    if (ok)
        return QVariant(whole);
    const double number = word.toDouble(&ok);
    return ok ? QVariant(number) : readNamed(word);
}

} // namespace

QString typedText(const QVariant& value)
{
    switch (value.metaType().id()) {
    case QMetaType::UnknownType:
        return QStringLiteral("null");
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Int:
        return QString::number(value.toInt());
    case QMetaType::Double:
        return doubleText(value.toDouble());
    case QMetaType::QString:
        return quoted(value.toString());
    case QMetaType::QVariantList:
        return listText(value.toList());
    case QMetaType::QVariantMap:
        return mapText(value.toMap());
    case QMetaType::QVariantHash:
        return QStringLiteral("QVariantHash ") + mapText(value.toHash());
    case QMetaType::QStringList:
        return QStringLiteral("QStringList ") + listText(value.toStringList());
    default:
        break;
    }
    const TextForm& form = textFormOf(value.metaType());
    const QString text = form.write(value);
    return QLatin1String(value.typeName()) + u' ' + (form.read ? quoted(text) : u'(' + text + u')');
}

std::optional<QVariant> typedValue(const QString& text) { return Reader(text).readAll(); }
