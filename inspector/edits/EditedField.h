// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvServices.h"
#include "KnSensorQueue.h"

/// To be called when a person's edit has written a field. While the host is paused, the services
/// run the sensors of the selected field alone, and an edit of several fields is to be seen as
/// well.
inline void announceEdit(const KnField& field)
{
    if (CrvServices::getInstance()->isPaused())
        KnSensorQueue::getInstance().processField(&field);
}
