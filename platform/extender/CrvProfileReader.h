// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <memory>
#include <vector>

class CrvProfile;
class QByteArray;

/// Reads profiles from JSON:
///
///     {"profiles": [{"name": "Fields", "extensions": [
///         "Console", {"name": "Field Editor", "controls": ["*"]}]}]}
///
/// An extension is a name, or a name with what it controls. Anything else is refused: the answer is
/// empty, and `error`, which may be null, says where (line and column, or JSON path) and why.
std::vector<std::unique_ptr<CrvProfile>> readProfiles(const QByteArray& json, QString* error);
