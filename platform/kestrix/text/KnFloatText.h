// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Whether `knWriteFloat` takes this number: any from 1e-4 to below 2^22, with either sign. That is
/// where the numbers of a scene are, for the most part.
inline bool knIsPlainFloat(float value)
{
    const float magnitude = value < 0 ? -value : value;
    return magnitude >= 1e-4F && magnitude < 4194304.0F;
}

/// Writes what std::to_chars writes in plain notation, the shortest decimal text that reads back to
/// the same number and of these the nearest to it, but several times faster. `next` has room for 32
/// characters, more than are needed. Gives the end of what was written.
char* knWriteFloat(char* next, float value);
