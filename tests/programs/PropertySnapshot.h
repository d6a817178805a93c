// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include <vector>

class QMetaProperty;

/// Whether two values are the same, floating-point numbers to the bit.
bool isSameValue(const QVariant& a, const QVariant& b);
/// What a report shows of a value.
QString textOf(const QVariant& value);

/// All that can be read of the program's objects at one moment.
class PropertySnapshot {
public:
    static PropertySnapshot take();

    /// A line for each property that has another value by now.
    QStringList changes() const;
    int count() const;

private:
    struct Entry {
        QPointer<QObject> object;
        QList<QVariant> values; // by index of property
    };
    std::vector<Entry> m_entries;
};
