// SPDX-License-Identifier: BSD-3-Clause
#include "KnNameSensor.h"

KnNodesSensor::List KnNameSensor::attachedSensors;
