// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"

#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "CrvStrings.h"

#include <QApplication>
#include <QRegularExpression>
#include <QUndoStack>

void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
}

EditorFixture::EditorFixture()
    : m_plugin(std::make_unique<CrvDefaults>())
    , m_node(new KnTestNode)
    , m_otherNode(new KnTestNode)
{
    m_node->ref();
    m_otherNode->ref();
    CrvPluginsManager::getInstance()->useBuiltInProfiles();
    CrvPluginsManager::getInstance()->adoptPlugin(m_plugin.get());
    m_shell.window().show();
    m_shell.window().activateWindow();
    if (!QTest::qWaitForWindowActive(&m_shell.window()))
        qFatal("the window of the fixture isn't active");
}

EditorFixture::~EditorFixture()
{
    CrvPluginsManager::getInstance()->unloadAll();
    m_plugin.reset();
    m_node->unref();
    m_otherNode->unref();
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget != &m_shell.window())
            qFatal("a top-level widget is left: %s", qPrintable(widget->objectName()));
    }
}

void EditorFixture::select(KnField* field)
{
    CrvServices::getInstance()->selectField(field);
    settle();
}

CrvFieldEditors* EditorFixture::editor() const
{
    for (CrvExtension* extension : m_plugin->getExtensions()) {
        auto* const editor = qobject_cast<CrvFieldEditors*>(extension);
        if (editor && editor->getEditedObject())
            return editor;
    }
    return nullptr;
}

QString EditorFixture::text(const KnField* field)
{
    KbString text;
    field->get(text);
    return toQString(text);
}

void EditorFixture::write(KnField* field, const char* text)
{
    field->set(text);
    settle();
}

QUndoStack& EditorFixture::undoStack() const { return *CrvServices::getInstance()->getUndoStack(); }

void EditorFixture::undo()
{
    undoStack().undo();
    settle();
}

void EditorFixture::redo()
{
    undoStack().redo();
    settle();
}
