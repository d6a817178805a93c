// SPDX-License-Identifier: BSD-3-Clause
#include "KbName.h"

#include <mutex>
#include <unordered_map>

namespace {

/// Interns a text. The table lives as long as the process, so that names may be used while static
/// objects are destroyed.
const KbString* intern(std::string_view utf8)
{
    static std::mutex& mutex = *new std::mutex;
    static auto& table = *new std::unordered_map<std::string_view, const KbString*>;
    const std::lock_guard lock(mutex);
    const auto found = table.find(utf8);
    if (found != table.end())
        return found->second;
    const auto* text = new KbString(utf8); // owned by the table
    table.emplace(text->toUtf8(), text);
    return text;
}

} // namespace

KbName::KbName()
{
    static const KbString* const empty = intern({});
    m_text = empty;
}

KbName::KbName(const char* utf8)
    : m_text(intern(utf8 ? std::string_view(utf8) : std::string_view()))
{
}

KbName::KbName(const KbString& text)
    : m_text(intern(text.toUtf8()))
{
}
