// SPDX-License-Identifier: BSD-3-Clause
#include "TextField.h"

#include "CrvStrings.h"
#include "KnFieldText.h"

TextPropertyField::TextPropertyField(
    const PropertyPlace& place, QMetaType type, const TextForm& form, NeedsText needsText)
    : PropertyField(static_cast<KnField&>(*this), place)
    , m_type(type)
    , m_form(form)
    , m_needsText(needsText)
{
    if (!form.read)
        setReadOnly(true);
}

KnType TextPropertyField::getObjectType() const
{
    return KnType::create(m_form.fieldType, KnSField::getClassTypeId());
}

void TextPropertyField::get(KbString& text) const
{
    const_cast<TextPropertyField*>(this)->refresh(); // the text is as old as the last look
    text = toKbString(m_text);
}

bool TextPropertyField::set(const KbString& text)
{
    refresh(); // whether the value that is there now can be written
    if (!knAcceptsText(*this) || !takesText())
        return false;
    const QVariant before = place().read().value_or(QVariant());
    const QString wanted = toQString(text);
    const QVariant* const former
        = m_former.find([&](const QVariant& value) { return looksLike(value, wanted); });
    // The kernel's text for the default value of every type.
    const bool isDefault = wanted == QLatin1String("\"\"");
    if (former)
        m_wanted = *former;
    else if (isDefault)
        m_wanted = QVariant(m_type);
    else
        m_wanted = m_form.read(wanted, before.metaType() == m_type ? before : QVariant(m_type));
    if (!m_wanted) {
        knPostRefusal(*this, -1, text.toUtf8(), 0, m_form.expected);
        return false;
    }
    m_text = m_form.write(*m_wanted);
    touch();
    return true;
}

QObject* TextPropertyField::linkedObject() const
{
    // Looking is only worth it where the property is a pointer.
    if (&m_form != &objectForm())
        return nullptr;
    return place().read().value_or(QVariant()).value<QObject*>();
}

bool TextPropertyField::isFor(const QVariant& value) const
{
    return PropertyField::isFor(value) && (!m_needsText || m_needsText(value));
}

bool TextPropertyField::looksLike(const QVariant& value, const QString& text) const
{
    return m_form.write(value) == text;
}

bool TextPropertyField::shows(const QVariant& value) const { return looksLike(value, m_text); }

void TextPropertyField::show(const QVariant& value)
{
    m_text = m_form.write(value);
    if (m_form.isPartial)
        setReadOnly(!place().isWritable() || !readsBack(m_form, value));
    touch();
}

QVariant TextPropertyField::valueFor(const QVariant& before)
{
    const QString text = m_form.write(before);
    m_former.keep(before, [&](const QVariant& value) { return looksLike(value, text); });
    return m_wanted.value_or(QVariant());
}
