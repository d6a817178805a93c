// SPDX-License-Identifier: BSD-3-Clause
#include "KnSFEnum.h"

#include "KnFieldText.h"

KN_TYPE_SOURCE(KnSFEnum, KnSField)

void KnSFEnum::setValue(int value)
{
    aboutToWrite();
    m_value = value;
    touch();
}

void KnSFEnum::setValue(const KbName& name)
{
    int value = 0;
    if (findEnumValue(name, value))
        setValue(value);
    else
        knPostRefusal(*this, -1, name.getString().toUtf8(), 0, describeNames());
}

void KnSFEnum::getEnums(int& num, int*& values, KbName*& names)
{
    num = static_cast<int>(m_names.size());
    values = m_values.data();
    names = m_names.data();
}

void KnSFEnum::setEnums(int num, const int* values, const KbName* names)
{
    m_values.assign(values, values + num);
    m_names.assign(names, names + num);
}

void KnSFEnum::setEnums(std::initializer_list<std::pair<const char*, int>> enums)
{
    m_values.clear();
    m_names.clear();
    for (const auto& [name, value] : enums) {
        m_names.emplace_back(name);
        m_values.push_back(value);
    }
}

bool KnSFEnum::findEnumValue(const KbName& name, int& value)
{
    return lookUp(name.getString().toUtf8(), value);
}

bool KnSFEnum::lookUp(std::string_view name, int& value) const
{
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        if (m_names[i].getString().toUtf8() == name) {
            value = m_values[i];
            return true;
        }
    }
    return false;
}

std::string KnSFEnum::describeNames() const
{
    std::string list = m_names.empty() ? "a whole number" : "a whole number or one of";
    const char* separator = " ";
    for (const KbName& name : m_names) {
        list += separator + name.getString().toUtf8();
        separator = ", ";
    }
    return list;
}

void KnSFEnum::get(KbString& text) const
{
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (m_values[i] == m_value) {
            text = m_names[i].getString();
            return;
        }
    }
    text = KbString(std::to_string(m_value));
}

bool KnSFEnum::set(const KbString& text)
{
    const auto read = [this](KnTextReader& reader, int& value) {
        reader.skipBlanks();
        const char* const start = reader.position();
        if (lookUp(reader.takeUpTo({}), value))
            return true;
        reader.setPosition(start);
        if (reader.read(value))
            return true;
        reader.setPosition(start);
        return reader.fail(describeNames());
    };
    aboutToWrite();
    if (!knReadWhole(*this, -1, text, m_value, read))
        return false;
    touch();
    return true;
}
