// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnGroupSensor.h"

#include <QString>

#include <unordered_map>

class KnFieldContainer;

/// Says which nodes a filter text lets through: those whose name or type contains it, upper or
/// lower case, and those above them. It looks no further than an answer needs, remembers what a
/// group was found to be, and watches the groups on which its answers rest.
class NodeFilter {
public:
    /// The callback says that an answer may not hold any more. It gets `data`, and runs from the
    /// kernel's queue.
    NodeFilter(KnSensor::Callback changed, void* data);

    /// An empty text lets everything through.
    void setText(const QString& text);
    const QString& text() const { return m_text; }

    bool accepts(KnFieldContainer* node);

    /// From here on answers are found anew.
    void begin() { ++m_round; }
    /// Forgets the groups that nobody has asked for since `begin`.
    void end();

private:
    struct Answer {
        Answer(KnSensor::Callback changed, void* data);

        KnGroupSensor sensor; // attached to nothing once the group has died
        unsigned round = 0;
        bool accepted = false;
    };

    bool matches(const KnFieldContainer& node) const;

    KnSensor::Callback m_changed;
    void* m_data; // not owned
    QString m_text;
    unsigned m_round = 1;
    std::unordered_map<const KnGroup*, Answer> m_answers;
};
