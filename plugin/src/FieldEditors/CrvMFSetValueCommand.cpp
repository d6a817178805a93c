// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFSetValueCommand.h"

CrvMFSetValueCommand::CrvMFSetValueCommand(KnMField* field, int row, KbString& oldValue)
    : ValueCommand({ field, row }, oldValue)
{
}
