// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "EditorFixture.h"

#include <vector>

/// What the common road needs to know of one editor. The field is that of the test node which is
/// named after its type.
struct EditorRow {
    const char* type; ///< of the field, such as "SFBool"
    const char* editor; ///< object name of the editor that must be shown
    const char* start; ///< text that the field gets first
    /// Edits as a person would, with mouse and keys.
    void (*edit)(EditorFixture& fixture);
    const char* edited; ///< text of the field after the edit
    int commands; ///< that the edit puts on the stack; 0 for an edit that can't be undone
    /// What a person reads in the inputs.
    QString (*shown)(EditorFixture& fixture);
    const char* shownAtStart;
    const char* shownEdited;
    const char* outside; ///< text written from outside, while the editor is shown
    const char* shownOutside;
};

std::vector<EditorRow> singleValueRows();
std::vector<EditorRow> compoundRows();
std::vector<EditorRow> arrayRows();

// Input and reading that the rows share.

/// Puts `text` into a line edit as a person would, in place of what it holds; Return follows.
void typeInto(QWidget* lineEdit, const QString& text);
/// The texts of line edits of the editor shown, by object name, in the order of their creation.
QString linesShown(EditorFixture& fixture, const char* objectName);
