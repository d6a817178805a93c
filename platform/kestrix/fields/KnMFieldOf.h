// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMField.h"

#include <concepts>
#include <cstdint>
#include <vector>

class KnTextReader;

/// Whether a value type extends a plain one that it can be made of, as a KbColor does a KbVec3f.
template <class Value, class Plain>
concept KnExtends = std::derived_from<Value, Plain> && std::constructible_from<Value, const Plain&>;

/// What all multi-value field classes share: the values in one contiguous array, and their text by
/// the text form of the value type. A field class adds its type and nothing else; see KnMFields.h.
template <class FieldValue>
class KnMFieldOf : public KnMField {
public:
    using Value = FieldValue;

    int getNum() const override { return static_cast<int>(m_values.size()); }
    void setNum(int num) override;

    /// `row` is from 0 to `getNum() - 1`; nothing is checked.
    const Value& operator[](int row) const { return m_values[static_cast<std::size_t>(row)]; }
    /// All values, in order; the pointer holds until the array changes its length.
    const Value* getValues() const { return m_values.data(); }
    /// Writes one row. A row at or beyond the end makes the array longer, with default values in
    /// between; a negative one is ignored.
    void set1Value(int row, const Value& value);
    /// The same with a plain value that the value type extends.
    template <class Plain>
    requires KnExtends<Value, Plain>
    void set1Value(int row, const Plain& value) { set1Value(row, Value(value)); }
    /// Writes `num` rows from `start` on, making the array longer where needed.
    void setValues(int start, int num, const Value* values);

    using KnMField::set;
    using KnMField::set1;
    void get(KbString& text) const override;
    bool set(const KbString& text) override;
    bool get1(int row, KbString& text) const override;
    bool set1(int row, const KbString& text) override;
    void insertValues(int start, int num) override;
    void removeValues(int start, int num) override;

    std::unique_ptr<KnRows> copyRows(int start, int num) const override;
    bool holdsRows(int start, const KnRows& rows) const override;
    void writeRows(int start, const KnRows& rows) override;

private:
    class Rows;

    /// Changes the array to so many values. False, after a KnMemoryError, if there is no memory for
    /// them.
    template <class Change>
    bool changeLength(std::int64_t num, const Change& change);
    bool resize(std::int64_t num);
    static bool readArray(KnTextReader& reader, std::vector<Value>& values);

    std::vector<Value> m_values;
};
