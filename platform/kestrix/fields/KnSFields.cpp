// SPDX-License-Identifier: BSD-3-Clause
#include "KnSFields.h"

#include "KnFieldText.h"
#include "KnTextForm.h"

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

#define KN_SFIELD_SOURCE(Name, ValueType)                                                          \
    KN_TYPE_SOURCE(KnSF##Name, KnSField)                                                           \
    template class KnSFieldOf<ValueType>;

KN_SFIELD_SOURCE(Bool, bool)
KN_SFIELD_SOURCE(Box2f, KbBox2f)
KN_SFIELD_SOURCE(Box3s, KbBox3s)
KN_SFIELD_SOURCE(Color, KbColor)
KN_SFIELD_SOURCE(ColorRGBA, KbColorRGBA)
KN_SFIELD_SOURCE(Double, double)
KN_SFIELD_SOURCE(Float, float)
KN_SFIELD_SOURCE(Int32, std::int32_t)
KN_SFIELD_SOURCE(Matrix, KbMatrix)
KN_SFIELD_SOURCE(Name, KbName)
KN_SFIELD_SOURCE(Plane, KbPlane)
KN_SFIELD_SOURCE(Rotation, KbRotation)
KN_SFIELD_SOURCE(Short, std::int16_t)
KN_SFIELD_SOURCE(String, KbString)
KN_SFIELD_SOURCE(Time, KbTime)
KN_SFIELD_SOURCE(UInt32, std::uint32_t)
KN_SFIELD_SOURCE(UShort, std::uint16_t)
KN_SFIELD_SOURCE(Vec2f, KbVec2f)
KN_SFIELD_SOURCE(Vec2i32, KbVec2i32)
KN_SFIELD_SOURCE(Vec2s, KbVec2s)
KN_SFIELD_SOURCE(Vec3f, KbVec3f)
KN_SFIELD_SOURCE(Vec4f, KbVec4f)

KN_TYPE_SOURCE(KnSFFilePathString, KnSFString)
