// SPDX-License-Identifier: BSD-3-Clause
#include "EditorPanes.h"

#include "CrvEditor.h"
#include "CrvPluginsManager.h"

#include <QDockWidget>

#include <vector>

namespace {

QDockWidget* dockOf(const CrvEditor* editor)
{
    const QWidget* const widget = editor->getWidget();
    return widget ? qobject_cast<QDockWidget*>(widget->parentWidget()) : nullptr;
}

std::vector<CrvEditor*> editors()
{
    std::vector<CrvEditor*> editors;
    for (CrvExtension* extension : CrvPluginsManager::getInstance()->getExtensions()) {
        auto* const editor = dynamic_cast<CrvEditor*>(extension);
        if (editor && editor->getEditedObject() && dockOf(editor))
            editors.push_back(editor);
    }
    return editors;
}

} // namespace

CrvEditor* EditorPanes::editorIn(const QDockWidget* dock)
{
    for (CrvEditor* editor : editors()) {
        if (dockOf(editor) == dock)
            return editor;
    }
    return nullptr;
}

QDockWidget* EditorPanes::dockFor(const KnTypedObject* object)
{
    for (const CrvEditor* editor : editors()) {
        if (editor->getEditedObject() == object)
            return dockOf(editor);
    }
    return nullptr;
}

QList<QDockWidget*> EditorPanes::docks()
{
    QList<QDockWidget*> docks;
    for (const CrvEditor* editor : editors())
        docks.append(dockOf(editor));
    return docks;
}

ClosedEditors::ClosedEditors()
{
    for (QDockWidget* dock : EditorPanes::docks()) {
        if (dock->isHidden())
            m_closed.append(dock);
    }
}

ClosedEditors::~ClosedEditors()
{
    for (const QPointer<QDockWidget>& dock : m_closed) {
        if (dock)
            dock->hide();
    }
}
