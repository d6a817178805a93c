// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "EditorFixture.h"

/// What the common road needs to know of one editor. The field is that of the test node which is
/// named after its type.
struct EditorCase {
    const char* type; ///< of the field, such as "SFBool"
    const char* start; ///< text that the field gets first
    const char* line = nullptr; ///< object name of the lines, of which the last is edited
    const char* typed = nullptr; ///< into the line; Return follows
    void (*act)(EditorFixture& fixture) = nullptr; ///< edits otherwise than by typing
    const char* edited; ///< text of the field after the edit
    int commands = 1; ///< that the edit puts on the stack; 0 for an edit that can't be undone
    const char* outside; ///< text written from outside, while the editor is shown
    QString (*read)(EditorFixture& fixture)
        = nullptr; ///< null reads the lines, or the cells of an array
    // What a person reads in the inputs; null if it is the text of the field.
    const char* shownAtStart = nullptr;
    const char* shownEdited = nullptr;
    const char* shownOutside = nullptr;

    /// Edits as a person would, with mouse and keys.
    void edit(EditorFixture& fixture) const;
    /// What a person reads in the inputs.
    QString shown(EditorFixture& fixture) const;
};

Q_DECLARE_METATYPE(EditorCase)

/// Makes the cases of all editors the rows of a test, in a column "row".
void addEditorRows(bool withArrays = true);
