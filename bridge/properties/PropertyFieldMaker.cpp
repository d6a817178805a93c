// SPDX-License-Identifier: BSD-3-Clause
#include "PropertyFieldMaker.h"

#include "ChoiceField.h"
#include "FilePathField.h"
#include "PictureField.h"
#include "PropertyFields.h"
#include "TextField.h"

#include <QHash>

namespace {

using Maker = std::unique_ptr<KnField> (*)(const PropertyPlace& place);

template <class Field>
std::unique_ptr<KnField> make(const PropertyPlace& place)
{
    return std::make_unique<Field>(place);
}

using Makers = QHash<int, Maker>;

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
    if (type.flags().testFlag(QMetaType::PointerToQObject))
        return std::make_unique<TextPropertyField>(place, objectForm());
    const TextForm* const form = textFormOf(type);
    return std::make_unique<TextPropertyField>(place, form ? *form : descriptionForm());
}
