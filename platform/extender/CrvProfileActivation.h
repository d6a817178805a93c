// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>
#include <vector>

class CrvExtension;

/// Keeps the active extensions in line with what the active profile wants. An extension may change
/// plug-ins and profiles from within `activate` and `deactivate`: that ends the round under way,
/// and the next one goes for the newest state. Selections wait until all docks have come and gone.
class CrvProfileActivation {
public:
    /// What is to be active, in the order of activation; asked for at the start of each round.
    using Wanted = std::function<std::vector<CrvExtension*>()>;

    explicit CrvProfileActivation(Wanted wanted);
    CrvProfileActivation(const CrvProfileActivation&) = delete;
    CrvProfileActivation& operator=(const CrvProfileActivation&) = delete;

    /// Deactivates what isn't wanted any more, activates what is wanted now, and announces the
    /// selection again. False if an update is under way already, which takes the change in.
    bool update();
    /// The next update deactivates all extensions first, also those that stay.
    void renewAll() { m_renewAll = true; }
    /// Deactivates everything, the last one first, and runs `unload` before anything can become
    /// active again. Afterwards nothing is selected.
    void shutDown(const std::function<void()>& unload);

    /// Whether extensions are being activated or deactivated.
    bool isBusy() const { return m_busy; }
    bool hasActiveExtensions() const { return !m_active.empty(); }

private:
    void runRound();

    const Wanted m_wanted;
    std::vector<CrvExtension*> m_active; // in the order of their activation; not owned
    bool m_busy = false;
    bool m_interrupted = false; // what is to be active changed during the round
    bool m_renewAll = false;
};
