// SPDX-License-Identifier: BSD-3-Clause
#include "KnType.h"

#include <deque>
#include <mutex>
#include <unordered_map>

namespace {

struct Entry {
    KbName name;
    KnType parent;
    KnType::Factory factory = nullptr;
};

/// Types are registered on the user interface thread, but an error handler may ask for one on any.
struct Registry {
    std::mutex mutex;
    std::deque<Entry> entries { Entry {} }; // the bad type is the first; entries never move
    std::unordered_map<const KbString*, int> indices; // by the text of the interned name
};

/// Outlives all static objects.
Registry& registry()
{
    static Registry& instance = *new Registry;
    return instance;
}

const Entry& entryAt(int index) { return registry().entries[static_cast<std::size_t>(index)]; }

} // namespace

KnType KnType::create(const KbName& name, KnType parent, Factory factory)
{
    Registry& types = registry();
    const std::lock_guard lock(types.mutex);
    const auto [place, fresh]
        = types.indices.try_emplace(&name.getString(), static_cast<int>(types.entries.size()));
    if (fresh)
        types.entries.push_back({ name, parent, factory });
    else
        types.entries[static_cast<std::size_t>(place->second)].factory = factory;
    return KnType(place->second);
}

KnType KnType::fromName(const KbName& name)
{
    const std::lock_guard lock(registry().mutex);
    const auto found = registry().indices.find(&name.getString());
    return found == registry().indices.end() ? KnType() : KnType(found->second);
}

std::vector<KnType> KnType::getCreatableTypes(const KnType& ancestor)
{
    std::vector<KnType> types;
    int count = 0;
    {
        const std::lock_guard lock(registry().mutex);
        count = static_cast<int>(registry().entries.size());
    }
    for (int index = 1; index < count; ++index) {
        const KnType type(index);
        if (type.canCreateInstance() && type.isDerivedFrom(ancestor))
            types.push_back(type);
    }
    return types;
}

const KbName& KnType::getName() const
{
    const std::lock_guard lock(registry().mutex);
    return entryAt(m_index).name;
}

KnType KnType::getParent() const
{
    const std::lock_guard lock(registry().mutex);
    return entryAt(m_index).parent;
}

bool KnType::isDerivedFrom(const KnType& ancestor) const
{
    const std::lock_guard lock(registry().mutex);
    for (KnType type = *this;; type = entryAt(type.m_index).parent) {
        if (type == ancestor)
            return !type.isBad() || isBad();
        if (type.isBad())
            return false;
    }
}

bool KnType::canCreateInstance() const
{
    const std::lock_guard lock(registry().mutex);
    return entryAt(m_index).factory != nullptr;
}

KnTypedObject* KnType::createInstance() const
{
    Factory factory = nullptr;
    {
        const std::lock_guard lock(registry().mutex);
        factory = entryAt(m_index).factory;
    }
    return factory ? factory() : nullptr;
}
