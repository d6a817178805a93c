// SPDX-License-Identifier: BSD-3-Clause
#pragma once

/// Keeps the program's translators away from the inspector's texts. A program may well translate
/// "&File" of a class MainWindow, and the inspector's window would speak two languages.
///
/// This library stands before Qt's when functions are looked up, so calls for translations pass
/// through here; those from the inspector's files get the text as it stands.
namespace OwnTexts {

/// Finds the files of the inspector that are loaded by now; to be called again when others may have
/// been.
void findFiles();

} // namespace OwnTexts
