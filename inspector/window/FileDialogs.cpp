// SPDX-License-Identifier: BSD-3-Clause
#include "FileDialogs.h"

#include "Messages.h"
#include "WindowFamily.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>

// They write when they lose the focus, so they lose it for a moment.
void FileDialogs::commitTyping(const QWidget* window)
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    if (!isInFamily(focus, window))
        return;
    focus->clearFocus();
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
}

QString FileDialogs::sceneFilter() { return tr("Scenes (*.json);;All files (*)"); }

QString FileDialogs::askWhereToSave(QWidget* parent, const QString& title, const QString& fileName)
{
    const QFileInfo proposal(fileName);
    QFileDialog dialog(
        parent, title, fileName.isEmpty() ? QString() : proposal.absolutePath(), sceneFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    if (!fileName.isEmpty())
        dialog.selectFile(proposal.fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

void FileDialogs::reportUnsaved(QWidget* parent, const QString& error)
{
    complain(error);
    QMessageBox::warning(
        parent, tr("Save"), tr("The file was not saved.") + QLatin1Char('\n') + error);
}
