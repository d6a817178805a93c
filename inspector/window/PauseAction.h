// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QAction>

/// Holds and releases what the window shows of the scene, and is checked while it is held.
class PauseAction : public QAction {
    Q_OBJECT
public:
    explicit PauseAction(QObject* parent);
};
