// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <memory>
#include <vector>

class CrvProfile;

/// The profiles that serve when no file is given: "Everything", "Fields" without the console, and
/// "Console" alone. The profile selector is part of all of them, so that a person finds the way
/// back.
std::vector<std::unique_ptr<CrvProfile>> builtInProfiles();
