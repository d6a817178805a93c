// SPDX-License-Identifier: BSD-3-Clause
#include "CrvSFSetValueCommand.h"

CrvSFSetValueCommand::CrvSFSetValueCommand(KnField* field, KbString& oldValue)
    : ValueCommand({ field }, oldValue)
{
}
