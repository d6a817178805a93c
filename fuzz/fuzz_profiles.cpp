// SPDX-License-Identifier: BSD-3-Clause
#include "CrvEditor.h"
#include "CrvProfileReader.h"
#include "CrvProfileResolution.h"
#include "CrvStrings.h"
#include "FuzzTarget.h"
#include "JsonText.h"

#include <QFile>
#include <QTemporaryFile>

#include <optional>
#include <set>

namespace {

using Profiles = CrvProfileReader::Profiles;

void writeEntries(QByteArray& json, const std::vector<CrvProfileEntry>& entries)
{
    json += '[';
    for (const CrvProfileEntry& entry : entries) {
        json += json.endsWith('[') ? "{\"name\": " : ", {\"name\": ";
        appendJsonString(json, toQString(entry.extension));
        json += ", \"controls\": ";
        writeEntries(json, entry.children);
        json += '}';
    }
    json += ']';
}

std::string profilesText(const Profiles& profiles)
{
    QByteArray json = "{\"profiles\": [";
    for (const auto& profile : profiles) {
        json += profile == profiles.front() ? "{\"name\": " : ", {\"name\": ";
        appendJsonString(json, toQString(profile->getName()));
        json += ", \"extensions\": ";
        writeEntries(json, profile->getEntries());
        json += '}';
    }
    json += "]}";
    return json.toStdString();
}

/// Goes by a file, as profiles do. No value for a refused one.
std::optional<Profiles> readProfiles(std::string_view json)
{
    QTemporaryFile file;
    const auto size = static_cast<qint64>(json.size());
    require(file.open() && file.write(json.data(), size) == size && file.flush(),
        "the file of profiles can't be written");
    CrvProfileReader reader;
    Profiles profiles = reader.readFile(file.fileName());
    require(profiles.empty() != reader.errorText().isEmpty(), "profiles and an error, or neither");
    if (profiles.empty())
        return std::nullopt;
    return profiles;
}

template <class Base>
struct Named : Base {
    explicit Named(const char* name) { this->m_name = KbString(name); }
};

/// Finds extensions for the names of a profile, in a time that doesn't explode.
void resolve(const CrvProfile& profile)
{
    Named<CrvExtension> console("Console");
    Named<CrvExtension> dock("Field Editor");
    Named<CrvEditor> editor("SFBool");
    Named<CrvEditor> sameName("SFBool");
    Named<CrvEditor> other("MField");
    const CrvProfileResolution resolution(profile, { &console, &dock, &editor, &sameName, &other });
    for (CrvExtension* const top : resolution.getTopExtensions()) {
        require(resolution.getSetting(top) && (top == &console || top == &dock),
            "an editor stands at the top, or an extension without a setting");
    }
}

} // namespace

/// A file of profiles is refused as a whole, with a reason, or all of it can be told again.
void fuzzInput(std::string_view input)
{
    const std::optional<Profiles> profiles = readProfiles(input);
    if (!profiles)
        return;
    std::set<std::string> names;
    for (const auto& profile : *profiles) {
        const std::string name(profile->getName().toUtf8());
        require(!name.empty() && names.insert(name).second, "a name is missing or is there twice");
        resolve(*profile);
    }
    requireFixedPoint(*profiles, profilesText, readProfiles);
}
