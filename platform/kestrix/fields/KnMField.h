// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"

#include <memory>

/// Base of all fields that hold an array of values. Rows count from 0.
class KnMField : public KnField {
public:
    static KnType getClassTypeId();

    virtual int getNum() const = 0;
    /// Cuts the array, or fills it up with default values.
    virtual void setNum(int num) = 0;

    /// One value as text. A row outside the array gives an empty text and false.
    virtual bool get1(int row, KbString& text) const = 0;
    /// Takes one value as text. A bad text is refused as by KnField::set, and so is a row outside
    /// the array.
    virtual bool set1(int row, const KbString& text) = 0;
    bool set1(int row, const char* text) { return set1(row, KbString(text)); }

    /// Inserts `num` default values before row `start`; a start outside 0 to `getNum()` is moved
    /// to the nearer end.
    virtual void insertValues(int start, int num) = 0;
    /// Removes the rows from `start` to `start + num - 1`, as far as the array has them.
    virtual void removeValues(int start, int num) = 0;

    /// Copies the rows from `start` to `start + num - 1`, all of which the array has.
    virtual std::unique_ptr<KnRows> copyRows(int start, int num) const = 0;
    /// Whether the array holds these rows, bit for bit, from `start` on. They come from a field of
    /// this type.
    virtual bool holdsRows(int start, const KnRows& rows) const = 0;
    /// Writes these rows from `start` on, as far as the array has them; it never gets longer. They
    /// come from a field of this type.
    virtual void writeRows(int start, const KnRows& rows) = 0;

    /// Reports that `num` rows from `start` on have changed; a `reason` of 1 means that rows were
    /// added. This touches the field.
    void valueChanged(int start, int num, int reason);

protected:
    /// Tells the sensors at once which rows were written, came or went; see
    /// KnFieldSensor::rowsReplaced.
    void reportRows(int start, int removed, int inserted);
    /// For whoever records: copies rows that are about to be written, if they are wanted.
    std::unique_ptr<KnRows> keepRows(
        int start, int num, KnFieldRecorder::Writing writing = KnFieldRecorder::Writing::Values);
    /// For whoever records: hands over what `keepRows` gave before the write.
    void recordRows(int start, int removed, int inserted, std::unique_ptr<KnRows> former,
        KnFieldRecorder::Writing writing = KnFieldRecorder::Writing::Values);
};
