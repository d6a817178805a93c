// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>

#include <functional>
#include <optional>

/// The times of the samples, in seconds since the first one.
class WatchClock : public QObject {
    Q_OBJECT
public:
    /// Seconds that never run backwards.
    using Source = std::function<double()>;

    explicit WatchClock(QObject* parent = nullptr);

    /// std::chrono::steady_clock unless somebody sets another one, before the first sample.
    void setSource(Source source) { m_source = std::move(source); }

    /// The time of a sample that is being taken. What is sampled within a millisecond shares its
    /// time, so that what a program writes in one go stands in one line.
    double stamp();
    /// The time of the latest sample.
    double latest() const { return m_latest; }
    /// The next stamp is announced again.
    void acknowledge() { m_announced = false; }

Q_SIGNALS:
    /// The first sample since `acknowledge`.
    void stamped();

private:
    Source m_source;
    std::optional<double> m_epoch; // none before the first sample
    double m_latest = 0;
    bool m_announced = false;
};
