// SPDX-License-Identifier: BSD-3-Clause
#include "KnSFields.h"

#include "KnFieldText.h"
#include "KnTextForm.h"

template <class FieldValue>
void KnSFieldOf<FieldValue>::get(KbString& text) const
{
    std::string out;
    {
        KnTextWriter writer(out);
        KnTextForm<Value>::write(writer, m_value);
    }
    text = KbString(std::move(out));
}

template <class FieldValue>
bool KnSFieldOf<FieldValue>::set(const KbString& text)
{
    aboutToWrite();
    if (!knReadWhole(*this, -1, text, m_value, &KnTextForm<Value>::read))
        return false;
    touch();
    return true;
}

#define KN_SFIELD_SOURCE(Name, ValueType)                                                          \
    KN_TYPE_SOURCE(KnSF##Name, KnSField)                                                           \
    template class KnSFieldOf<ValueType>;
KN_SFIELD_TYPES(KN_SFIELD_SOURCE)
#undef KN_SFIELD_SOURCE

KN_TYPE_SOURCE(KnSFFilePathString, KnSFString)
