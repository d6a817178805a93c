// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnType.h"

#include <map>

class CrvEditor;
class CrvExtension;
class CrvProfileSetting;

/// The editor for an object of type `objectType` among the extensions that a profile places under
/// a dock; entries that are no editors don't count. The most derived handled type wins; of two
/// equal ones the later in the map, of two unrelated ones the earlier. Null if none handles the
/// type.
CrvEditor* selectEditor(
    const std::map<CrvExtension*, CrvProfileSetting*>& extensions, const KnType& objectType);
