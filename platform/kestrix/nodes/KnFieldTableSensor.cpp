// SPDX-License-Identifier: BSD-3-Clause
#include "KnFieldTableSensor.h"

KnNodesSensor::List KnFieldTableSensor::attachedSensors;
