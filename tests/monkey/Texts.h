// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

class KnField;
class StepRandom;

/// What somebody may type into any line: numbers at the limits of the types, half texts, texts that
/// mean something elsewhere.
QString hostileText(StepRandom& random);

/// A text for a field, mostly one that it takes.
QString textFor(const KnField& field, StepRandom& random);
