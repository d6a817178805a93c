// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvExtension.h"

class QDockWidget;
class SceneView;

/// A dock with a view of the scene that the host shows.
class SceneViewDock : public CrvExtension {
    Q_OBJECT
public:
    SceneViewDock();

    void load() override;
    void activate() override;
    void show() override;
    void hide() override;
    void deactivate() override;
    void unload() override;

private:
    void takeRoots();

    QDockWidget* m_dock = nullptr; // owned, from load to unload
    SceneView* m_view = nullptr; // child of the dock
};
