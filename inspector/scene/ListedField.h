// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnFieldSensor.h"

#include <QColor>
#include <QString>

#include <deque>
#include <optional>
#include <vector>

class FieldDefaults;
class KnField;
struct SharedField;

/// A row of the list of fields: one field, or the same one of several nodes, and perhaps that of
/// another node to compare it with. What the row shows is read when somebody asks, and kept until a
/// field changes.
class ListedField {
public:
    /// Is told that one of the fields of a row has changed.
    class Listener {
    public:
        virtual void fieldChanged(ListedField& row) = 0;

    protected:
        ~Listener() = default;
    };

    /// What the list shows of a row.
    struct Shown {
        QString value;
        bool isMixed = false; // the nodes don't agree; the value stands for that
        bool isIgnored = false;
        bool isReadOnly = false;
        bool isLink = false; // leads to another node
        bool isChanged = false; // differs from the default in one of the nodes
        Qt::CheckState check = Qt::Unchecked; // of a truth value
        QColor color; // of a color; invalid for anything else
        QString other; // the value of the other node
        bool differs = false; // from that value

        friend bool operator==(const Shown&, const Shown&) = default;
    };

    /// `shared` has the fields of the nodes, that of the selected node first. If two nodes are
    /// `compared`, the last one is what to compare with, and may be null. The fields, the listener
    /// and the defaults outlive this object.
    ListedField(
        Listener& listener, FieldDefaults& defaults, const SharedField& shared, bool compared);
    ListedField(const ListedField&) = delete;
    ListedField& operator=(const ListedField&) = delete;

    /// Whether the row was made of just these fields.
    bool isOf(const SharedField& shared) const;
    const QString& name() const { return m_name; }
    /// That of the selected node.
    KnField& field() const { return *m_fields.front(); }
    const std::vector<KnField*>& fields() const { return m_fields; }
    bool isBool() const;
    /// Whether a person can write it in none of the nodes.
    bool isReadOnly() const;
    /// Whether the default is known in one of the nodes.
    bool hasDefault() const;

    const Shown& shown();
    /// Whether what was shown last differs from the default; false before anybody has asked.
    bool isShownChanged() const { return m_shown && m_shown->isChanged; }
    /// Reads again what was shown; true if that is something else now.
    bool readAgain();
    /// Whether what is shown leaves something out, which may then have changed.
    bool leavesOut();

    int number = 0; // its place in the list
    // When the row has last changed, for its light.
    qint64 changedAt = 0; // by the model's clock, in milliseconds
    bool isLit = false;
    bool waits = false; // to be read again

private:
    static void sensorRan(void* data, KnSensor* sensor);
    Shown read() const;
    void watch();

    Listener& m_listener;
    FieldDefaults& m_defaults;
    QString m_name;
    std::vector<KnField*> m_fields; // never empty
    KnField* m_other = nullptr;
    std::optional<Shown> m_shown;
    // Of the selected node's field, and of all others. They are watched when what they hold is
    // shown for the first time.
    KnFieldSensor m_sensor;
    std::deque<KnFieldSensor> m_otherSensors;
};
