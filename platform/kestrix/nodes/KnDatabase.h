// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The kernel as a whole.
class KnDatabase {
public:
    /// Registers all types that the kernel brings, so that KnType::fromName finds them. The host
    /// calls it when it starts; a program without the host that looks types up by name calls it
    /// first. Called again, it does nothing.
    static void init();
};
