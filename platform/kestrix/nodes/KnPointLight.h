// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnLight.h"

/// A light that shines from one point in all directions.
class KnPointLight : public KnLight {
    KN_NODE(KnPointLight)
    KnSFVec3f location;
    KnSFVec3f attenuation; ///< quadratic, linear and constant factors
};
