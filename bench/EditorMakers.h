// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <map>
#include <memory>
#include <string>

class CrvFieldEditors;

using EditorMaker = std::unique_ptr<CrvFieldEditors> (*)();

/// For each of the plug-in's field editors, by extension name: makes another one, without its
/// widgets so far.
std::map<std::string, EditorMaker> editorMakers();
