// SPDX-License-Identifier: BSD-3-Clause
#include "FileMenu.h"

#include "FileDialogs.h"
#include "Messages.h"
#include "NodeChoice.h"
#include "RecentFilesMenu.h"
#include "SceneDocument.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

FileMenu::FileMenu(SceneDocument* document, QSettings* settings, QWidget* parent)
    : QMenu(tr("&File"), parent)
    , m_document(document)
    , m_recentFiles(new RecentFilesMenu(settings, this))
{
    setObjectName(QStringLiteral("fileMenu"));
    addAction(tr("&New"), QKeySequence::New, this, &FileMenu::makeNew)
        ->setObjectName(QStringLiteral("newSceneAction"));
    addAction(tr("&Open..."), QKeySequence::Open, this, &FileMenu::chooseFile);
    addMenu(m_recentFiles);
    addSeparator();
    addAction(tr("&Save"), QKeySequence::Save, this, &FileMenu::save);
    addAction(tr("Save &As..."), QKeySequence::SaveAs, this, &FileMenu::saveAs);
    m_revert = addAction(tr("&Revert"), this, &FileMenu::revert);
    m_revert->setObjectName(QStringLiteral("revertAction"));
    addSeparator();
    addAction(tr("&Quit"), QKeySequence::Quit, parent, &QWidget::close);
    connect(m_recentFiles, &RecentFilesMenu::fileChosen, this, &FileMenu::openFile);
    connect(m_document, &SceneDocument::fileNameChanged, this, &FileMenu::noteFile);
    noteFile();
}

void FileMenu::openFile(const QString& fileName)
{
    if (!mayDropScene())
        return;
    QString error;
    if (m_document->open(fileName, &error)) {
        NodeChoice::chooseFirst();
        return;
    }
    complain(error);
    if (!QFileInfo::exists(fileName))
        m_recentFiles->removeFile(fileName);
    QMessageBox::warning(
        parentWidget(), tr("Open"), tr("The file was not opened.") + QLatin1Char('\n') + error);
}

void FileMenu::makeNew()
{
    if (mayDropScene())
        m_document->openStarter();
}

// Back to the file, so nobody is asked whether to save.
void FileMenu::revert()
{
    FileDialogs::commitTyping(parentWidget());
    const QString fileName = m_document->fileName();
    if (m_document->isModified()
        && QMessageBox::question(parentWidget(), tr("Revert"),
               tr("Go back to the scene as it is in the file? The edits since then are lost."),
               QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel)
            != QMessageBox::Discard)
        return;
    QString error;
    if (m_document->open(fileName, &error))
        return;
    complain(error);
    QMessageBox::warning(
        parentWidget(), tr("Revert"), tr("The file was not opened.") + QLatin1Char('\n') + error);
}

bool FileMenu::mayDropScene()
{
    FileDialogs::commitTyping(parentWidget());
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
    const QString fileName = QFileDialog::getOpenFileName(
        parentWidget(), tr("Open"), startDirectory(), FileDialogs::sceneFilter());
    if (!fileName.isEmpty())
        openFile(fileName);
}

bool FileMenu::save()
{
    return m_document->fileName().isEmpty() ? saveAs() : saveTo(m_document->fileName());
}

bool FileMenu::saveAs()
{
    const QString fileName
        = FileDialogs::askWhereToSave(parentWidget(), tr("Save As"), m_document->fileName());
    return !fileName.isEmpty() && saveTo(fileName);
}

bool FileMenu::saveTo(const QString& fileName)
{
    FileDialogs::commitTyping(parentWidget());
    QString error;
    if (m_document->save(fileName, &error))
        return true;
    FileDialogs::reportUnsaved(parentWidget(), error);
    return false;
}

QString FileMenu::startDirectory() const
{
    return m_document->fileName().isEmpty() ? QString()
                                            : QFileInfo(m_document->fileName()).absolutePath();
}

void FileMenu::noteFile()
{
    m_revert->setEnabled(!m_document->fileName().isEmpty());
    if (!m_document->fileName().isEmpty())
        m_recentFiles->addFile(m_document->fileName());
}
