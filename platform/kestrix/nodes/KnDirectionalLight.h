// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnLight.h"

/// A light from far away, whose rays are parallel.
class KnDirectionalLight : public KnLight {
    KN_NODE(KnDirectionalLight)
    KnSFVec3f direction; ///< in which the rays run
};
