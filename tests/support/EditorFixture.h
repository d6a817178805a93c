// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvDefaults.h"
#include "KnTestNode.h"
#include "TestShell.h"

#include <QFrame>
#include <QTest>

#include <memory>

class QUndoStack;

/// Fails the running test function at any Qt warning but the offscreen platform's own notice. To be
/// called in `init`.
void failOnWarnings();

/// A real host with the plug-in loaded under its profile "Everything", real docks in a window, and
/// two nodes with a field of every type: a test selects a field, clicks, and looks at the field,
/// the widgets and the undo stack.
class EditorFixture {
public:
    /// The window is shown and active when the constructor returns.
    EditorFixture();
    /// Unloads the plug-in; no top-level widget is left then.
    ~EditorFixture();

    /// The field of that type, such as "SFBool", of the first and of the second node.
    KnField* field(const char* type) { return m_node->getField(type); }
    KnField* otherField(const char* type) { return m_otherNode->getField(type); }
    KnTestNode& node() { return *m_node; }
    KnTestNode& otherNode() { return *m_otherNode; }

    /// Selects as the scene tree would, and lets everything settle.
    void select(KnField* field);
    /// The editor shown in the field dock; null if none.
    CrvFieldEditors* editor() const;
    /// A widget of the editor shown, by object name, of which it fails the test to have none.
    template <class Widget>
    Widget* child(const char* objectName) const
    {
        Widget* const found = editor()
            ? editor()->getFrame()->findChild<Widget*>(QLatin1String(objectName))
            : nullptr;
        if (!found)
            qFatal("no widget %s in the editor shown", objectName);
        return found;
    }

    static void settle() { TestShell::settle(); }
    static QString text(const KnField* field);
    /// Writes as another part of the program would, and lets everything settle.
    static void write(KnField* field, const char* text);

    QUndoStack& undoStack() const;
    void undo();
    void redo();

    TestShell& shell() { return m_shell; }
    CrvDefaults& plugin() { return *m_plugin; }

private:
    TestShell m_shell;
    std::unique_ptr<CrvDefaults> m_plugin;
    KnTestNode* m_node; // a reference is held
    KnTestNode* m_otherNode; // a reference is held
};
