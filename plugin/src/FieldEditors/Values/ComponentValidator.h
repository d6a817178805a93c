// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QLineEdit;

/// Gives a line for one component of a compound value its validator, whose parent is the line:
/// 0 none, 1 signed 16 bits, 2 signed 32 bits, 3 float with 6 decimals, 4 double. Any other kind
/// leaves the line as it is.
void setComponentValidator(int kind, QLineEdit* line);
