// SPDX-License-Identifier: BSD-3-Clause
#include "CrvMFSetFieldValueCommand.h"

CrvMFSetFieldValueCommand::CrvMFSetFieldValueCommand(KnMField* field, int row)
    : ValueCommand({ field, row })
{
}
