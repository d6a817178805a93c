// SPDX-License-Identifier: BSD-3-Clause
#include "GuestFileMenu.h"

#include "CrvServices.h"
#include "FileDialogs.h"
#include "Messages.h"
#include "SceneRoots.h"
#include "SceneText.h"
#include "SceneWriter.h"

#include <QDir>

GuestFileMenu::GuestFileMenu(QWidget* parent)
    : QMenu(tr("&File"), parent)
{
    setObjectName(QStringLiteral("fileMenu"));
    // Not every desktop has a standard key for either.
    QAction* const save = addAction(tr("Save a Copy &As..."),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this, &GuestFileMenu::saveCopy);
    save->setObjectName(QStringLiteral("saveCopyAction"));
    addSeparator();
    QAction* const close
        = addAction(tr("&Close"), QKeySequence(Qt::CTRL | Qt::Key_W), parent, &QWidget::close);
    close->setObjectName(QStringLiteral("closeAction"));
    // Without a scene there is nothing to copy.
    connect(this, &QMenu::aboutToShow, save,
        [save] { save->setEnabled(!CrvServices::getInstance()->getRoots().empty()); });
    connect(this, &QMenu::aboutToHide, save, [save] { save->setEnabled(true); });
}

void GuestFileMenu::saveCopy()
{
    FileDialogs::commitTyping(parentWidget());
    CrvServices* const services = CrvServices::getInstance();
    if (services->getRoots().empty())
        return;
    // A file holds one root: that of the selection, or else the first.
    KnNodePtr root(findRoot(services->getRoots(), services->getSelectedNode()));
    if (!root)
        root = services->getRoots().front();
    QString name = nodeLabel(*root.get());
    name.replace(QLatin1Char('/'), QLatin1Char('_'));
    const QString fileName = FileDialogs::askWhereToSave(parentWidget(), tr("Save a Copy As"),
        QDir::current().absoluteFilePath(name + QStringLiteral(".json")));
    if (fileName.isEmpty())
        return;
    SceneWriter writer;
    if (writer.writeFile(*root.get(), fileName))
        say(tr("Saved a copy in %1").arg(fileName));
    else
        FileDialogs::reportUnsaved(parentWidget(), writer.errorText());
}
