// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfile.h"

#include <utility>

CrvProfile::CrvProfile(const KbString& name, std::vector<CrvProfileEntry> entries)
    : m_name(name)
    , m_entries(std::move(entries))
{
}

CrvProfile::~CrvProfile() = default;
