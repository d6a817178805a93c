// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfIntegerSliderOf.h"

class QIntValidator;

/// The slider of signed whole numbers; position and value are the same number.
class WfIntSlider : public WfIntegerSliderOf<WfIntSlider, int> {
public:
    enum Kind { Int32 = 1, Int16 = 3 };

    /// `kind` fixes the limits of the type; any other number leaves those of `int`.
    WfIntSlider(
        int kind, int inTable, CrvFieldEditors* owner, QWidget* parent, int row, int column);

    int typeBottom() const;
    int typeTop() const;
    void limitType(int min, int max);
    void baseDetected();
    static int positionOf(int value) { return value; }
    static int valueOf(int position) { return position; }

protected:
    void updateValueFromEdit() override;
    void saveOldValue() override;

private:
    QIntValidator* m_validator; // child of the line, which uses it for decimal texts only
};
