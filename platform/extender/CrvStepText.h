// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

struct CrvChanges;
class KnField;

/// What a step has done, in one line: "Desk lamp.intensity: 0.65 → 0.8". Long values are cut short.
/// Empty if nothing is known.
QString stepText(const CrvChanges& changes);
/// For a step of which only the field is known: "Edit Desk lamp.intensity". `field` may be null.
QString editText(const KnField* field);
