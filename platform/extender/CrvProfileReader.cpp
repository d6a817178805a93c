// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfileReader.h"

#include "CrvProfile.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

namespace {

KbString toKbString(const QString& text) { return KbString::fromUtf16(text.utf16(), text.size()); }

/// Walks the document. The first thing that is wrong ends up in `error`, behind which every
/// further step does nothing.
class Reader {
public:
    QString error;

    std::vector<std::unique_ptr<CrvProfile>> read(const QByteArray& json)
    {
        QJsonParseError parseError;
        const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
        if (parseError.error != QJsonParseError::NoError) {
            const QByteArray before = json.left(parseError.offset);
            error = tr("line %1, column %2: %3")
                        .arg(before.count('\n') + 1)
                        .arg(before.size() - before.lastIndexOf('\n'))
                        .arg(parseError.errorString());
            return {};
        }

        std::vector<std::unique_ptr<CrvProfile>> profiles;
        const QString path = QStringLiteral("$");
        const QJsonValue root
            = document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
        const QJsonObject object = readObject(root, path, { QStringLiteral("profiles") });
        const QString listPath = member(path, QStringLiteral("profiles"));
        const QJsonArray list = readArray(object.value(QStringLiteral("profiles")), listPath);
        if (list.isEmpty())
            refuse(listPath, tr("at least one profile is needed"));
        for (qsizetype i = 0; i < list.size() && error.isEmpty(); ++i)
            profiles.push_back(readProfile(list.at(i), element(listPath, i)));
        if (!error.isEmpty())
            profiles.clear();
        return profiles;
    }

private:
    static QString tr(const char* text)
    {
        return QCoreApplication::translate("CrvProfileReader", text);
    }

    static QString member(const QString& path, const QString& key)
    {
        return path + QLatin1Char('.') + key;
    }

    static QString element(const QString& path, qsizetype index)
    {
        return QStringLiteral("%1[%2]").arg(path).arg(index);
    }

    void refuse(const QString& path, const QString& reason)
    {
        if (error.isEmpty())
            error = path + QStringLiteral(": ") + reason;
    }

    /// A member that nobody reads is refused: it is most likely a misspelt one.
    QJsonObject readObject(const QJsonValue& value, const QString& path, const QStringList& keys)
    {
        if (!value.isObject())
            refuse(path, tr("an object is expected"));
        const QJsonObject object = value.toObject();
        const QStringList present = object.keys();
        for (const QString& key : present) {
            if (!keys.contains(key))
                refuse(member(path, key), tr("unknown member"));
        }
        return object;
    }

    QJsonArray readArray(const QJsonValue& value, const QString& path)
    {
        if (!value.isArray())
            refuse(path, tr("an array is expected"));
        return value.toArray();
    }

    QString readName(const QJsonValue& value, const QString& path)
    {
        const QString name = value.toString();
        if (name.isEmpty())
            refuse(path, tr("a name is expected"));
        return name;
    }

    std::unique_ptr<CrvProfile> readProfile(const QJsonValue& value, const QString& path)
    {
        const QString nameKey = QStringLiteral("name");
        const QString listKey = QStringLiteral("extensions");
        const QJsonObject object = readObject(value, path, { nameKey, listKey });
        const QString name = readName(object.value(nameKey), member(path, nameKey));
        if (m_names.contains(name))
            refuse(
                member(path, nameKey), tr("there are two profiles of the name \"%1\"").arg(name));
        m_names.insert(name);
        return std::make_unique<CrvProfile>(
            toKbString(name), readEntries(object.value(listKey), member(path, listKey)));
    }

    std::vector<CrvProfileEntry> readEntries(const QJsonValue& value, const QString& path)
    {
        const QJsonArray list = readArray(value, path);
        std::vector<CrvProfileEntry> entries;
        for (qsizetype i = 0; i < list.size() && error.isEmpty(); ++i)
            entries.push_back(readEntry(list.at(i), element(path, i)));
        return entries;
    }

    CrvProfileEntry readEntry(const QJsonValue& value, const QString& path)
    {
        if (!value.isObject())
            return { toKbString(readName(value, path)), {} };
        const QString nameKey = QStringLiteral("name");
        const QString listKey = QStringLiteral("controls");
        const QJsonObject object = readObject(value, path, { nameKey, listKey });
        CrvProfileEntry entry;
        entry.extension = toKbString(readName(object.value(nameKey), member(path, nameKey)));
        if (object.contains(listKey))
            entry.children = readEntries(object.value(listKey), member(path, listKey));
        return entry;
    }

    QSet<QString> m_names;
};

} // namespace

std::vector<std::unique_ptr<CrvProfile>> readProfiles(const QByteArray& json, QString* error)
{
    Reader reader;
    auto profiles = reader.read(json);
    if (error)
        *error = reader.error;
    return profiles;
}
