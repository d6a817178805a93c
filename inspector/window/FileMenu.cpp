// SPDX-License-Identifier: BSD-3-Clause
#include "FileMenu.h"

#include "Messages.h"
#include "RecentFilesMenu.h"
#include "SceneDocument.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>

namespace {

// A line or a cell writes what was typed when it loses the focus, so it loses it for a moment.
void commitTyping()
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    if (!focus)
        return;
    focus->clearFocus();
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
}

QString sceneFilter() { return FileMenu::tr("Scenes (*.json);;All files (*)"); }

} // namespace

FileMenu::FileMenu(SceneDocument* document, QSettings* settings, QWidget* parent)
    : QMenu(tr("&File"), parent)
    , m_document(document)
    , m_recentFiles(new RecentFilesMenu(settings, this))
{
    setObjectName(QStringLiteral("fileMenu"));
    addAction(tr("&Open..."), QKeySequence::Open, this, &FileMenu::chooseFile);
    addMenu(m_recentFiles);
    addSeparator();
    addAction(tr("&Save"), QKeySequence::Save, this, &FileMenu::save);
    addAction(tr("Save &As..."), QKeySequence::SaveAs, this, &FileMenu::saveAs);
    addSeparator();
    addAction(tr("&Quit"), QKeySequence::Quit, parent, &QWidget::close);
    connect(m_recentFiles, &RecentFilesMenu::fileChosen, this, &FileMenu::openFile);
    connect(m_document, &SceneDocument::fileNameChanged, this, &FileMenu::noteFile);
}

void FileMenu::openFile(const QString& fileName)
{
    if (!mayDropScene())
        return;
    QString error;
    if (m_document->open(fileName, &error))
        return;
    complain(error);
    if (!QFileInfo::exists(fileName))
        m_recentFiles->removeFile(fileName);
    QMessageBox::warning(
        parentWidget(), tr("Open"), tr("The file was not opened.") + QLatin1Char('\n') + error);
}

bool FileMenu::mayDropScene()
{
    commitTyping();
    if (!m_document->isModified())
        return true;
    const QMessageBox::StandardButton answer = QMessageBox::question(parentWidget(), tr("Save"),
        tr("The scene has edits that aren't saved. Save them?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

void FileMenu::chooseFile()
{
    const QString fileName
        = QFileDialog::getOpenFileName(parentWidget(), tr("Open"), startDirectory(), sceneFilter());
    if (!fileName.isEmpty())
        openFile(fileName);
}

bool FileMenu::save()
{
    return m_document->fileName().isEmpty() ? saveAs() : saveTo(m_document->fileName());
}

bool FileMenu::saveAs()
{
    QFileDialog dialog(parentWidget(), tr("Save As"), startDirectory(), sceneFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    if (!m_document->fileName().isEmpty())
        dialog.selectFile(QFileInfo(m_document->fileName()).fileName());
    return dialog.exec() == QDialog::Accepted && saveTo(dialog.selectedFiles().constFirst());
}

bool FileMenu::saveTo(const QString& fileName)
{
    commitTyping();
    QString error;
    if (m_document->save(fileName, &error))
        return true;
    complain(error);
    QMessageBox::warning(
        parentWidget(), tr("Save"), tr("The file was not saved.") + QLatin1Char('\n') + error);
    return false;
}

QString FileMenu::startDirectory() const
{
    return m_document->fileName().isEmpty() ? QString()
                                            : QFileInfo(m_document->fileName()).absolutePath();
}

void FileMenu::noteFile()
{
    if (!m_document->fileName().isEmpty())
        m_recentFiles->addFile(m_document->fileName());
}
