// SPDX-License-Identifier: BSD-3-Clause
#include "CrvJsonReader.h"

#include "CrvInputFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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
        return json ? parse(*std::exchange(json, std::nullopt)) : refuse(QString(), reason);
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
        return refuse(QString(), tr("there is not enough memory to read the file"));
    }
}

bool CrvJsonReader::parse(QByteArray json)
{
    if (QByteArrayView(json).trimmed().isEmpty())
        return refuse(QString(), tr("the file is empty"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        // File, line and column, as a compiler says it.
        m_fileName += QLatin1Char(':') + faultPlace(std::move(json));
        return refuse(QString(), error.errorString());
    }
    json.clear(); // it may be large, and the document has values of its own
    return build(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()));
}

QString CrvJsonReader::memberPath(const QString& path, const QString& member)
{
    return path.isEmpty() ? member : path + QLatin1Char('.') + member;
}

QString CrvJsonReader::elementPath(const QString& path, qsizetype index)
{
    return QStringLiteral("%1[%2]").arg(path).arg(index);
}

bool CrvJsonReader::checkObject(const QJsonValue& value, const QString& path)
{
    return value.isObject() || refuseKind(value, path, tr("an object expected"));
}

bool CrvJsonReader::checkObject(
    const QJsonValue& value, const QString& path, const QStringList& knownMembers)
{
    if (!checkObject(value, path))
        return false;
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!knownMembers.contains(it.key()))
            return refuse(memberPath(path, it.key()), tr("unknown member"));
    }
    return true;
}

bool CrvJsonReader::checkArray(const QJsonValue& value, const QString& path)
{
    return value.isArray() || refuseKind(value, path, tr("an array expected"));
}

bool CrvJsonReader::checkString(const QJsonValue& value, const QString& path)
{
    return value.isString() || refuseKind(value, path, tr("a text in quotes expected"));
}

bool CrvJsonReader::refuseKind(
    const QJsonValue& value, const QString& path, const QString& expected)
{
    return refuse(path, value.isUndefined() ? tr("missing") : expected);
}

bool CrvJsonReader::refuse(const QString& path, const QString& reason)
{
    if (m_error.isEmpty()) {
        m_error = path.isEmpty() ? QStringLiteral("%1: %2").arg(m_fileName, reason)
                                 : QStringLiteral("%1: %2: %3").arg(m_fileName, path, reason);
    }
    return false;
}
