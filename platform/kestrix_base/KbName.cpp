// SPDX-License-Identifier: BSD-3-Clause
#include "KbName.h"

#include <deque>
#include <functional>
#include <mutex>
#include <vector>

namespace {

/// All names, found by their text. Looked up for each node of a scene, so a search goes to one
/// place in memory, and to a second one for the text that is found.
class NameTable {
public:
    const KbString* intern(std::string_view utf8)
    {
        const std::size_t hash = std::hash<std::string_view>()(utf8);
        const std::lock_guard lock(m_mutex);
        Slot& slot = find(hash, utf8);
        if (slot.text)
            return slot.text;
        const KbString* const text = &m_texts.emplace_back(utf8);
        slot = { hash, text };
        if (2 * m_texts.size() > m_slots.size())
            grow();
        return text;
    }

private:
    struct Slot {
        std::size_t hash = 0;
        const KbString* text = nullptr; // one of the texts; null for a free slot
    };

    /// The slot of the text, or a free one for it.
    Slot& find(std::size_t hash, std::string_view utf8)
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t i = hash & mask;
        while (m_slots[i].text && (m_slots[i].hash != hash || m_slots[i].text->toUtf8() != utf8))
            i = (i + 1) & mask;
        return m_slots[i];
    }
    void grow()
    {
        std::vector<Slot> former(2 * m_slots.size());
        former.swap(m_slots);
        const std::size_t mask = m_slots.size() - 1;
        for (const Slot& slot : former) {
            std::size_t i = slot.hash & mask;
            while (slot.text && m_slots[i].text)
                i = (i + 1) & mask;
            if (slot.text)
                m_slots[i] = slot;
        }
    }

    std::mutex m_mutex;
    std::deque<KbString> m_texts; // never move
    std::vector<Slot> m_slots = std::vector<Slot>(1024); // a power of two, at most half of it used
};

/// Interns a text. The table lives as long as the process, so that names may be used while static
/// objects are destroyed.
const KbString* intern(std::string_view utf8)
{
    static NameTable& table = *new NameTable;
    return table.intern(utf8);
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
