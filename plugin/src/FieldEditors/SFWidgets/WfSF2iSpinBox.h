// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFColumnBox.h"

class QSpinBox;

/// Base of the editors of two integers: two spin boxes, which apply every change of value, even
/// while a person is typing.
class WfSF2iSpinBox : public WfSFColumnBox {
    Q_OBJECT
public:
    /// The numbers that the boxes take, all of them signed.
    enum RangeKind : int {
        Int16Range = 0,
        IntRange = 1, ///< the same as Int32Range
        Int32Range = 2,
    };

    explicit WfSF2iSpinBox(const char* name = nullptr);

    /// Limits both boxes to the numbers of a RangeKind. Any other number changes nothing.
    void setSpinRange(int kind);

protected:
    QWidget* makeInput(int height) override;

    template <class Number>
    void showNumbers(const Number* numbers)
    {
        for (std::size_t i = 0; i < m_boxes.size(); ++i)
            showNumber(i, numbers[i]);
    }
    int number(std::size_t column) const;

private:
    void showNumber(std::size_t column, int number);

    std::vector<QSpinBox*> m_boxes; // x, y; children of the edition frame
};
