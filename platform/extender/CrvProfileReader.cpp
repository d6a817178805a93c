// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfileReader.h"

#include "CrvStrings.h"

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
bool CrvProfileReader::build(const CrvJsonValue& root)
{
    const CrvJsonPlace whole;
    if (!checkObject(root, whole, { Key::profiles }))
        return false;
    const CrvJsonValue list = root.member(Key::profiles);
    const CrvJsonPlace place = whole.member(Key::profiles);
    if (!checkArray(list, place))
        return false;
    if (list.count() == 0)
        return refuse(place, tr("at least one profile is needed"));
    int index = 0;
    for (const CrvJsonValue profile : list) {
        if (!isRefused())
            m_profiles.push_back(readProfile(profile, place.element(index++)));
    }
    return !isRefused();
}

std::unique_ptr<CrvProfile> CrvProfileReader::readProfile(
    const CrvJsonValue& value, const CrvJsonPlace& place)
{
    if (!checkObject(value, place, { Key::name, Key::extensions }))
        return nullptr;
    const CrvJsonPlace namePlace = place.member(Key::name);
    const QString name = readName(value.member(Key::name), namePlace);
    if (m_names.contains(name))
        refuse(namePlace, tr("there are two profiles of the name \"%1\"").arg(name));
    m_names.insert(name);
    const CrvJsonValue extensions = value.member(Key::extensions);
    const CrvJsonPlace listPlace = place.member(Key::extensions);
    if (!checkArray(extensions, listPlace))
        return nullptr;
    return std::make_unique<CrvProfile>(toKbString(name), readEntries(extensions, listPlace));
}

std::vector<CrvProfileEntry> CrvProfileReader::readEntries(
    const CrvJsonValue& list, const CrvJsonPlace& place)
{
    std::vector<CrvProfileEntry> entries;
    int index = 0;
    for (const CrvJsonValue entry : list) {
        if (!isRefused())
            entries.push_back(readEntry(entry, place.element(index++)));
    }
    return entries;
}

CrvProfileEntry CrvProfileReader::readEntry(const CrvJsonValue& value, const CrvJsonPlace& place)
{
    if (!value.isObject())
        return { toKbString(readName(value, place)), {} };
    CrvProfileEntry entry;
    if (!checkObject(value, place, { Key::name, Key::controls }))
        return entry;
    entry.extension = toKbString(readName(value.member(Key::name), place.member(Key::name)));
    const CrvJsonValue controls = value.member(Key::controls);
    const CrvJsonPlace listPlace = place.member(Key::controls);
    if (!controls.isUndefined() && checkArray(controls, listPlace))
        entry.children = readEntries(controls, listPlace);
    return entry;
}

QString CrvProfileReader::readName(const CrvJsonValue& value, const CrvJsonPlace& place)
{
    const QString name = value.toQString();
    if (name.isEmpty())
        refuse(place, tr("a name is expected"));
    return name;
}
