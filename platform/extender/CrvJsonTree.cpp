// SPDX-License-Identifier: BSD-3-Clause
#include "CrvJsonTree.h"

#include "CrvStrings.h"

#include <QByteArrayView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <rapidjson/reader.h>

#include <cstddef>
#include <string>

namespace {

/// Of objects and arrays in each other, as QJsonDocument takes them.
constexpr std::size_t maxDepth = 1024;

/// Gives RapidJSON a text, of which it decodes the strings as if it did so in place. They go behind
/// each other elsewhere, so that the text stays what it is.
class DecodingStream {
public:
    using Ch = char; // as RapidJSON calls it

    /// There is room for as many bytes as the text has.
    DecodingStream(QByteArrayView text, char* strings)
        : m_first(text.begin())
        , m_next(text.begin())
        , m_end(text.end())
        , m_put(strings)
    {
    }

    // NOLINTBEGIN(readability-identifier-naming): RapidJSON calls them by these names
    char Peek() const { return m_next == m_end ? '\0' : *m_next; }
    char Take() { return *m_next++; } // RapidJSON peeks first, so never past the end
    std::size_t Tell() const { return static_cast<std::size_t>(m_next - m_first); }
    char* PutBegin() { return m_put; }
    void Put(char c) { *m_put++ = c; }
    std::size_t PutEnd(const char* begin) { return static_cast<std::size_t>(m_put - begin); }
    // NOLINTEND(readability-identifier-naming)

private:
    const char* m_first;
    const char* m_next;
    const char* m_end;
    char* m_put;
};

} // namespace

template <>
struct rapidjson::StreamTraits<DecodingStream> {
    // NOLINTNEXTLINE(readability-identifier-naming): as above
    enum { copyOptimization = 1 };
};

/// Notes in a tree what a parser comes across. RapidJSON calls it as its handler.
class CrvJsonTree::Builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder> {
public:
    explicit Builder(CrvJsonTree& tree)
        : m_tree(tree)
    {
        m_tree.m_marks.clear();
        m_tree.m_numbers.clear();
    }

    bool Null() { return add(Kind::Null); }
    bool Bool(bool value) { return add(value ? Kind::True : Kind::False); }
    bool Int(int number) { return Double(number); }
    bool Uint(unsigned number) { return Double(number); }
    bool Int64(std::int64_t number) { return Double(static_cast<double>(number)); }
    bool Uint64(std::uint64_t number) { return Double(static_cast<double>(number)); }
    bool Double(double number)
    {
        m_tree.m_numbers.push_back(number);
        return add(Kind::Number, m_tree.m_numbers.size() - 1);
    }
    /// One that is among the tree's strings.
    bool String(const char* string, std::size_t size, bool)
    {
        return add(
            Kind::String, static_cast<std::size_t>(string - m_tree.m_strings.constData()), size);
    }
    bool StartObject() { return open(Kind::Object); }
    bool EndObject(std::size_t members) { return close(members); }
    bool StartArray() { return open(Kind::Array); }
    bool EndArray(std::size_t elements) { return close(elements); }

    /// Notes a value that Qt has parsed, with all that is in it.
    void copy(const QJsonValue& value)
    {
        switch (value.type()) {
        case QJsonValue::Object: {
            const QJsonObject object = value.toObject();
            StartObject();
            for (auto it = object.begin(); it != object.end(); ++it) {
                copy(it.key());
                copy(it.value());
            }
            EndObject(static_cast<std::size_t>(object.size()));
            break;
        }
        case QJsonValue::Array: {
            const QJsonArray array = value.toArray();
            StartArray();
            for (const auto& element : array)
                copy(element);
            EndArray(static_cast<std::size_t>(array.size()));
            break;
        }
        case QJsonValue::String: {
            const std::string utf8 = toKbString(value.toString()).toUtf8();
            const auto start = static_cast<std::size_t>(m_tree.m_strings.size());
            m_tree.m_strings.append(utf8.data(), static_cast<qsizetype>(utf8.size()));
            add(Kind::String, start, utf8.size());
            break;
        }
        case QJsonValue::Double:
            Double(value.toDouble());
            break;
        case QJsonValue::Bool:
            Bool(value.toBool());
            break;
        default:
            Null();
        }
    }

private:
    bool add(Kind kind, std::size_t start = 0, std::size_t size = 0)
    {
        const auto next = static_cast<std::uint32_t>(m_tree.m_marks.size() + 1);
        m_tree.m_marks.push_back(
            { static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(size), next, kind });
        return true;
    }
    bool open(Kind kind)
    {
        m_open.push_back(m_tree.m_marks.size());
        return add(kind) && m_open.size() <= maxDepth;
    }
    bool close(std::size_t count)
    {
        Mark& mark = m_tree.m_marks[m_open.back()];
        mark.size = static_cast<std::uint32_t>(count);
        mark.next = static_cast<std::uint32_t>(m_tree.m_marks.size());
        m_open.pop_back();
        return true;
    }

    CrvJsonTree& m_tree;
    std::vector<std::size_t> m_open; // marks of objects and arrays, the innermost one at the end
};

// RapidJSON is the stricter one: it refuses half of a surrogate pair, which a saved scene may have
// in a text, and control characters in strings. Such a file is rare enough to be parsed twice.
bool CrvJsonTree::parse(const QByteArray& json, QJsonParseError* error)
{
    return parseFast(json) || parseWithQt(json, error);
}

bool CrvJsonTree::parseFast(const QByteArray& json)
{
    QByteArrayView text(json);
    constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
    if (text.startsWith(byteOrderMark))
        text = text.sliced(byteOrderMark.size());
    if (!text.isValidUtf8())
        return false;
    // Enough marks for most scenes; what isn't used takes no memory.
    m_marks.reserve(static_cast<std::size_t>(text.size()) / sizeof(Mark));
    m_strings = QByteArray(text.size(), Qt::Uninitialized);
    DecodingStream stream(text, m_strings.data());
    Builder builder(*this);

    // RapidJSON doesn't check whether it gets memory, but in place it needs none. It recurses, no
    // deeper than the builder lets it.
    rapidjson::Reader reader;
    const bool isParsed = !reader.Parse<rapidjson::kParseInsituFlag>(stream, builder).IsError();
    // To RapidJSON a zero is the end of the text.
    return isParsed && stream.Tell() == static_cast<std::size_t>(text.size())
        && (root().isObject() || root().isArray());
}

bool CrvJsonTree::parseWithQt(const QByteArray& json, QJsonParseError* error)
{
    const QJsonDocument document = QJsonDocument::fromJson(json, error);
    if (document.isNull())
        return false;
    m_strings.clear();
    Builder(*this).copy(
        document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array()));
    return true;
}

CrvJsonValue CrvJsonTree::root() const { return { this, 0 }; }

QString CrvJsonValue::toQString() const { return ::toQString(toKbString()); }

bool CrvJsonValue::equals(QLatin1String text) const
{
    return isString()
        && string() == std::string_view(text.data(), static_cast<std::size_t>(text.size()));
}

CrvJsonValue CrvJsonValue::member(QLatin1String name) const
{
    CrvJsonValue found;
    if (!isObject())
        return found;
    const Iterator last = end();
    for (Iterator it = begin(); it != last; ++it) {
        if (it.name().equals(name))
            found = it.value();
    }
    return found;
}

CrvJsonValue::Iterator CrvJsonValue::begin() const
{
    Iterator it;
    it.m_tree = m_tree;
    if (!isObject() && !isArray())
        return it;
    it.m_index = m_index + 1;
    it.m_named = isObject();
    return it;
}

CrvJsonValue::Iterator CrvJsonValue::end() const
{
    Iterator it;
    if (isObject() || isArray())
        it.m_index = mark().next;
    return it;
}

CrvJsonValue::Iterator& CrvJsonValue::Iterator::operator++()
{
    m_index = m_tree->m_marks[m_index + (m_named ? 1 : 0)].next;
    return *this;
}
