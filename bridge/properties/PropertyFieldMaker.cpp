// SPDX-License-Identifier: BSD-3-Clause
#include "PropertyFieldMaker.h"

#include "ChoiceField.h"
#include "FilePathField.h"
#include "PictureField.h"
#include "PropertyFields.h"
#include "TextField.h"
#include "TextListField.h"

#include <QHash>

namespace {

using Maker = std::unique_ptr<KnField> (*)(const PropertyPlace& place);
using Makers = QHash<int, Maker>; // by the number of the type

template <class Field>
std::unique_ptr<KnField> make(const PropertyPlace& place)
{
    return std::make_unique<Field>(place);
}

/// Whether the kernel's field would show another value.
template <class Qt>
bool needsText(const QVariant& value)
{
    return !KernelValue<Qt>::canShow(value.value<Qt>());
}

/// For a type of which some values need a text.
template <class Qt>
std::unique_ptr<KnField> makeByValue(const PropertyPlace& place)
{
    const auto type = QMetaType::fromType<Qt>();
    if (needsText<Qt>(place.read().value_or(QVariant(type))))
        return std::make_unique<TextPropertyField>(place, type, textFormOf(type), &needsText<Qt>);
    return std::make_unique<SinglePropertyField<Qt>>(place);
}

template <class Qt>
void addType(Makers& makers)
{
    makers[QMetaType::fromType<Qt>().id()] = &make<SinglePropertyField<Qt>>;
    if constexpr (!std::is_void_v<typename KernelValue<Qt>::Array>)
        makers[QMetaType::fromType<QList<Qt>>().id()] = &make<ListPropertyField<Qt>>;
}

template <class... Types>
Makers makersOf()
{
    Makers makers;
    (addType<Types>(makers), ...);
    makers[QMetaType::QColor] = &makeByValue<QColor>;
    makers[QMetaType::QQuaternion] = &makeByValue<QQuaternion>;
    makers[QMetaType::QImage] = &make<PicturePropertyField<QImage>>;
    makers[QMetaType::QPixmap] = &make<PicturePropertyField<QPixmap>>;
    makers[QMetaType::QIcon] = &make<PicturePropertyField<QIcon>>;
    return makers;
}

Maker makerOf(QMetaType type)
{
    static const Makers makers = makersOf<bool, short, ushort, int, uint, float, double, QString,
        QUrl, QColor, QPoint, QSize, QVector2D, QVector3D, QVector4D, QQuaternion, QMatrix4x4>();
    return makers.value(type.id());
}

/// Null if the property is no enumeration, or one whose numbers a field can't hold.
std::unique_ptr<KnField> makeChoice(const PropertyPlace& place, QMetaType type)
{
    const QMetaProperty declared = place.property();
    const QMetaEnum enumeration
        = declared.isEnumType() ? declared.enumerator() : enumerationOf(type);
    if (!enumeration.isValid() || !fitsChoice(type))
        return nullptr;
    if (enumeration.isFlag())
        return std::make_unique<ChoicePropertyField<KnSFBitMask>>(place, type, enumeration);
    return std::make_unique<ChoicePropertyField<KnSFEnum>>(place, type, enumeration);
}

} // namespace

std::unique_ptr<KnField> makePropertyField(const PropertyPlace& place)
{
    const QMetaType type = place.isVariant() ? place.read().value_or(QVariant()).metaType()
                                             : place.property().metaType();
    if (std::unique_ptr<KnField> choice = makeChoice(place, type))
        return choice;
    if (type == QMetaType::fromType<QString>() && namesFile(place.name()))
        return std::make_unique<FilePathPropertyField>(place);
    if (const Maker maker = makerOf(type))
        return maker(place);
    const TextForm& form = textFormOf(type);
    // A list of variants has a text, for where it stands in another one.
    const bool isList = !form.read || type == QMetaType::fromType<QVariantList>();
    if (isList && isTextList(type))
        return std::make_unique<TextListPropertyField>(place, type);
    return std::make_unique<TextPropertyField>(place, type, form);
}
