// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The range of values that a numeric editor starts with, a plain value. Only the pair for the
/// field's type is set; the others stay 0.
class FieldRange {
public:
    void setFloatRange(float min, float max);
    /// Narrows both limits to 32 bits.
    void setDoubleRange(double min, double max);
    void setIntRange(int min, int max);
    void setBounded(bool bounded) { m_bounded = bounded; }

    float getFloatMin() const { return m_floatMin; }
    float getFloatMax() const { return m_floatMax; }
    float getDoubleMin() const { return m_doubleMin; }
    float getDoubleMax() const { return m_doubleMax; }
    int getIntMin() const { return m_intMin; }
    int getIntMax() const { return m_intMax; }
    /// True: the limits hold. False: they are a starting range that a slider may grow.
    bool isBounded() const { return m_bounded; }

    friend bool operator==(const FieldRange&, const FieldRange&) = default;

private:
    float m_floatMin = 0;
    float m_floatMax = 0;
    float m_doubleMin = 0;
    float m_doubleMax = 0;
    int m_intMin = 0;
    int m_intMax = 0;
    bool m_bounded = false;
};
