// SPDX-License-Identifier: BSD-3-Clause
#include "CrvFieldRecord.h"

#include "KnMField.h"
#include "KnSFImage.h"

#include <algorithm>
#include <utility>

namespace {

// The program may write a picture 60 times a second while somebody clicks.
constexpr int maxImageBytes = 4096;

bool isLargeImage(const KnField& field)
{
    const auto* const image = dynamic_cast<const KnSFImage*>(&field);
    if (!image)
        return false;
    KbVec2s size;
    int components = 0;
    image->getValue(size, components);
    return size[0] * size[1] * components > maxImageBytes;
}

} // namespace

CrvFieldRecord::CrvFieldRecord(KnField& writtenField)
    : node(writtenField.getContainer())
    , field(&writtenField)
    , ignoredBefore(writtenField.isIgnored())
    , isLarge(isLargeImage(writtenField))
    , m_lastIgnored(ignoredBefore)
{
    if (array() || isLarge)
        return;
    field->get(before);
    m_lastText = before;
}

KnMField* CrvFieldRecord::array() const
{
    return field->isOfType(KnMField::getClassTypeId()) ? static_cast<KnMField*>(field) : nullptr;
}

void CrvFieldRecord::look()
{
    isChanged = isChanged || isLarge || field->isIgnored() != m_lastIgnored;
    m_lastIgnored = field->isIgnored();
    if (array() || isLarge)
        return;
    KbString text;
    field->get(text);
    isChanged = isChanged || !(text == m_lastText);
    m_lastText = std::move(text);
}

void CrvFieldRecord::addRows(int start, std::shared_ptr<const KnRows> formerRows, bool asText)
{
    if (!formerRows) {
        isChanged = hasUnknownRows = true;
        return;
    }
    isChanged = isChanged || !array()->holdsRows(start, *formerRows);
    const auto isSame = [&](const Rows& other) {
        return other.start == start && other.asText == asText
            && other.before->getNum() == formerRows->getNum();
    };
    if (std::none_of(rows.begin(), rows.end(), isSame))
        rows.push_back({ start, std::move(formerRows), asText });
}

std::ptrdiff_t CrvFieldRecord::places(bool asText) const
{
    return std::count_if(
        rows.begin(), rows.end(), [asText](const Rows& place) { return place.asText == asText; });
}

void CrvFieldRecord::addSplice(const Splice& splice)
{
    isChanged = true;
    // What stood behind has moved; what stood there is gone.
    std::erase_if(rows, [&splice](const Rows& place) {
        return place.start < splice.start + splice.removed
            && splice.start < place.start + place.before->getNum();
    });
    for (Rows& place : rows) {
        if (place.start >= splice.start)
            place.start += splice.inserted - splice.removed;
    }
    splices.push_back(splice);
}

bool CrvFieldRecord::differs() const
{
    if (isLarge || hasUnknownRows || !splices.empty() || field->isIgnored() != ignoredBefore)
        return true;
    if (const KnMField* const written = array()) {
        return std::any_of(rows.begin(), rows.end(), [written](const Rows& place) {
            return !written->holdsRows(place.start, *place.before);
        });
    }
    KbString text;
    field->get(text);
    return !(text == before);
}

void CrvFieldRecord::append(CrvFieldRecord later)
{
    isLarge = isLarge || later.isLarge;
    isChanged = isChanged || later.isChanged;
    isDefault = later.isDefault;
    hasUnknownRows = hasUnknownRows || later.hasUnknownRows;
    for (const Splice& splice : later.splices)
        addSplice(splice);
    for (Rows& place : later.rows)
        addRows(place.start, std::move(place.before), place.asText);
    m_lastIgnored = later.m_lastIgnored;
    m_lastText = std::move(later.m_lastText);
}
