// SPDX-License-Identifier: BSD-3-Clause
#include "KnPreferences.h"

#include <algorithm>
#include <cstdlib>
#include <string>

bool KnPreferences::getBool(const char* name, int defaultValue)
{
    const char* variable = std::getenv(name);
    if (!variable || !*variable)
        return defaultValue != 0;
    std::string value(variable);
    // ASCII only, whatever the locale.
    for (char& c : value)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    const auto falseWords = { "0", "off", "no", "false" };
    return std::find(falseWords.begin(), falseWords.end(), value) == falseWords.end();
}
