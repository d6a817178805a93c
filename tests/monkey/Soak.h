// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ResourceUse.h"

#include <QtGlobal>

#include <vector>

class Stage;

/// A person who plays for hours in one window, in a program whose scene moves 60 times a second and
/// whose numbers are watched. After each round, with a fresh scene and tidied up, the process must
/// hold what it held after the one before.
class Soak {
public:
    explicit Soak(quint64 seed)
        : m_seed(seed)
    {
    }

    /// False if something grows, or if no editor could be compared. Prints the samples.
    bool run(double minutes);

private:
    bool judge() const;

    quint64 m_seed;
    std::vector<ResourceUse> m_samples; // after the warming up
};
