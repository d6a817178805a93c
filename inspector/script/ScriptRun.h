// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SceneScript.h"

/// A script on a scene file: reads the file, takes the steps and saves, all or nothing. It needs no
/// application object.
struct ScriptRun {
    QString scene; ///< empty: the scene that the program starts with
    QList<SceneScript::Step> steps;
    QString saveFile; ///< may be the scene itself; empty if nothing is to be saved

    bool isEmpty() const { return steps.isEmpty() && saveFile.isEmpty(); }
    /// False, with no file written, as soon as something is refused; `error` says why. Otherwise
    /// `output` is that of SceneScript.
    bool run(QByteArray* output, QString* error) const;
};
