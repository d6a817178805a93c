// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QString;

/// The file of the default extensions, beside the file that holds this function: so a program finds
/// them wherever it lies itself. The file need not exist.
QString defaultPluginFile();
