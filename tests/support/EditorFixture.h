// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvDefaults.h"
#include "KnTestNode.h"
#include "TableInput.h"
#include "TestShell.h"

#include <QAbstractButton>
#include <QFrame>
#include <QUndoStack>

#include <memory>

/// Fails the running test function at any Qt warning but the offscreen platform's own notice. To be
/// called in `init`.
void failOnWarnings();

/// Base of the tests of editors. Each test function has a real host with the plug-in loaded under
/// its profile "Everything", real docks in a window, and two nodes with a field of every type: it
/// selects a field, clicks, and looks at the field, the widgets and the undo stack.
class EditorFixture : public QObject {
    Q_OBJECT
public:
    /// The field of that type, such as "SFBool", of the first and of the second node.
    KnField* field(const char* type) { return m_node->getField(type); }
    KnField* otherField(const char* type) { return m_otherNode->getField(type); }
    KnTestNode& node() { return *m_node; }
    KnTestNode& otherNode() { return *m_otherNode; }

    /// Selects as the scene tree would, and lets everything settle.
    void select(KnField* field);
    /// Gives the first node's field of that type this text and selects it.
    KnField& show(const char* type, const char* text);
    KnField& show(const QString& type, const QString& text)
    {
        return show(type.toLatin1().constData(), text.toUtf8().constData());
    }
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
    /// The table of the array editor shown.
    TableInput table() const { return TableInput(child<WfMFieldTable>("m_table")); }
    /// The texts of line edits of the editor shown, by object name, in the order of their creation.
    QString linesShown(const char* objectName) const;

    static void settle() { TestShell::settle(); }
    static QString text(const KnField* field);
    /// Writes as another part of the program would, and lets everything settle.
    static void write(KnField* field, const char* text);
    /// Changes an array as another part of the program would: a row that comes before another one
    /// is a + with its number, one that goes a -, and the rest is the text of the whole.
    static void change(KnField& field, const QString& change);

    void clickButton(const char* name);
    /// Clicks the button of the editor's popup by way of the window, and waits for the popup.
    bool openPopup();
    /// A key where the focus is.
    static void press(int key);
    /// Puts `text` into a line edit as a person would, in place of what it holds; Return follows.
    static void typeInto(QWidget* lineEdit, const QString& text);
    /// The same with the last of the lines of that name.
    void typeIntoLast(const char* objectName, const char* text);

    QUndoStack& undoStack() const;
    int commands() const { return undoStack().count(); }
    void undo();
    void redo();

    TestShell& shell() { return *m_shell; }
    QMainWindow& window() { return m_shell->window(); }
    CrvDefaults& plugin() { return *m_plugin; }

protected Q_SLOTS:
    /// The window is shown and active then.
    void init();
    /// Unloads the plug-in; no top-level widget is left then.
    void cleanup();

private:
    std::unique_ptr<TestShell> m_shell;
    std::unique_ptr<CrvDefaults> m_plugin;
    KnTestNode* m_node = nullptr; // a reference is held
    KnTestNode* m_otherNode = nullptr; // a reference is held
};
