// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

class QWidget;

/// Compares what the tree and the list of fields show with the scene itself: each row that can be
/// seen, and its place.
namespace PanelOracle {

/// Empty if they agree. What the list leaves out of a long value it reads again only now and then,
/// so it may take a moment until they do.
QString check(QWidget* window);

} // namespace PanelOracle
