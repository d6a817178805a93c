// SPDX-License-Identifier: BSD-3-Clause
#include "ChoiceField.h"

#include <bit>
#include <vector>

void nameChoices(KnSFEnum& field, const QMetaEnum& enumeration)
{
    std::vector<int> values;
    std::vector<KbName> names;
    int named = 0; // bits
    const auto add = [&](int index) {
        values.push_back(enumeration.value(index));
        names.emplace_back(enumeration.key(index));
        named |= enumeration.value(index);
    };
    // Of flags each bit by one name: another one that stands for it, too, would hold it set.
    const auto isBit = [](int value) { return std::has_single_bit(static_cast<unsigned>(value)); };
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        const int value = enumeration.value(i);
        if (!enumeration.isFlag() || (isBit(value) && (named & value) == 0))
            add(i);
    }
    for (int i = 0; enumeration.isFlag() && i < enumeration.keyCount(); ++i) {
        const int value = enumeration.value(i);
        if (!isBit(value) && (named & value) == 0)
            add(i);
    }
    field.setEnums(static_cast<int>(values.size()), values.data(), names.data());
}
