// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvExtension.h"

class CrvEditor;
class KnTypedObject;
class QDockWidget;

/// What the field dock and the node dock share: one dock window that shows, for the selected
/// object, the most specific of the editors that the active profile places under this extension.
/// A subclass says which selection it follows.
class CrvEditorDock : public CrvExtension {
    Q_OBJECT
public:
    void activate() override;
    /// Releases the editor shown, so that its frame survives the dock.
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

protected:
    /// `name` is the extension's name and the title of the dock.
    CrvEditorDock(const char* name, const char* description);

    /// Releases the editor shown so far and shows the best one for `object`; null, or an object
    /// that no editor handles, leaves the dock hidden.
    void showEditorFor(KnTypedObject* object);

    /// Connects the host's selection signal to the subclass's slot.
    virtual void connectSelection() = 0;
    virtual void disconnectSelection() = 0;

private:
    void releaseEditor();

    QDockWidget* m_dockWidget = nullptr; // owned, from load to unload; the shell only shows it
    CrvEditor* m_currentEditor = nullptr; // not owned
    bool m_releasing = false; // while releaseEditor runs
};
