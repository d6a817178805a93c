// SPDX-License-Identifier: BSD-3-Clause
#include "FieldValues.h"

#include "KnFieldTypes.h"
#include "KnMFields.h"
#include "KnSFImage.h"

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <unordered_map>

namespace {

using SameArrays = bool (*)(const KnField& a, const KnField& b);

template <class Field>
bool sameArrays(const KnField& a, const KnField& b)
{
    const auto& first = static_cast<const Field&>(a);
    const auto& second = static_cast<const Field&>(b);
    if (first.getNum() != second.getNum())
        return false;
    using Value = typename Field::Value;
    const Value* const values = first.getValues();
    const Value* const others = second.getValues();
    const auto count = static_cast<std::size_t>(first.getNum());
    // Not by their own comparison: a NaN is the same as a NaN here, and -0 isn't 0.
    if constexpr (std::is_trivially_copyable_v<Value>)
        return count == 0 || std::memcmp(values, others, count * sizeof(Value)) == 0;
    else
        return std::equal(values, values + count, others);
}

SameArrays comparisonOf(const KbName& type)
{
    static const std::unordered_map<const KbString*, SameArrays> table {
#define CRV_COMPARE_ARRAYS(Name, ValueType)                                                        \
    { &KnMF##Name::getClassTypeId().getName().getString(), &sameArrays<KnMF##Name> },
        KN_MFIELD_TYPES(CRV_COMPARE_ARRAYS)
#undef CRV_COMPARE_ARRAYS
    };
    const auto found = table.find(&type.getString());
    return found == table.end() ? nullptr : found->second;
}

bool sameImages(const KnSFImage& a, const KnSFImage& b)
{
    KbVec2s size;
    KbVec2s otherSize;
    int components = 0;
    int otherComponents = 0;
    const unsigned char* const bytes = a.getValue(size, components);
    const unsigned char* const others = b.getValue(otherSize, otherComponents);
    if (!bytes || !others)
        return bytes == others;
    if (size[0] != otherSize[0] || size[1] != otherSize[1] || components != otherComponents)
        return false;
    const auto pixels = static_cast<std::size_t>(size[0]) * static_cast<std::size_t>(size[1]);
    return std::memcmp(bytes, others, pixels * static_cast<std::size_t>(components)) == 0;
}

} // namespace

bool holdSame(const KnField& a, const KnField& b)
{
    if (&a == &b)
        return true;
    if (const SameArrays compare = comparisonOf(a.getObjectType().getName()))
        return compare(a, b);
    if (const auto* const image = dynamic_cast<const KnSFImage*>(&a))
        return sameImages(*image, static_cast<const KnSFImage&>(b));
    const auto* const array = dynamic_cast<const KnMField*>(&a);
    if (array && array->getNum() != static_cast<const KnMField&>(b).getNum())
        return false;
    KbString text;
    KbString other;
    a.get(text);
    b.get(other);
    return text == other;
}
