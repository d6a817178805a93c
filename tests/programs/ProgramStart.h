// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Brings a known program where it is worth looking at, by its own input: designer gets a new form.
/// Called again and again until it answers that the program is there.
bool programIsReady();
