// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldText.h"
#include "KnSFieldOf.h"
#include "KnTextForm.h"

// The bodies of KnSFieldOf, for the source file that instantiates it for a value type.

template <class Value_>
void KnSFieldOf<Value_>::get(KbString& text) const
{
    std::string out;
    {
        KnTextWriter writer(out);
        KnTextForm<Value>::write(writer, m_value);
    }
    text = KbString(std::move(out));
}

template <class Value_>
bool KnSFieldOf<Value_>::set(const KbString& text)
{
    if (!knReadWhole(*this, -1, text, m_value, &KnTextForm<Value>::read))
        return false;
    touch();
    return true;
}
