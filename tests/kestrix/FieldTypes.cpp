// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"

#include "KnSFEnum.h"

const QByteArrayList& fieldTypeNames()
{
    static const QByteArrayList names
        = QByteArray("SFBitMask SFBool SFBox2f SFBox3s SFColor SFColorRGBA SFDouble SFEnum"
                     " SFFilePathString SFFloat SFImage SFInt32 SFMatrix SFName SFPlane SFRotation"
                     " SFShort SFString SFTime SFUInt32 SFUShort SFVec2f SFVec2i32 SFVec2s SFVec3f"
                     " SFVec4f MFColor MFColorRGBA MFDouble MFFloat MFInt32 MFMatrix MFName MFPlane"
                     " MFRotation MFShort MFString MFTime MFUInt32 MFUShort MFVec2f MFVec2i32"
                     " MFVec2s MFVec3f MFVec4f")
              .split(' ');
    return names;
}

std::unique_ptr<KnField> makeField(const QByteArray& typeName)
{
    std::unique_ptr<KnField> field(
        static_cast<KnField*>(KnType::fromName(typeName.constData()).createInstance()));
    if (field->isOfType(KnSFEnum::getClassTypeId()))
        static_cast<KnSFEnum&>(*field).setEnums(
            { { "A", 1 }, { "B", 2 }, { "AB", 3 }, { "D", 4 } });
    return field;
}

QByteArray textOf(const KnField& field)
{
    KbString text;
    field.get(text);
    return QByteArray::fromStdString(text.toUtf8());
}
