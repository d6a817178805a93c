// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfIntegerSliderOf.h"

/// The slider of unsigned whole numbers. The lowest position of the scale stands for 0, the highest
/// for 4294967295. The line has no validator; the limits apply when its text is read.
class WfUIntSlider : public WfIntegerSliderOf<WfUIntSlider, unsigned int> {
public:
    enum Kind { UInt32 = 2, UInt16 = 4 };

    /// `kind` fixes the limits of the type; anything but UInt16 means 32 bits.
    WfUIntSlider(
        int kind, int inTable, CrvFieldEditors* owner, QWidget* parent, int row, int column);

    unsigned int typeBottom() const { return m_bottom; }
    unsigned int typeTop() const { return m_top; }
    void limitType(unsigned int min, unsigned int max);
    void baseDetected() { }
    static int positionOf(unsigned int value) { return SliderMath::unsignedPosition(value); }
    static unsigned int valueOf(int position) { return SliderMath::unsignedValue(position); }

protected:
    void updateValueFromEdit() override;
    void saveOldValue() override;

private:
    unsigned int m_top;
    unsigned int m_bottom = 0;
};
