// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvJsonTree.h"

#include <variant>

/// Where a value stands in a JSON file, as in "root.children[2].name". It is a step behind the
/// place of what the value is in, which outlives it, and only becomes a text when somebody asks.
class CrvJsonPlace {
public:
    /// The outermost value.
    CrvJsonPlace() = default;

    CrvJsonPlace member(QLatin1String name) const { return { this, name }; }
    CrvJsonPlace member(const CrvJsonValue& name) const { return { this, name }; }
    CrvJsonPlace element(int index) const { return { this, index }; }

    /// Empty for the outermost value.
    QString text() const;

private:
    using Step = std::variant<QLatin1String, CrvJsonValue, int>;

    CrvJsonPlace(const CrvJsonPlace* outer, Step step)
        : m_outer(outer)
        , m_step(step)
    {
    }

    const CrvJsonPlace* m_outer = nullptr;
    Step m_step;
};
