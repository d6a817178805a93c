// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KernelValue.h"
#include "PropertyField.h"

#include <QList>

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <vector>

/// The field of the kernel's class `Field` that stands for a property: puts the hooks of the field
/// and of PropertyField together. A subclass says how values are converted.
template <class Field>
class PropertyFieldOf : public Field, public PropertyField {
public:
    explicit PropertyFieldOf(const PropertyPlace& place)
        : PropertyField(static_cast<Field&>(*this), place)
    {
    }

    using Field::set;
    void get(KbString& text) const override
    {
        const_cast<PropertyFieldOf*>(this)->refresh(); // the value is as old as the last look
        Field::get(text);
    }
    bool set(const KbString& text) override { return takesText() && Field::set(text); }
    bool hasOwnDefault() const override { return place().isResettable(); }
    bool resetToDefault() override
    {
        this->aboutToWrite();
        return resetProperty();
    }

protected:
    void written() override { fieldWritten(); }
    void watchBegins() override { fieldWatchBegins(); }
    void watchEnds() override { fieldWatchEnds(); }
};

/// Compares to the bit where the type allows it, so that a NaN is one and the sign of zero counts.
template <class Value>
bool isSameValue(const Value& a, const Value& b)
{
    if constexpr (std::is_trivially_copyable_v<Value>)
        return std::memcmp(&a, &b, sizeof a) == 0;
    else
        return a == b;
}

/// Values that a person's edits have replaced and that the field can't say exactly: of several that
/// look the same, the last one.
template <class Value>
class FormerValues {
public:
    template <class LooksSame>
    void keep(const Value& value, LooksSame looksSame)
    {
        m_values.removeIf(looksSame);
        m_values.append(value);
    }
    /// Null if none looks like that.
    template <class LooksSame>
    const Value* find(LooksSame looksSame) const
    {
        const auto found = std::find_if(m_values.begin(), m_values.end(), looksSame);
        return found == m_values.end() ? nullptr : &*found;
    }

private:
    QList<Value> m_values;
};

/// The way of values of the type `Qt` into a field of the kernel's and back, to the bit: what the
/// kernel's value can't say is remembered.
template <class Qt>
class ExactValues {
    using Convert = KernelValue<Qt>;
    using Value = typename Convert::Value;

public:
    static bool looksLike(const Value& shown, const Qt& value)
    {
        return isSameValue(Convert::fromQt(value), shown) || Convert::standsFor(shown, value);
    }
    /// `value` is about to be replaced by an edit.
    void keep(const Qt& value)
    {
        const Value shown = Convert::fromQt(value);
        if (!isSameValue(Convert::toQt(shown), value) || isNullText(value))
            m_former.keep(value, [&](const Qt& other) { return looksLike(shown, other); });
    }
    Qt toQt(const Value& shown) const
    {
        const Qt* const former
            = m_former.find([&shown](const Qt& value) { return looksLike(shown, value); });
        return former ? *former : Convert::toQt(shown);
    }

private:
    static bool isNullText(const Qt& value)
    {
        if constexpr (std::is_same_v<Qt, QString>)
            return value.isNull();
        return false;
    }

    FormerValues<Qt> m_former;
};

/// One value of the type `Qt`.
template <class Qt>
class SinglePropertyField final : public PropertyFieldOf<typename KernelValue<Qt>::Single> {
public:
    using PropertyFieldOf<typename KernelValue<Qt>::Single>::PropertyFieldOf;

protected:
    QMetaType type() const override { return QMetaType::fromType<Qt>(); }
    bool isFor(const QVariant& value) const override
    {
        return PropertyField::isFor(value) && KernelValue<Qt>::canShow(value.value<Qt>());
    }
    bool shows(const QVariant& value) const override
    {
        return ExactValues<Qt>::looksLike(this->getValue(), value.value<Qt>());
    }
    void show(const QVariant& value) override
    {
        this->setValue(KernelValue<Qt>::fromQt(value.value<Qt>()));
    }
    QVariant valueFor(const QVariant& before) override
    {
        m_values.keep(before.value<Qt>());
        return QVariant::fromValue(m_values.toQt(this->getValue()));
    }

private:
    ExactValues<Qt> m_values;
};

/// The rows at the beginning and at the end that two lists have in common.
struct CommonRows {
    int first = 0; // the first row that differs
    int tail = 0; // how many rows are the same at the end
};

/// `isSame` takes a row of the one list and a row of the other.
template <class IsSame>
CommonRows commonRows(int oneNum, int otherNum, IsSame isSame)
{
    CommonRows rows;
    const int common = std::min(oneNum, otherNum);
    while (rows.first < common && isSame(rows.first, rows.first))
        ++rows.first;
    while (
        rows.tail < common - rows.first && isSame(oneNum - 1 - rows.tail, otherNum - 1 - rows.tail))
        ++rows.tail;
    return rows;
}

/// Makes an array show `newNum` rows. Writes those that differ and no others, so that an open cell
/// elsewhere stays open. `isSame` takes a row of the new list and one of the field.
template <class Field, class IsSame, class MakeRow>
void showRows(Field& field, int newNum, IsSame isSame, MakeRow makeRow)
{
    const auto [first, tail] = commonRows(newNum, field.getNum(), isSame);
    const int count = newNum - tail - first;
    const int surplus = field.getNum() - newNum;
    field.removeValues(first + count, surplus);
    field.insertValues(first, -surplus);
    std::vector<typename Field::Value> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rows.push_back(makeRow(first + i));
    field.setValues(first, count, rows.data());
}

/// A list of values of the type `Qt`.
template <class Qt>
class ListPropertyField final : public PropertyFieldOf<typename KernelValue<Qt>::Array> {
    using Field = typename KernelValue<Qt>::Array;

public:
    using PropertyFieldOf<Field>::PropertyFieldOf;

    using KnMField::set1;
    bool set1(int row, const KbString& text) override
    {
        return this->takesText() && Field::set1(row, text);
    }

protected:
    QMetaType type() const override { return QMetaType::fromType<QList<Qt>>(); }
    bool shows(const QVariant& value) const override
    {
        const auto list = value.value<QList<Qt>>();
        return list.size() == this->getNum()
            && std::equal(list.begin(), list.end(), this->getValues(),
                [](const Qt& item, const auto& row) { return Values::looksLike(row, item); });
    }
    void show(const QVariant& value) override
    {
        const auto list = value.value<QList<Qt>>();
        Field& field = *this;
        showRows(
            field, static_cast<int>(list.size()),
            [&](int item, int row) { return Values::looksLike(field[row], list[item]); },
            [&](int item) { return KernelValue<Qt>::fromQt(list[item]); });
    }
    /// Rows that weren't edited keep the value that they had.
    QVariant valueFor(const QVariant& before) override
    {
        const auto old = before.value<QList<Qt>>();
        const int oldNum = static_cast<int>(old.size());
        const int num = this->getNum();
        const auto isSame
            = [&](int item, int row) { return Values::looksLike((*this)[row], old[item]); };
        const auto [first, tail] = commonRows(oldNum, num, isSame);
        for (int item = first; item < oldNum - tail; ++item)
            m_values.keep(old[item]);
        QList<Qt> list = old.first(first);
        list.reserve(num);
        for (int row = first; row < num - tail; ++row) {
            const bool isOld = row < oldNum - tail && isSame(row, row);
            list.append(isOld ? old[row] : m_values.toQt((*this)[row]));
        }
        return QVariant::fromValue(list + old.last(tail));
    }

private:
    using Values = ExactValues<Qt>;

    Values m_values;
};
