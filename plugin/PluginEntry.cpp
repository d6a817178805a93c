// SPDX-License-Identifier: BSD-3-Clause
#include "PluginEntry.h"

#include "CrvDefaults.h"

namespace {
CrvDefaults* s_plugin = nullptr; // owned, from loadPlugin to unloadPlugin
}

CrvPlugin* loadPlugin()
{
    s_plugin = new CrvDefaults;
    return s_plugin;
}

void unloadPlugin()
{
    delete s_plugin;
    s_plugin = nullptr;
}
