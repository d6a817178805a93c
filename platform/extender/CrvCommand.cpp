// SPDX-License-Identifier: BSD-3-Clause
#include "CrvCommand.h"

CrvCommand::~CrvCommand() = default;
