// SPDX-License-Identifier: BSD-3-Clause
#include "FieldNumbers.h"

#include "KnMField.h"
#include "KnSFBitMask.h"
#include "KnSFImage.h"
#include "KnSFields.h"
#include "KnTextForm.h"

#include <array>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

template <class Value>
requires std::is_arithmetic_v<Value> std::array<Value, 1> numbersOf(const Value& value)
{
    return { value };
}
std::array<int, 1> numbersOf(const bool& value) { return { value ? 1 : 0 }; }
std::array<double, 1> numbersOf(const KbTime& value) { return { value.getValue() }; }
template <KbCompound Value>
auto numbersOf(const Value& value)
{
    return KbComponents<Value>::read(value);
}

template <class Value>
concept Numeric = requires(const Value& value)
{
    numbersOf(value);
};

template <class Value>
constexpr std::array<const char*, 4> letters { "x", "y", "z", "w" };
template <>
constexpr std::array<const char*, 4> letters<KbColor> { "r", "g", "b" };
template <>
constexpr std::array<const char*, 4> letters<KbColorRGBA> { "r", "g", "b", "a" };
template <>
constexpr std::array<const char*, 4> letters<KbPlane> { "x", "y", "z", "distance" };
template <>
constexpr std::array<const char*, 4> letters<KbRotation> { "x", "y", "z", "radians" };

template <class Value>
QString letter(int component)
{
    return QLatin1String(letters<Value>[static_cast<std::size_t>(component)]);
}

template <class Value>
QString componentName(int component)
{
    if constexpr (!KbCompound<Value>) {
        return QString();
    } else if constexpr (std::is_same_v<Value, KbMatrix>) {
        return QStringLiteral("[%1][%2]").arg(component / 4).arg(component % 4);
    } else if constexpr (requires(const Value& box) { box.getMin(); }) {
        constexpr int corner = KbComponents<Value>::count / 2;
        const QString end = component < corner ? QStringLiteral("min.") : QStringLiteral("max.");
        return end + letter<Value>(component % corner);
    } else {
        return letter<Value>(component);
    }
}

template <class Field, class Value>
double readNumber(const KnField& field, int component)
{
    const Value& value = static_cast<const Field&>(field).getValue();
    const auto numbers = numbersOf(value);
    return static_cast<double>(numbers[static_cast<std::size_t>(component)]);
}

template <class Number>
std::string kernelText(double number)
{
    std::string out;
    {
        KnTextWriter writer(out);
        KnTextForm<Number>::write(writer, static_cast<Number>(number));
    }
    return out;
}

template <class Number>
std::string decimalText(double number)
{
    std::string out;
    {
        KnTextWriter writer(out);
        writer.number(static_cast<Number>(number));
    }
    return out;
}

using Table = std::vector<std::pair<KnType, FieldNumbers>>;

template <class Field, class Value>
void addLine(Table& table)
{
    if constexpr (Numeric<Value>) {
        using Numbers = decltype(numbersOf(std::declval<const Value&>()));
        using Number = typename Numbers::value_type;
        table.emplace_back(Field::getClassTypeId(),
            FieldNumbers { static_cast<int>(std::tuple_size_v<Numbers>), componentName<Value>,
                readNumber<Field, Value>, kernelText<Number>, decimalText<Number> });
    }
}

/// Of all types of the kernel's list that hold numbers, and of arrays.
Table makeTable()
{
    Table table;
#define CRV_ADD_LINE(Name, ValueType) addLine<KnSF##Name, ValueType>(table);
    KN_SFIELD_TYPES(CRV_ADD_LINE)
    KN_SPECIAL_SFIELD_TYPES(CRV_ADD_LINE)
#undef CRV_ADD_LINE
    const FieldNumbers rowCount { 1, [](int) { return QStringLiteral("count"); },
        [](const KnField& field, int) {
            return static_cast<double>(static_cast<const KnMField&>(field).getNum());
        },
        kernelText<int>, decimalText<int> };
    table.emplace_back(KnMField::getClassTypeId(), rowCount);
    return table;
}

} // namespace

const FieldNumbers* FieldNumbers::of(const KnField& field)
{
    static const Table table = makeTable();
    // A type derived from one of the kernel's is read like that one.
    for (KnType type = field.getObjectType(); !type.isBad(); type = type.getParent()) {
        for (const auto& [known, numbers] : table) {
            if (known == type)
                return &numbers;
        }
    }
    return nullptr;
}

QString componentSuffix(const QString& component)
{
    const bool bare = component.isEmpty() || component.startsWith(QLatin1Char('['));
    return bare ? component : QLatin1Char('.') + component;
}
