// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KernelValue.h"
#include "PropertyField.h"

#include <QList>

#include <algorithm>
#include <cstring>
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

/// One value of the type `Qt`.
template <class Qt>
class SinglePropertyField final : public PropertyFieldOf<typename KernelValue<Qt>::Single> {
public:
    using PropertyFieldOf<typename KernelValue<Qt>::Single>::PropertyFieldOf;

protected:
    bool shows(const QVariant& value) const override
    {
        const auto held = value.value<Qt>();
        return isSameValue(KernelValue<Qt>::fromQt(held), this->getValue())
            || KernelValue<Qt>::standsFor(this->getValue(), held);
    }
    void show(const QVariant& value) override
    {
        this->setValue(KernelValue<Qt>::fromQt(value.value<Qt>()));
    }
    QVariant shownValue() const override
    {
        return QVariant::fromValue(KernelValue<Qt>::toQt(this->getValue()));
    }
};

/// A list of values of the type `Qt`.
template <class Qt>
class ListPropertyField final : public PropertyFieldOf<typename KernelValue<Qt>::Array> {
    using Value = typename KernelValue<Qt>::Array::Value;

public:
    using PropertyFieldOf<typename KernelValue<Qt>::Array>::PropertyFieldOf;

    using KnMField::set1;
    bool set1(int row, const KbString& text) override
    {
        return this->takesText() && KernelValue<Qt>::Array::set1(row, text);
    }

protected:
    bool shows(const QVariant& value) const override
    {
        const auto list = value.value<QList<Qt>>();
        return list.size() == this->getNum()
            && std::equal(list.begin(), list.end(), this->getValues(), &isRow);
    }
    void show(const QVariant& value) override;
    QVariant shownValue() const override
    {
        QList<Qt> list;
        list.reserve(this->getNum());
        for (int row = 0; row < this->getNum(); ++row)
            list.append(KernelValue<Qt>::toQt((*this)[row]));
        return QVariant::fromValue(list);
    }

private:
    static bool isRow(const Qt& value, const Value& row)
    {
        return isSameValue(KernelValue<Qt>::fromQt(value), row)
            || KernelValue<Qt>::standsFor(row, value);
    }
};

/// Writes the rows that differ and no others, so that an open cell elsewhere stays open.
template <class Qt>
void ListPropertyField<Qt>::show(const QVariant& value)
{
    const auto list = value.value<QList<Qt>>();
    const int oldNum = this->getNum();
    const int newNum = static_cast<int>(list.size());
    const int common = std::min(oldNum, newNum);
    int first = 0;
    while (first < common && isRow(list[first], (*this)[first]))
        ++first;
    int tail = 0;
    while (tail < common - first && isRow(list[newNum - 1 - tail], (*this)[oldNum - 1 - tail]))
        ++tail;
    const int count = newNum - tail - first;
    const int surplus = oldNum - tail - first - count;
    this->removeValues(first + count, surplus);
    this->insertValues(first, -surplus);
    std::vector<Value> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rows.push_back(KernelValue<Qt>::fromQt(list[first + i]));
    this->setValues(first, count, rows.data());
}
