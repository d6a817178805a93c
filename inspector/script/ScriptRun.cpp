// SPDX-License-Identifier: BSD-3-Clause
#include "ScriptRun.h"

#include "SceneReader.h"
#include "SceneWriter.h"

bool ScriptRun::run(QByteArray* output, QString* error) const
{
    SceneReader reader;
    const KnNodePtr root = scene.isEmpty() ? reader.readStarter() : reader.readFile(scene);
    if (!root) {
        *error = reader.errorText();
        return false;
    }
    SceneScript script({ root.get() });
    if (!script.run(steps)) {
        *error = script.errorText();
        return false;
    }
    SceneWriter writer;
    if (!saveFile.isEmpty() && !writer.writeFile(*root.get(), saveFile)) {
        *error = writer.errorText();
        return false;
    }
    *output = script.output();
    return true;
}
