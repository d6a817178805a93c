// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvJsonReader.h"
#include "CrvProfile.h"

#include <QSet>

#include <memory>
#include <vector>

/// Reads profiles from JSON:
///
///     {"profiles": [{"name": "Fields", "extensions": [
///         "Console", {"name": "Field Editor", "controls": ["*"]}]}]}
///
/// An extension is a name, or a name with what it controls. A file with anything else is refused.
class CrvProfileReader : public CrvJsonReader {
    Q_DECLARE_TR_FUNCTIONS(CrvProfileReader)
public:
    using Profiles = std::vector<std::unique_ptr<CrvProfile>>;

    /// At least one profile, or none for a refused file.
    Profiles readFile(const QString& fileName);

private:
    bool build(const CrvJsonValue& root) override;
    std::unique_ptr<CrvProfile> readProfile(const CrvJsonValue& value, const CrvJsonPlace& place);
    std::vector<CrvProfileEntry> readEntries(const CrvJsonValue& list, const CrvJsonPlace& place);
    CrvProfileEntry readEntry(const CrvJsonValue& value, const CrvJsonPlace& place);
    QString readName(const CrvJsonValue& value, const CrvJsonPlace& place);

    Profiles m_profiles;
    QSet<QString> m_names;
};
