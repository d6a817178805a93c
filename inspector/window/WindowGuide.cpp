// SPDX-License-Identifier: BSD-3-Clause
#include "WindowGuide.h"

#include "EditorOpener.h"
#include "PaneWalk.h"
#include "StatusLine.h"
#include "ViewMenu.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QTreeView>

WindowGuide::WindowGuide(QMainWindow* window, QDockWidget* scene, ViewMenu* viewMenu)
    : QObject(window)
    , m_walk(new PaneWalk(window, { scene, window->centralWidget() }))
    , m_opener(
          new EditorOpener(window->findChild<QTreeView*>(QStringLiteral("fieldList")), viewMenu))
    , m_statusLine(new StatusLine(window))
{
    viewMenu->addSeparator();
    m_walk->addActions(viewMenu);
    window->setStatusBar(m_statusLine);
    m_statusLine->setHint(scene->widget()->findChild<QLineEdit*>(),
        tr("Down or Return goes to the first match, Esc clears the filter"));
    m_statusLine->setHint(scene->widget(),
        tr("Choose a node to see and edit its fields; F6 goes on to them, F1 lists all keys"));
    m_statusLine->setHint(window->centralWidget(),
        tr("Return goes into the field's editor, F6 to the next pane; F1 lists all keys"));
}

void WindowGuide::addEditorDock(QDockWidget* dock)
{
    m_opener->addDock(dock);
    m_statusLine->setHint(
        dock, tr("Return applies, Esc drops what was typed and then goes back to the fields"));
}

bool WindowGuide::step(bool forward) { return m_walk->step(forward); }
