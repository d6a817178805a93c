// SPDX-License-Identifier: BSD-3-Clause
#include "KnDatabase.h"
#include "KnMField.h"
#include "KnReadError.h"
#include "KnSFBitMask.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace {

constexpr std::array types { "SFBitMask", "SFBool", "SFBox3s", "SFDouble", "SFEnum", "SFFloat",
    "SFImage", "SFInt32", "SFMatrix", "SFName", "SFString", "SFUInt32", "SFUShort", "SFVec3f",
    "MFDouble", "MFFloat", "MFName", "MFRotation", "MFShort", "MFString", "MFVec2i32", "MFVec3f" };

int errorCount = 0;

std::unique_ptr<KnField> make(const char* type)
{
    KnDatabase::init();
    auto* field = static_cast<KnField*>(KnType::fromName(type).createInstance());
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

void require(bool condition, const char* what, const KnField& field)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s: %s\n", textOf(field).c_str(), what);
    std::abort();
}

} // namespace

/// The first byte picks the field type, the rest is the text. When a field takes it, the text that
/// the field then gives must be taken by another field of the type, and given back the same. When
/// the field refuses it, nothing may change, and one error is posted.
// NOLINTNEXTLINE(readability-identifier-naming): the name that libFuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    KnReadError::setHandlerCallback([](const KnError*, void*) { ++errorCount; }, nullptr);
    const char* const type = types[data[0] % types.size()];
    const KbString text(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
    const auto field = make(type);
    const std::string before = textOf(*field);
    const int errors = errorCount;
    if (!field->set(text)) {
        require(textOf(*field) == before, "a refused text changed the field", *field);
        require(errorCount == errors + 1, "a refusal wasn't reported once", *field);
        return 0;
    }
    require(errorCount == errors, "a text that was taken was reported", *field);
    const std::string canonical = textOf(*field);
    const auto other = make(type);
    require(other->set(KbString(canonical)), "the text isn't taken back", *field);
    require(textOf(*other) == canonical, "the text isn't given again", *field);
    if (!field->isOfType(KnMField::getClassTypeId()))
        return 0;
    const auto& from = static_cast<const KnMField&>(*field);
    const auto third = make(type);
    auto& to = static_cast<KnMField&>(*third);
    to.setNum(from.getNum());
    for (int row = 0; row < from.getNum(); ++row) {
        KbString value;
        require(from.get1(row, value) && to.set1(row, value), "a row isn't taken back", from);
    }
    require(textOf(to) == canonical, "the rows aren't given again", from);
    return 0;
}
