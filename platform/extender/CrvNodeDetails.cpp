// SPDX-License-Identifier: BSD-3-Clause
#include "CrvNodeDetails.h"

#include "KnField.h"
#include "KnFieldContainer.h"

namespace {

std::vector<CrvNodeDetails*>& registered()
{
    static auto& all = *new std::vector<CrvNodeDetails*>; // outlives all static objects
    return all;
}

} // namespace

CrvNodeDetails::CrvNodeDetails() { registered().push_back(this); }

CrvNodeDetails::~CrvNodeDetails() { std::erase(registered(), this); }

CrvNodeDetails* CrvNodeDetails::of(const KnFieldContainer& node)
{
    for (CrvNodeDetails* const details : registered()) {
        if (details->knows(node))
            return details;
    }
    return nullptr;
}

CrvNodeDetails* CrvNodeDetails::of(const KnField& field)
{
    const KnFieldContainer* const node = field.getContainer();
    return node ? of(*node) : nullptr;
}

void CrvNodeDetails::endAllWatches()
{
    for (CrvNodeDetails* const details : registered())
        details->endWatches();
}
