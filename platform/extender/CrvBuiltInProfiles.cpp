// SPDX-License-Identifier: BSD-3-Clause
#include "CrvBuiltInProfiles.h"

#include "CrvProfile.h"

std::vector<std::unique_ptr<CrvProfile>> builtInProfiles()
{
    const CrvProfileEntry selector { "Profile Selector", {} };
    const CrvProfileEntry console { "Console", {} };
    const CrvProfileEntry all { "*", {} };
    const CrvProfileEntry fieldEditor { "Field Editor", { all } };
    const CrvProfileEntry nodeEditor { "Node Editor", { all } };
    using Entries = std::vector<CrvProfileEntry>;

    std::vector<std::unique_ptr<CrvProfile>> profiles;
    // The last entry is for what further plug-ins bring.
    profiles.push_back(std::make_unique<CrvProfile>(
        "Everything", Entries { selector, console, fieldEditor, nodeEditor, all }));
    profiles.push_back(
        std::make_unique<CrvProfile>("Fields", Entries { selector, fieldEditor, nodeEditor }));
    profiles.push_back(std::make_unique<CrvProfile>("Console", Entries { selector, console }));
    return profiles;
}
