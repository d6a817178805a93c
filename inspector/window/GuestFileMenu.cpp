// SPDX-License-Identifier: BSD-3-Clause
#include "GuestFileMenu.h"

#include "CrvServices.h"
#include "FileDialogs.h"
#include "Messages.h"
#include "SceneRoots.h"
#include "SceneText.h"
#include "SceneWriter.h"

#include <QDir>

namespace {

/// A file holds one root: that of the selection, or else the first. Null without a scene.
KnNodePtr rootToSave()
{
    const CrvServices* const services = CrvServices::getInstance();
    const std::vector<KnNodePtr>& roots = services->getRoots();
    if (KnFieldContainer* const root = findRoot(roots, services->getSelectedNode()))
        return KnNodePtr(root);
    return roots.empty() ? KnNodePtr() : roots.front();
}

/// Why there is nothing to be saved; empty if there is.
QString obstacle(const KnNodePtr& root)
{
    if (!root)
        return GuestFileMenu::tr("There is no scene to save");
    // A file of them could never be opened.
    if (!root->getObjectType().canCreateInstance())
        return GuestFileMenu::tr("Live objects can't be saved as a scene");
    return QString();
}

} // namespace

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
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, save, [save] {
        const QString why = obstacle(rootToSave());
        save->setEnabled(why.isEmpty());
        save->setToolTip(why);
        save->setStatusTip(why);
    });
    connect(this, &QMenu::aboutToHide, save, [save] { save->setEnabled(true); });
}

void GuestFileMenu::saveCopy()
{
    FileDialogs::commitTyping(parentWidget());
    const KnNodePtr root = rootToSave();
    const QString why = obstacle(root);
    if (!why.isEmpty()) {
        say(why);
        return;
    }
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
