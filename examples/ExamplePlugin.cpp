// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPlugin.h"
#include "SceneViewDock.h"
#include "TransformEditor.h"

#include <QtGlobal>

namespace {

/// What the host loads. The built-in profiles place every editor under both editor docks, and the
/// profile "Everything" shows whatever else a plug-in brings.
class ExamplePlugin : public CrvPlugin {
public:
    ExamplePlugin()
    {
        m_name = "Example";
        m_description = "Adds one node editor, and a view of the scene.";
        m_author = "Orbel";
        m_version = "1.0.0";
    }

    void load() override
    {
        addExtension(&m_transformEditor);
        addExtension(&m_sceneView);
        CrvPlugin::load();
    }

private:
    TransformEditor m_transformEditor;
    SceneViewDock m_sceneView;
};

ExamplePlugin* plugin = nullptr; // owned, from loadPlugin to unloadPlugin

} // namespace

extern "C" Q_DECL_EXPORT CrvPlugin* loadPlugin()
{
    plugin = new ExamplePlugin;
    return plugin;
}

extern "C" Q_DECL_EXPORT void unloadPlugin()
{
    delete plugin;
    plugin = nullptr;
}
