// SPDX-License-Identifier: BSD-3-Clause
#include "KnMFields.h"

#include "KnFieldText.h"
#include "KnMemoryError.h"
#include "KnTextForm.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <type_traits>

namespace {

/// After this many values of a long array, the room that the rest will need is estimated.
constexpr std::size_t sampleSize = 256;

} // namespace

template <class FieldValue>
class KnMFieldOf<FieldValue>::Rows : public KnRows {
public:
    template <class Iterator>
    Rows(Iterator begin, Iterator end)
        : m_values(begin, end)
    {
    }

    int getNum() const override { return static_cast<int>(m_values.size()); }
    void get1(int row, KbString& text) const override
    {
        std::string out;
        {
            KnTextWriter writer(out);
            KnTextForm<Value>::write(writer, m_values[static_cast<std::size_t>(row)]);
        }
        text = KbString(std::move(out));
    }

    const std::vector<Value> m_values;
};

template <class FieldValue>
template <class Change>
bool KnMFieldOf<FieldValue>::changeLength(std::int64_t num, const Change& change)
{
    if (num <= std::numeric_limits<int>::max()) {
        try {
            change();
            return true;
        } catch (const std::bad_alloc&) {
        } catch (const std::length_error&) {
        }
    }
    KnMemoryError::post(KbString(getObjectType().getName().getString().toUtf8() + ": no memory for "
        + std::to_string(num) + " values"));
    return false;
}

template <class FieldValue>
bool KnMFieldOf<FieldValue>::resize(std::int64_t num)
{
    return changeLength(num, [&] { m_values.resize(static_cast<std::size_t>(num)); });
}

template <class FieldValue>
void KnMFieldOf<FieldValue>::setNum(int num)
{
    const int old = getNum();
    const int kept = std::clamp(num, 0, old);
    std::unique_ptr<KnRows> former = keepRows(kept, old - kept);
    if (!resize(std::max(num, 0)))
        return;
    reportRows(kept, old - kept, getNum() - kept);
    recordRows(kept, old - kept, getNum() - kept, std::move(former));
    touch();
}

template <class FieldValue>
void KnMFieldOf<FieldValue>::set1Value(int row, const Value& value)
{
    if (row < 0)
        return;
    if (row < getNum()) {
        std::unique_ptr<KnRows> former = keepRows(row, 1);
        m_values[static_cast<std::size_t>(row)] = value;
        reportRows(row, 1, 1);
        recordRows(row, 1, 1, std::move(former));
    } else {
        Value copy = value; // it may be one of our own rows, which are about to move
        const int old = getNum();
        aboutToWrite();
        if (!resize(std::int64_t { row } + 1))
            return;
        m_values.back() = std::move(copy);
        reportRows(old, 0, getNum() - old);
        recordRows(old, 0, getNum() - old, nullptr);
    }
    touch();
}

template <class FieldValue>
void KnMFieldOf<FieldValue>::setValues(int start, int num, const Value* values)
{
    if (start < 0 || num <= 0)
        return;
    const std::vector<Value> copy(values, values + num); // of what may be our own rows, too
    const int old = getNum();
    const int first = std::min(start, old);
    const int removed
        = static_cast<int>(std::min<std::int64_t>(std::int64_t { start } + num, old)) - first;
    std::unique_ptr<KnRows> former = keepRows(first, removed);
    if (!resize(std::max<std::int64_t>(old, std::int64_t { start } + num)))
        return;
    std::copy(copy.begin(), copy.end(), m_values.begin() + start);
    reportRows(first, removed, start + num - first);
    recordRows(first, removed, start + num - first, std::move(former));
    touch();
}

template <class FieldValue>
void KnMFieldOf<FieldValue>::insertValues(int start, int num)
{
    if (num <= 0)
        return;
    start = std::clamp(start, 0, getNum());
    aboutToWrite();
    if (!changeLength(std::int64_t { getNum() } + num, [&] {
            m_values.insert(m_values.begin() + start, static_cast<std::size_t>(num), Value());
        }))
        return;
    reportRows(start, 0, num);
    recordRows(start, 0, num, nullptr);
    touch();
}

template <class FieldValue>
void KnMFieldOf<FieldValue>::removeValues(int start, int num)
{
    const auto end
        = static_cast<int>(std::clamp<std::int64_t>(std::int64_t { start } + num, 0, getNum()));
    start = std::max(start, 0);
    if (start >= end)
        return;
    std::unique_ptr<KnRows> former = keepRows(start, end - start);
    m_values.erase(m_values.begin() + start, m_values.begin() + end);
    reportRows(start, end - start, 0);
    recordRows(start, end - start, 0, std::move(former));
    touch();
}

template <class FieldValue>
void KnMFieldOf<FieldValue>::get(KbString& text) const
{
    std::string out;
    {
        KnTextWriter writer(out);
        writer.put('[');
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            if (i == sampleSize)
                writer.reserve(m_values.size() / sampleSize);
            if (i > 0)
                writer.put(',');
            writer.put(' ');
            KnTextForm<Value>::write(writer, m_values[i]);
        }
        if (!m_values.empty())
            writer.put(' ');
        writer.put(']');
    }
    text = KbString(std::move(out));
}

template <class FieldValue>
bool KnMFieldOf<FieldValue>::readArray(KnTextReader& reader, std::vector<Value>& values)
{
    if (!reader.accept('['))
        return KnTextForm<Value>::read(reader, values.emplace_back());
    reader.setInArray(true);
    while (!reader.accept(']')) { // also after a trailing comma
        if (values.size() == sampleSize)
            values.reserve(sampleSize * (reader.remaining() / reader.consumed() + 2));
        if (reader.acceptDefault())
            values.emplace_back();
        else if (!KnTextForm<Value>::read(reader, values.emplace_back()))
            return false;
        if (reader.accept(','))
            continue;
        return reader.accept(']') || reader.fail("a comma or a closing bracket");
    }
    return true;
}

template <class FieldValue>
bool KnMFieldOf<FieldValue>::set(const KbString& text)
{
    if (!knAcceptsText(*this))
        return false;
    aboutToWrite();
    KnTextReader reader(text.toUtf8());
    std::vector<Value> values;
    const bool read = reader.acceptDefault() || readArray(reader, values);
    if (!read || !reader.expectEnd()) {
        knPostRefusal(*this, read ? -1 : static_cast<int>(values.size()) - 1, text.toUtf8(),
            reader.failureOffset(), reader.expected());
        return false;
    }
    const int old = getNum();
    std::unique_ptr<KnRows> former = keepRows(0, old);
    m_values = std::move(values);
    reportRows(0, old, getNum());
    recordRows(0, old, getNum(), std::move(former));
    touch();
    return true;
}

template <class FieldValue>
bool KnMFieldOf<FieldValue>::get1(int row, KbString& text) const
{
    std::string out;
    const bool known = row >= 0 && row < getNum();
    if (known) {
        KnTextWriter writer(out);
        KnTextForm<Value>::write(writer, m_values[static_cast<std::size_t>(row)]);
    }
    text = KbString(std::move(out));
    return known;
}

template <class FieldValue>
bool KnMFieldOf<FieldValue>::set1(int row, const KbString& text)
{
    if (row < 0 || row >= getNum()) {
        knPostRefusal(*this, row, text.toUtf8(), 0,
            "a row of the array, which has " + std::to_string(getNum()));
        return false;
    }
    Value& value = m_values[static_cast<std::size_t>(row)];
    std::unique_ptr<KnRows> former = keepRows(row, 1, KnFieldRecorder::Writing::Text);
    if (!knReadWhole(*this, row, text, value, &KnTextForm<Value>::read))
        return false;
    recordRows(row, 1, 1, std::move(former), KnFieldRecorder::Writing::Text);
    touch();
    return true;
}

template <class FieldValue>
std::unique_ptr<KnRows> KnMFieldOf<FieldValue>::copyRows(int start, int num) const
{
    return std::make_unique<Rows>(m_values.begin() + start, m_values.begin() + start + num);
}

template <class FieldValue>
bool KnMFieldOf<FieldValue>::holdsRows(int start, const KnRows& rows) const
{
    const std::vector<Value>& values = static_cast<const Rows&>(rows).m_values;
    const int num = rows.getNum();
    if (start < 0 || std::int64_t { start } + num > getNum())
        return false;
    const auto first = m_values.begin() + start;
    // A zero has a sign, and what is no number equals itself.
    if constexpr (std::is_trivially_copyable_v<Value>)
        return num == 0 || std::memcmp(&*first, values.data(), values.size() * sizeof(Value)) == 0;
    else
        return std::equal(values.begin(), values.end(), first);
}

template <class FieldValue>
void KnMFieldOf<FieldValue>::writeRows(int start, const KnRows& rows)
{
    const int num = std::min(rows.getNum(), getNum() - start);
    setValues(start, num, static_cast<const Rows&>(rows).m_values.data());
}

#define KN_MFIELD_SOURCE(Name, ValueType)                                                          \
    KN_TYPE_SOURCE(KnMF##Name, KnMField)                                                           \
    template class KnMFieldOf<ValueType>;
KN_MFIELD_TYPES(KN_MFIELD_SOURCE)
#undef KN_MFIELD_SOURCE
