// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

class CrvProfile;
class QSettings;

/// Keeps which profile a person chose from one start to the next.
class ProfileMemory : public QObject {
    Q_OBJECT
public:
    /// `settings` outlives this object. From now on each profile that becomes active is kept.
    ProfileMemory(QSettings* settings, QObject* parent);

    /// The one chosen last time, of those that there are now; null if there is none.
    static CrvProfile* lastProfile(const QSettings& settings);
    /// Makes it active, if there is one. `settings` may be null.
    static void chooseLast(const QSettings* settings);
};
