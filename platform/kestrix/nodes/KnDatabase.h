// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// The kernel as a whole.
class KnDatabase {
public:
    /// Registers all types that the kernel brings. Called again, it does nothing; a look-up of a
    /// type by name calls it.
    static void init();
};
