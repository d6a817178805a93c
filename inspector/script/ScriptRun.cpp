// SPDX-License-Identifier: BSD-3-Clause
#include "ScriptRun.h"

#include "SceneReader.h"
#include "SceneRoots.h"
#include "SceneWriter.h"

#include <utility>
#include <vector>

bool ScriptRun::run(QByteArray* output, QString* error) const
{
    SceneReader reader;
    std::vector<KnNodePtr> roots { scene.isEmpty() ? reader.readStarter()
                                                   : reader.readFile(scene) };
    if (!roots.front()) {
        *error = reader.errorText();
        return false;
    }
    for (KnNodePtr& further : reader.takeFurtherRoots())
        roots.push_back(std::move(further));
    SceneScript script(plainRoots(roots));
    if (!script.run(steps)) {
        *error = script.errorText();
        return false;
    }
    SceneWriter writer;
    if (!saveFile.isEmpty() && !writer.writeFile(roots, saveFile)) {
        *error = writer.errorText();
        return false;
    }
    *output = script.output();
    return true;
}
