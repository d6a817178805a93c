// SPDX-License-Identifier: BSD-3-Clause
#include "CrvEditorDock.h"

#include "CrvEditor.h"
#include "CrvProfile.h"
#include "CrvShell.h"
#include "EditorSelection.h"

#include <QDockWidget>
#include <QScopedValueRollback>

CrvEditorDock::CrvEditorDock(const char* name, const char* description)
{
    m_name = name;
    m_description = description;
    m_author = "Orbel";
    m_version = "1.0.0";
}

void CrvEditorDock::load()
{
    m_dockWidget = new QDockWidget;
    m_dockWidget->setAcceptDrops(false);
    const QString title = QString::fromLatin1(getName().toLatin1());
    m_dockWidget->setWindowTitle(title);
    // A main window keeps and restores its docks by object name.
    m_dockWidget->setObjectName(title);
    m_dockWidget->hide();
}

void CrvEditorDock::unload()
{
    delete m_dockWidget;
    m_dockWidget = nullptr;
}

void CrvEditorDock::show()
{
    CrvExtension::show();
    m_dockWidget->show();
}

void CrvEditorDock::hide()
{
    CrvExtension::hide();
    m_dockWidget->hide();
}

void CrvEditorDock::activate()
{
    CrvExtension::activate();
    connectSelection();
    CrvShell::getInstance()->addDockWidget(m_dockWidget, Qt::RightDockWidgetArea);
    CrvShell::getInstance()->registerExtension(this, 1);
}

void CrvEditorDock::deactivate()
{
    if (m_currentEditor)
        releaseEditor();
    CrvExtension::deactivate();
    disconnectSelection();
    CrvShell::getInstance()->removeDockWidget(m_dockWidget);
    CrvShell::getInstance()->unregisterExtension(this);
}

void CrvEditorDock::releaseEditor()
{
    // Hiding the editor moves the focus, and whatever gets it may select something.
    const QScopedValueRollback releasing(m_releasing, true);
    m_currentEditor->deactivate();
    m_currentEditor->setEditedObject(nullptr);
    m_dockWidget->setWidget(nullptr);
    // The editor owns its widget; a dock that stayed its parent would delete it.
    m_currentEditor->getWidget()->setParent(nullptr);
    m_currentEditor = nullptr;
    hide();
}

void CrvEditorDock::showEditorFor(KnTypedObject* object)
{
    // The host announces one selection at a time, so this one comes while `deactivate` releases the
    // editor, and the dock needs no other.
    if (m_releasing)
        return;
    if (m_currentEditor)
        releaseEditor();
    if (!object)
        return;

    CrvEditor* const best
        = selectEditor(getProfileSetting()->getControlledExtensions(), object->getObjectType());
    if (!best)
        return;

    best->setEditedObject(object);
    m_dockWidget->setWidget(best->getWidget());
    best->activate();
    m_currentEditor = best;
    show();
}
