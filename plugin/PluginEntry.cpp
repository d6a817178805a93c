// SPDX-License-Identifier: BSD-3-Clause
#include "PluginEntry.h"

#include "CrvDefaults.h"

namespace {
CrvDefaults* plugin = nullptr; // owned, from loadPlugin to unloadPlugin
}

CrvPlugin* loadPlugin()
{
    plugin = new CrvDefaults;
    return plugin;
}

void unloadPlugin()
{
    delete plugin;
    plugin = nullptr;
}
