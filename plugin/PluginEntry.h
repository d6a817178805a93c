// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class CrvPlugin;

extern "C" {
/// Makes the one CrvDefaults object and returns it. The host hands it back to unloadPlugin.
CrvPlugin* loadPlugin();
/// Destroys the object that loadPlugin made, if there is one.
void unloadPlugin();
}
