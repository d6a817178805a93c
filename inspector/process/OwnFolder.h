// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

/// Where a file of that name lies beside the library that this is part of: next to it, or in the
/// folder of the libraries when this is part of a program in a build tree, or else in the folder of
/// plug-ins of an installed one, whether it exists or not.
QString ownFile(const QString& name);
