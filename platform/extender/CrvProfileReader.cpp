// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfileReader.h"

#include "CrvStrings.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <utility>

namespace {

namespace Key {
constexpr QLatin1String profiles("profiles");
constexpr QLatin1String name("name");
constexpr QLatin1String extensions("extensions");
constexpr QLatin1String controls("controls");
} // namespace Key

} // namespace

CrvProfileReader::Profiles CrvProfileReader::readFile(const QString& fileName)
{
    m_profiles.clear();
    m_names.clear();
    Profiles profiles;
    if (read(fileName))
        profiles.swap(m_profiles);
    return profiles;
}

// A part that was refused is left out here: the whole file is, in the end.
bool CrvProfileReader::build(const QJsonValue& root)
{
    if (!checkObject(root, QString(), { Key::profiles }))
        return false;
    const QJsonValue value = root.toObject().value(Key::profiles);
    if (!checkArray(value, Key::profiles))
        return false;
    const QJsonArray list = value.toArray();
    if (list.isEmpty())
        return refuse(Key::profiles, tr("at least one profile is needed"));
    for (qsizetype i = 0; i < list.size() && !isRefused(); ++i)
        m_profiles.push_back(readProfile(list.at(i), elementPath(Key::profiles, i)));
    return !isRefused();
}

std::unique_ptr<CrvProfile> CrvProfileReader::readProfile(
    const QJsonValue& value, const QString& path)
{
    if (!checkObject(value, path, { Key::name, Key::extensions }))
        return nullptr;
    const QJsonObject object = value.toObject();
    const QString namePath = memberPath(path, Key::name);
    const QString name = readName(object.value(Key::name), namePath);
    if (m_names.contains(name))
        refuse(namePath, tr("there are two profiles of the name \"%1\"").arg(name));
    m_names.insert(name);
    const QJsonValue extensions = object.value(Key::extensions);
    const QString listPath = memberPath(path, Key::extensions);
    if (!checkArray(extensions, listPath))
        return nullptr;
    return std::make_unique<CrvProfile>(
        toKbString(name), readEntries(extensions.toArray(), listPath));
}

std::vector<CrvProfileEntry> CrvProfileReader::readEntries(
    const QJsonArray& list, const QString& path)
{
    std::vector<CrvProfileEntry> entries;
    for (qsizetype i = 0; i < list.size() && !isRefused(); ++i)
        entries.push_back(readEntry(list.at(i), elementPath(path, i)));
    return entries;
}

CrvProfileEntry CrvProfileReader::readEntry(const QJsonValue& value, const QString& path)
{
    if (!value.isObject())
        return { toKbString(readName(value, path)), {} };
    CrvProfileEntry entry;
    if (!checkObject(value, path, { Key::name, Key::controls }))
        return entry;
    const QJsonObject object = value.toObject();
    entry.extension = toKbString(readName(object.value(Key::name), memberPath(path, Key::name)));
    const QJsonValue controls = object.value(Key::controls);
    const QString listPath = memberPath(path, Key::controls);
    if (!controls.isUndefined() && checkArray(controls, listPath))
        entry.children = readEntries(controls.toArray(), listPath);
    return entry;
}

QString CrvProfileReader::readName(const QJsonValue& value, const QString& path)
{
    const QString name = value.toString();
    if (name.isEmpty())
        refuse(path, tr("a name is expected"));
    return name;
}
