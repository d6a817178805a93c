// SPDX-License-Identifier: BSD-3-Clause
#include "StepKinds.h"

#include "StepRandom.h"

const std::vector<StepKind>& stepKinds()
{
    static const std::vector<StepKind> all = [] {
        std::vector<StepKind> kinds;
        for (const auto& part : { inputSteps(), editSteps(), programSteps() })
            kinds.insert(kinds.end(), part.begin(), part.end());
        return kinds;
    }();
    return all;
}

const StepKind& chooseStepKind(StepRandom& random)
{
    int sum = 0;
    for (const StepKind& kind : stepKinds())
        sum += kind.weight;
    int drawn = random.below(sum);
    for (const StepKind& kind : stepKinds()) {
        drawn -= kind.weight;
        if (drawn < 0)
            return kind;
    }
    return stepKinds().back();
}
