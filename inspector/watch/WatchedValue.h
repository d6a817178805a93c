// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbName.h"
#include "KnFieldSensor.h"
#include "KnType.h"
#include "WatchSeries.h"

#include <QString>

class KnFieldContainer;
class WatchClock;
struct FieldNumbers;

/// One number of a field that is watched over time. It samples each time the field's sensor runs
/// and holds no reference on the node.
class WatchedValue : public KnFieldSensor {
public:
    /// Samples nothing before `start`. `color` is a number for watchColor; the clock outlives this
    /// object.
    WatchedValue(
        KnField& field, const FieldNumbers& numbers, int component, int color, WatchClock& clock);
    ~WatchedValue() override;

    /// "Desk lamp.intensity", as the node was named when it was added.
    const QString& name() const { return m_name; }
    int color() const { return m_color; }
    const WatchSeries& series() const { return m_series; }
    /// The node is no more; what was sampled stays.
    bool isGone() const { return m_gone; }
    bool isNumberOf(const KnField& field, int component) const;
    /// As in the fields' texts.
    QString text(double value) const;
    /// For tables: never in hexadecimal.
    QString decimalText(double value) const;

    /// The node as it was known last; only to be compared with nodes that are alive.
    const KnFieldContainer* lastNode() const { return m_node; }
    /// Whether a node, which lies where the last known one lay, is that one.
    bool isOfNode(const KnFieldContainer& node) const;

    /// Takes a sample, and one whenever the field changes from now on. The node must be alive.
    void start();
    /// Detaches; the curve has a gap until the next `start`.
    void stop();
    /// What the field holds isn't known from here to the next sample.
    void interrupt();
    /// Takes a sample, if the field is attached.
    void resume();
    /// A person may have edited the field: if that has changed this number, the next sample counts
    /// as edited.
    void noteEdit();
    /// The node has died.
    void setGone();

protected:
    void fieldDestroyed() override { setGone(); }

private:
    static void fieldChanged(void* data, KnSensor* sensor);
    double readNumber() const;
    bool differs(double value) const;
    void take();

    const FieldNumbers& m_numbers;
    const int m_component;
    const int m_color;
    WatchClock& m_clock;
    // Not owned; they may be dead while the sensor isn't attached.
    KnField* const m_field;
    const KnFieldContainer* const m_node;
    const KnType m_nodeType;
    const KbName m_nodeName;
    const QString m_name;
    WatchSeries m_series;
    bool m_edited = false; // the next sample is
    bool m_gone = false;
};
