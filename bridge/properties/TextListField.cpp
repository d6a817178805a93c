// SPDX-License-Identifier: BSD-3-Clause
#include "TextListField.h"

#include "CrvStrings.h"
#include "KnFieldText.h"

#include <QSequentialIterable>

#include <algorithm>

namespace {

/// Null if Qt can't iterate over the type.
QMetaType itemTypeOf(QMetaType list)
{
    QVariant value(list);
    // The type's way to be iterated over is known to Qt once it has a number.
    if (list.id() == QMetaType::UnknownType || !value.canView<QSequentialIterable>())
        return QMetaType();
    return value.view<QSequentialIterable>().metaContainer().valueMetaType();
}

bool canBeMade(QMetaType list)
{
    QVariant value(list);
    return value.view<QSequentialIterable>().metaContainer().canAddValueAtEnd();
}

QVariantList itemsOf(QVariant list)
{
    QVariantList items;
    for (const QVariant& item : list.view<QSequentialIterable>())
        items += item;
    return items;
}

QVariant listOf(QMetaType type, const QVariantList& items)
{
    QVariant list(type);
    auto iterable = list.view<QSequentialIterable>();
    for (const QVariant& item : items)
        iterable.addValue(item, QSequentialIterable::AtEnd);
    return list;
}

} // namespace

bool isTextList(QMetaType type) { return itemTypeOf(type).isValid(); }

TextListPropertyField::TextListPropertyField(const PropertyPlace& place, QMetaType type)
    : PropertyFieldOf(place)
    , m_type(type)
    , m_itemType(itemTypeOf(type))
    , m_form(textFormOf(m_itemType))
{
    if (!m_form.read || !canBeMade(type))
        setReadOnly(true);
}

KnType TextListPropertyField::getObjectType() const
{
    const QByteArray name = QByteArray("MF") + (m_form.fieldType + 2); // behind "SF"
    return KnType::create(name.constData(), KnMFString::getClassTypeId());
}

bool TextListPropertyField::set(const KbString& text)
{
    m_isRefused = false;
    return PropertyFieldOf::set(text) && !m_isRefused;
}

bool TextListPropertyField::set1(int row, const KbString& text)
{
    m_isRefused = false;
    return takesText() && KnMFString::set1(row, text) && !m_isRefused;
}

QVariant TextListPropertyField::freshItem() const
{
    return m_itemType == QMetaType::fromType<QVariant>() ? QVariant() : QVariant(m_itemType);
}

bool TextListPropertyField::isRow(const QVariant& item, int row) const
{
    return text(item) == toQString((*this)[row]);
}

bool TextListPropertyField::shows(const QVariant& value) const
{
    const QVariantList items = itemsOf(value);
    if (items.size() != getNum())
        return false;
    for (int i = 0; i < getNum(); ++i) {
        if (!isRow(items[i], i))
            return false;
    }
    return true;
}

void TextListPropertyField::show(const QVariant& value)
{
    const QVariantList items = itemsOf(value);
    if (m_form.isPartial && m_form.read) {
        const bool isReadable = std::all_of(items.begin(), items.end(),
            [this](const QVariant& item) { return readsBack(m_form, item); });
        setReadOnly(!place().isWritable() || !isReadable || !canBeMade(m_type));
    }
    KnMFString& field = *this;
    showRows(
        field, static_cast<int>(items.size()),
        [&](int item, int row) { return isRow(items[item], row); },
        [&](int item) { return toKbString(text(items[item])); });
}

std::optional<QVariant> TextListPropertyField::itemOf(int row, const QVariant& before) const
{
    const QString wanted = toQString((*this)[row]);
    const QVariant* const former
        = m_former.find([&](const QVariant& item) { return text(item) == wanted; });
    if (former)
        return *former;
    // A row that is new is empty.
    const std::optional<QVariant> item
        = wanted.isEmpty() ? std::optional(freshItem()) : m_form.read(wanted, before);
    if (!item)
        knPostRefusal(*this, row, (*this)[row].toUtf8(), 0, m_form.expected);
    return item;
}

/// Rows that weren't edited keep the item that they had.
QVariant TextListPropertyField::valueFor(const QVariant& before)
{
    const QVariantList old = itemsOf(before);
    const int oldNum = static_cast<int>(old.size());
    const auto isSame = [&](int item, int row) { return isRow(old[item], row); };
    const auto [first, tail] = commonRows(oldNum, getNum(), isSame);
    for (int i = first; i < oldNum - tail; ++i) {
        const QString replaced = text(old[i]);
        m_former.keep(old[i], [&](const QVariant& item) { return text(item) == replaced; });
    }
    QVariantList items = old.first(first);
    for (int row = first; row < getNum() - tail; ++row) {
        const bool hadItem = row < oldNum - tail;
        const std::optional<QVariant> item = hadItem && isSame(row, row)
            ? std::optional(old[row])
            : itemOf(row, hadItem && getNum() == oldNum ? old[row] : freshItem());
        m_isRefused = !item;
        if (!item)
            return QVariant();
        items.append(*item);
    }
    return listOf(m_type, items + old.last(tail));
}
