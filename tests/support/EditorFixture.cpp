// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"

#include "CrvPluginsManager.h"
#include "CrvServices.h"
#include "CrvStrings.h"
#include "KnMField.h"
#include "WindowInput.h"

#include <QApplication>
#include <QRegularExpression>

void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
}

void EditorFixture::init()
{
    failOnWarnings();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_shell = std::make_unique<TestShell>();
    m_plugin = std::make_unique<CrvDefaults>();
    for (KnTestNode** node : { &m_node, &m_otherNode }) {
        *node = new KnTestNode;
        (*node)->ref();
    }
    CrvPluginsManager::getInstance()->useBuiltInProfiles();
    CrvPluginsManager::getInstance()->adoptPlugin(m_plugin.get());
    window().show();
    window().activateWindow();
    if (!QTest::qWaitForWindowActive(&window()))
        qFatal("the window of the fixture isn't active");
}

void EditorFixture::cleanup()
{
    CrvPluginsManager::getInstance()->unloadAll();
    m_plugin.reset();
    m_node->unref();
    m_otherNode->unref();
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget != &window())
            qFatal("a top-level widget is left: %s", qPrintable(widget->objectName()));
    }
    m_shell.reset();
}

void EditorFixture::select(KnField* field)
{
    CrvServices::getInstance()->selectField(field);
    settle();
}

KnField& EditorFixture::show(const char* type, const char* text)
{
    KnField& shown = *field(type);
    if (!shown.set(text))
        qFatal("%s refuses %s", type, text);
    select(&shown);
    return shown;
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

QString EditorFixture::linesShown(const char* objectName) const
{
    QStringList texts;
    for (const QLineEdit* line :
        editor()->getFrame()->findChildren<QLineEdit*>(QLatin1String(objectName)))
        texts << line->text();
    return texts.join(u' ');
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

void EditorFixture::change(KnField& field, const QString& change)
{
    auto& array = static_cast<KnMField&>(field);
    if (change.startsWith(u'+'))
        array.insertValues(change.mid(1).toInt(), 1);
    else if (change.startsWith(u'-'))
        array.removeValues(change.mid(1).toInt(), 1);
    else
        array.set(change.toLatin1());
}

void EditorFixture::clickButton(const char* name)
{
    QTest::mouseClick(child<QAbstractButton>(name), Qt::LeftButton);
    settle();
}

bool EditorFixture::openPopup()
{
    clickThroughWindow(child<QWidget>("m_editButton"));
    auto* const popup = child<QWidget>("m_popupFrame");
    return popup->isVisible() && QTest::qWaitForWindowExposed(popup);
}

void EditorFixture::press(int key)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    settle();
}

void EditorFixture::typeInto(QWidget* lineEdit, const QString& text)
{
    QTest::mouseClick(lineEdit, Qt::LeftButton);
    QTest::keyClick(lineEdit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(lineEdit, text);
    QTest::keyClick(lineEdit, Qt::Key_Return);
}

void EditorFixture::typeIntoLast(const char* objectName, const char* text)
{
    QWidget* const frame = editor()->getFrame();
    typeInto(frame->findChildren<QLineEdit*>(QLatin1String(objectName)).constLast(),
        QString::fromUtf8(text));
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
