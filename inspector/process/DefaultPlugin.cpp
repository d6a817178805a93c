// SPDX-License-Identifier: BSD-3-Clause
#include "DefaultPlugin.h"

#include "OwnFolder.h"

QString defaultPluginFile() { return ownFile(QStringLiteral(CORVANE_PLUGIN_FILE)); }
