// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSliderOf.h"

class QDoubleValidator;

/// The slider of reals. Its scale is a percentage of the current range, so changing the range
/// changes what every position means.
class WfRealSlider : public WfSliderOf<WfRealSlider, double> {
public:
    /// `isFloat` fixes the limits of the type and how a value is shown.
    WfRealSlider(
        int inTable, CrvFieldEditors* owner, QWidget* parent, bool isFloat, int row, int column);

    /// A bounded range limits what may be typed; a free one allows all numbers of the type again.
    void setRange(double min, double max, bool bounded);
    using WfSlider::setValue;
    /// Shows the value and takes it as its text rounds it; the owner isn't told.
    void setValue(double value);

    void limitType(double min, double max);
    /// With an empty bounded range the scale is empty: it can't be moved, so nothing is written.
    int bottomPosition() const { return 0; }
    int topPosition() const;

protected:
    void updateEdit() override;
    void updateValueFromEdit() override;
    void updateValueFromSlider(int position) override;
    void saveOldValue() override;

private:
    QString valueText() const { return SliderMath::realText(m_value, m_isFloat); }

    QDoubleValidator* m_validator; // child of the line
    bool m_isFloat;
};
