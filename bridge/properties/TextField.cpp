// SPDX-License-Identifier: BSD-3-Clause
#include "TextField.h"

#include "CrvStrings.h"
#include "KnFieldText.h"

TextPropertyField::TextPropertyField(const PropertyPlace& place, const TextForm& form)
    : PropertyField(static_cast<KnField&>(*this), place)
    , m_form(form)
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
    if (!knAcceptsText(*this) || !takesText())
        return false;
    const QString wanted = toQString(text);
    // The kernel's text for the default value of every type.
    m_wanted = wanted == QLatin1String("\"\"") ? QVariant(m_form.type) : m_form.read(wanted);
    if (!m_wanted.isValid()) {
        knPostRefusal(*this, -1, text.toUtf8(), 0, m_form.expected);
        return false;
    }
    m_text = m_form.write(m_wanted);
    touch();
    return true;
}

QObject* TextPropertyField::linkedObject() const
{
    return place().read().value_or(QVariant()).value<QObject*>();
}

bool TextPropertyField::shows(const QVariant& value) const { return m_form.write(value) == m_text; }

void TextPropertyField::show(const QVariant& value)
{
    m_text = m_form.write(value);
    touch();
}
