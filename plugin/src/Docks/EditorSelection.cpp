// SPDX-License-Identifier: BSD-3-Clause
#include "EditorSelection.h"

#include "CrvEditor.h"

CrvEditor* selectEditor(
    const std::map<CrvExtension*, CrvProfileSetting*>& extensions, const KnType& objectType)
{
    CrvEditor* best = nullptr;
    for (const auto& [extension, setting] : extensions) {
        auto* const editor = dynamic_cast<CrvEditor*>(extension);
        if (!editor || !objectType.isDerivedFrom(editor->getHandledType()))
            continue;
        if (!best || editor->getHandledType().isDerivedFrom(best->getHandledType()))
            best = editor;
    }
    return best;
}
