// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Whether the file of a program or library, by its path, is one of the inspector's: this library
/// or one that came with it.
bool isOwnFile(const char* path);
