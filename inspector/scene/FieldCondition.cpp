// SPDX-License-Identifier: BSD-3-Clause
#include "FieldCondition.h"

#include "KnMField.h"
#include "KnSFImage.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace {

// More than anybody means who looks for a value.
constexpr int maxRows = 256;

// As the kernel writes numbers; masks and packed colours are in hexadecimal.
std::optional<double> toNumber(std::string_view text)
{
    const auto read = [](std::string_view digits, auto... base) -> std::optional<double> {
        std::conditional_t<sizeof...(base) == 0, double, unsigned long long> number {};
        const char* const end = digits.data() + digits.size();
        const auto result = std::from_chars(digits.data(), end, number, base...);
        if (result.ec != std::errc() || result.ptr != end || digits.empty())
            return std::nullopt;
        return static_cast<double>(number);
    };
    if (text.starts_with("0x") || text.starts_with("0X"))
        return read(text.substr(2), 16);
    return read(text.starts_with('+') ? text.substr(1) : text);
}

// The text of a string's or a name's text form.
std::string unquoted(const std::string& text)
{
    if (text.size() < 2 || text.front() != '"')
        return text;
    std::string plain;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == '\\' && i + 2 < text.size())
            plain += text[++i] == 'n' ? '\n' : text[i];
        else
            plain += text[i];
    }
    return plain;
}

} // namespace

FieldCondition::FieldCondition(Relation relation, const QString& value)
    : m_relation(relation)
    , m_number(toNumber(value.toStdString()))
    , m_text(value)
    , m_sound(m_number || relation == Relation::Equal || relation == Relation::NotEqual)
{
}

bool FieldCondition::holds(double number) const
{
    switch (m_relation) {
    case Relation::Less:
        return number < *m_number;
    case Relation::LessOrEqual:
        return number <= *m_number;
    case Relation::Greater:
        return number > *m_number;
    case Relation::GreaterOrEqual:
        return number >= *m_number;
    case Relation::Equal:
        return number == *m_number;
    case Relation::NotEqual:
        return number != *m_number;
    }
    return false;
}

bool FieldCondition::holds(const KnField& field) const
{
    KbString text;
    if (const auto* const array = dynamic_cast<const KnMField*>(&field)) {
        const int rows = std::min(array->getNum(), maxRows);
        for (int row = 0; row < rows; ++row) {
            array->get1(row, text);
            if (holds(text.toUtf8()))
                return true;
        }
        return false;
    }
    if (dynamic_cast<const KnSFImage*>(&field))
        return false;
    field.get(text);
    return holds(text.toUtf8());
}

bool FieldCondition::holds(const std::string& text) const
{
    const bool isQuoted = !text.empty() && text.front() == '"';
    bool hasNumbers = false;
    for (std::string_view rest = text; m_number && !isQuoted && !rest.empty();) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (const std::optional<double> number = toNumber(rest.substr(0, end))) {
            hasNumbers = true;
            if (holds(*number))
                return true;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (hasNumbers)
        return false;
    if (m_relation == Relation::Equal)
        return m_text.equals(unquoted(text));
    return m_relation == Relation::NotEqual && !m_text.equals(unquoted(text));
}
