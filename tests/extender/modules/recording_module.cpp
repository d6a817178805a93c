// SPDX-License-Identifier: BSD-3-Clause
#include "RecordingPlugin.h"

static RecordingPlugin* plugin = nullptr; // owned, from loadPlugin to unloadPlugin

extern "C" CrvPlugin* loadPlugin()
{
    plugin = new RecordingPlugin;
    plugin->add({ "Console", "Field Editor" });
    return plugin;
}

extern "C" void unloadPlugin() { delete std::exchange(plugin, nullptr); }
