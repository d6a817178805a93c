// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The user's settings, read from environment variables.
class KnPreferences {
public:
    /// The variable of that name: `0`, `off`, `no` and `false` in any case are false, anything else
    /// that isn't empty is true; unset or empty gives `defaultValue != 0`.
    static bool getBool(const char* name, int defaultValue);
};
