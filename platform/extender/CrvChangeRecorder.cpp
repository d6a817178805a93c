// SPDX-License-Identifier: BSD-3-Clause
#include "CrvChangeRecorder.h"

#include "KnMField.h"

#include <algorithm>
#include <utility>

namespace {

// More than a person edits at once. What is beyond them counts as changed.
constexpr std::size_t maxFields = 64;
constexpr int maxRows = 4096;
constexpr std::ptrdiff_t maxPlaces = 64;

} // namespace

bool CrvChanges::areIdle() const
{
    return !hasOthers && !records.empty()
        && std::none_of(records.begin(), records.end(),
            [](const CrvFieldRecord& record) { return record.isChanged; });
}

const CrvFieldRecord* CrvChanges::find(const KnField* field) const
{
    const auto found = std::find_if(records.begin(), records.end(),
        [field](const CrvFieldRecord& record) { return record.field == field; });
    return found == records.end() ? nullptr : &*found;
}

void CrvChanges::keepOnly(const KnField* field)
{
    const auto erased = std::erase_if(
        records, [field](const CrvFieldRecord& record) { return record.field != field; });
    hasOthers = hasOthers || erased > 0;
}

void CrvChanges::append(CrvChanges later)
{
    hasOthers = hasOthers || later.hasOthers;
    for (CrvFieldRecord& record : later.records) {
        const auto known = std::find_if(records.begin(), records.end(),
            [&record](const CrvFieldRecord& other) { return other.field == record.field; });
        if (known == records.end())
            records.push_back(std::move(record));
        else
            known->append(std::move(record));
    }
}

void CrvChangeRecorder::start(const KnFieldContainer* node)
{
    m_node = node;
    KnFieldRecorder::start();
}

CrvChanges CrvChangeRecorder::take()
{
    CrvChanges taken = std::exchange(m_changes, CrvChanges());
    for (CrvFieldRecord& record : taken.records)
        record.look();
    return taken;
}

CrvFieldRecord* CrvChangeRecorder::recordOf(const KnField& field)
{
    for (CrvFieldRecord& record : m_changes.records) {
        if (record.field == &field)
            return &record;
    }
    return nullptr;
}

void CrvChangeRecorder::aboutToWrite(KnField& field)
{
    if (CrvFieldRecord* const record = recordOf(field)) {
        record->look();
        return;
    }
    const KnFieldContainer* const node = field.getContainer();
    // A node that is being made isn't in the graph yet, and its record would destroy it.
    if (node && node->getReferenceCount() == 0)
        return;
    if (node && (!m_node || node == m_node) && m_changes.records.size() < maxFields)
        m_changes.records.emplace_back(field);
    else
        m_changes.hasOthers = true;
}

bool CrvChangeRecorder::keepsRows(const KnMField& field, int num, Writing writing) const
{
    const CrvFieldRecord* const record = num <= maxRows ? m_changes.find(&field) : nullptr;
    if (!record)
        return false;
    const bool isText = writing == Writing::Text;
    return record->places(isText) < maxPlaces && (isText || !record->hasUnknownRows);
}

void CrvChangeRecorder::rowsReplaced(KnMField& field, int start, int removed, int inserted,
    std::unique_ptr<KnRows> former, Writing writing)
{
    CrvFieldRecord* const record = recordOf(field);
    if (!record)
        return;
    if (removed == inserted)
        record->addRows(start, std::move(former), writing == Writing::Text);
    else
        record->addSplice({ start, removed, inserted });
}
