// SPDX-License-Identifier: BSD-3-Clause
#include "FuzzTarget.h"
#include "KnDatabase.h"
#include "KnMField.h"
#include "KnReadError.h"
#include "KnSFBitMask.h"

#include <memory>

namespace {

int errorCount = 0;

/// Null where that is no type of a field that can be made.
std::unique_ptr<KnField> make(const KnType& type)
{
    if (!type.isDerivedFrom(KnField::getClassTypeId()) || !type.canCreateInstance())
        return nullptr;
    auto* field = static_cast<KnField*>(type.createInstance());
    if (field->isOfType(KnSFEnum::getClassTypeId()))
        static_cast<KnSFEnum*>(field)->setEnums({ { "A", 1 }, { "B", 2 }, { "AB", 3 } });
    return std::unique_ptr<KnField>(field);
}

std::string textOf(const KnField& field)
{
    KbString text;
    field.get(text);
    return text.toUtf8();
}

/// The rows of an array, one by one, make the same array.
void requireRows(const KnMField& from)
{
    const auto field = make(from.getObjectType());
    auto& to = static_cast<KnMField&>(*field);
    to.setNum(from.getNum());
    for (int row = 0; row < from.getNum(); ++row) {
        KbString value;
        require(
            from.get1(row, value) && to.set1(row, value), "a row isn't taken back", value.toUtf8());
    }
    require(textOf(to) == textOf(from), "the rows aren't given again", textOf(from));
}

} // namespace

/// The first line names a field type, the rest is a text for a field of it. When the field refuses
/// the text, nothing may change, and one error is posted.
void fuzzInput(std::string_view input)
{
    KnDatabase::init();
    KnReadError::setHandlerCallback([](const KnError*, void*) { ++errorCount; }, nullptr);
    const std::size_t line = input.find('\n');
    if (line == std::string_view::npos)
        return;
    const KnType type = KnType::fromName(KbName(KbString(input.substr(0, line))));
    const auto field = make(type);
    if (!field)
        return;
    const std::string before = textOf(*field);
    const int errors = errorCount;
    if (!field->set(KbString(input.substr(line + 1)))) {
        require(textOf(*field) == before, "a refused text changed the field", textOf(*field));
        require(errorCount == errors + 1, "a refusal wasn't reported once");
        return;
    }
    require(errorCount == errors, "a text that was taken was reported");
    requireFixedPoint(*field, textOf, [&](const std::string& text) {
        auto other = make(type);
        return other->set(KbString(text)) ? std::move(other) : nullptr;
    });
    if (field->isOfType(KnMField::getClassTypeId()))
        requireRows(static_cast<const KnMField&>(*field));
}
