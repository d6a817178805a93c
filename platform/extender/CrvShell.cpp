// SPDX-License-Identifier: BSD-3-Clause
#include "CrvShell.h"

#include <QDebug>

namespace {
CrvShell* instance = nullptr; // not owned: the object's owner destroys it
}

CrvShell* CrvShell::getInstance() { return instance; }

CrvShell::CrvShell()
{
    if (instance)
        qCritical("CrvShell: there is a shell already; extensions will not see the second one");
    else
        instance = this;
}

CrvShell::~CrvShell()
{
    if (instance == this)
        instance = nullptr;
}
