// SPDX-License-Identifier: BSD-3-Clause
#include "HelpMenu.h"

#include "ShortcutList.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>

HelpMenu::HelpMenu(QMainWindow* window)
    : QMenu(tr("&Help"), window)
    , m_window(window)
{
    setObjectName(QStringLiteral("helpMenu"));
    QAction* const shortcuts = addAction(
        tr("Keyboard &Shortcuts"), QKeySequence(Qt::Key_F1), this, &HelpMenu::showShortcuts);
    shortcuts->setObjectName(QStringLiteral("shortcutsAction"));
    QAction* const documentation
        = addAction(tr("&Documentation"), this, &HelpMenu::showDocumentation);
    documentation->setObjectName(QStringLiteral("documentationAction"));
    addSeparator();
    QAction* const about = addAction(tr("&About Corvane"), this, &HelpMenu::showAbout);
    about->setObjectName(QStringLiteral("aboutAction"));
}

void HelpMenu::showShortcuts() { (new ShortcutList(*m_window->menuBar(), m_window))->show(); }

void HelpMenu::showDocumentation()
{
    showBox(QStringLiteral("documentationBox"), tr("Documentation"),
        tr("README.md begins with a first tour, docs/embedding.md says how a program shows its own "
           "scene in this window, and docs/architecture.md how to write editors and other "
           "extensions.\n\nAn installed Corvane has them in share/doc/corvane, the sources at "
           "their top."));
}

void HelpMenu::showAbout()
{
    showBox(QStringLiteral("aboutBox"), tr("About Corvane"),
        tr("Corvane %1 shows the scene graph of a running process and lets you change it.\n\n"
           "Qt %2, built with %3")
            .arg(QStringLiteral(CORVANE_VERSION), QLatin1String(qVersion()),
                QStringLiteral(QT_VERSION_STR)));
}

// Without a loop of its own, since a guest's process runs on.
void HelpMenu::showBox(const QString& name, const QString& title, const QString& text)
{
    auto* const box
        = new QMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok, m_window);
    box->setObjectName(name);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}
