// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vector>

class Stage;
class StepRandom;

/// One kind of thing that may happen to the program. What exactly a step does follows from its
/// random numbers and from what is on the screen; where it finds nothing to do, it does nothing.
struct StepKind {
    enum class By {
        Person, ///< mouse and keys
        Host, ///< selections by the program, plug-ins, a new start
        Scene, ///< the program changes its scene, which no undo takes back
    };

    const char* name;
    int weight;
    By by;
    /// Whether it can also happen while a dialog or a menu is open.
    bool inDialogs;
    void (*run)(Stage& stage, StepRandom& random);
};

/// All kinds.
const std::vector<StepKind>& stepKinds();
/// Draws one by the weights.
const StepKind& chooseStepKind(StepRandom& random);

// The parts of the table, by what they need.
std::vector<StepKind> inputSteps();
std::vector<StepKind> editSteps();
std::vector<StepKind> programSteps();
