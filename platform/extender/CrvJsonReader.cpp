// SPDX-License-Identifier: BSD-3-Clause
#include "CrvJsonReader.h"

#include "CrvInputFile.h"

#include <QJsonDocument>

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

/// Which byte of a text that isn't JSON is at fault; the size of the text if it ends too early.
/// Qt's offset lies at that byte, or behind it and the blanks that follow, depending on the
/// mistake, and at the end of the text the two look the same. So the text is parsed again with one
/// byte more, which stands in no JSON. The text keeps that byte.
qsizetype faultOffset(QByteArray& text)
{
    const qsizetype end = text.size();
    text.append('\0');
    QJsonParseError error;
    QJsonDocument::fromJson(text, &error);
    switch (error.error) {
    case QJsonParseError::GarbageAtEnd:
    case QJsonParseError::IllegalEscapeSequence:
    case QJsonParseError::IllegalNumber:
    case QJsonParseError::IllegalUTF8String:
        return std::min<qsizetype>(error.offset, end);
    default:
        break;
    }
    if (error.offset > end)
        return end;
    qsizetype fault = error.offset - 1;
    while (fault > 0 && isBlank(text.at(fault)))
        --fault;
    return std::max<qsizetype>(fault, 0);
}

QString faultPlace(QByteArray text)
{
    const qsizetype offset = faultOffset(text);
    const QByteArrayView before = QByteArrayView(text).first(offset);
    const qsizetype column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("%1:%2").arg(before.count('\n') + 1).arg(column);
}

} // namespace

bool CrvJsonReader::read(const QString& fileName)
{
    return guarded(fileName, [&] {
        QString reason;
        std::optional<QByteArray> json = readInputFile(fileName, maxFileSize, &reason);
        return json ? parse(*std::exchange(json, std::nullopt)) : refuse({}, reason);
    });
}

bool CrvJsonReader::readContent(QByteArray json, const QString& fileName)
{
    return guarded(fileName, [&] { return parse(std::move(json)); });
}

template <class Step>
bool CrvJsonReader::guarded(const QString& fileName, const Step& step)
{
    m_fileName = fileName;
    m_error.clear();
    try {
        return step();
    } catch (const std::bad_alloc&) {
        // What was built so far is gone by now, so that there is memory for this.
        return refuse({}, tr("there is not enough memory to read the file"));
    }
}

bool CrvJsonReader::parse(QByteArray json)
{
    if (QByteArrayView(json).trimmed().isEmpty())
        return refuse({}, tr("the file is empty"));
    CrvJsonTree tree;
    QJsonParseError error;
    if (!tree.parse(json, &error)) {
        // File, line and column, as a compiler says it.
        m_fileName += QLatin1Char(':') + faultPlace(std::move(json));
        return refuse({}, error.errorString());
    }
    json.clear(); // it may be large, and the tree has values of its own
    return build(tree.root());
}

bool CrvJsonReader::checkObject(const CrvJsonValue& value, const CrvJsonPlace& place)
{
    return value.isObject() || refuseKind(value, place, tr("an object expected"));
}

bool CrvJsonReader::checkObject(const CrvJsonValue& value, const CrvJsonPlace& place,
    std::initializer_list<QLatin1String> knownMembers)
{
    if (!checkObject(value, place))
        return false;
    const auto end = value.end();
    for (auto it = value.begin(); it != end; ++it) {
        const bool isKnown = std::any_of(knownMembers.begin(), knownMembers.end(),
            [&it](QLatin1String member) { return it.name().equals(member); });
        if (!isKnown)
            return refuse(place.member(it.name()), tr("unknown member"));
    }
    return true;
}

bool CrvJsonReader::checkArray(const CrvJsonValue& value, const CrvJsonPlace& place)
{
    return value.isArray() || refuseKind(value, place, tr("an array expected"));
}

bool CrvJsonReader::checkString(const CrvJsonValue& value, const CrvJsonPlace& place)
{
    return value.isString() || refuseKind(value, place, tr("a text in quotes expected"));
}

bool CrvJsonReader::refuseKind(
    const CrvJsonValue& value, const CrvJsonPlace& place, const QString& expected)
{
    return refuse(place, value.isUndefined() ? tr("missing") : expected);
}

bool CrvJsonReader::refuse(const CrvJsonPlace& place, const QString& reason)
{
    if (m_error.isEmpty()) {
        const QString path = place.text();
        m_error = path.isEmpty() ? QStringLiteral("%1: %2").arg(m_fileName, reason)
                                 : QStringLiteral("%1: %2: %3").arg(m_fileName, path, reason);
    }
    return false;
}
