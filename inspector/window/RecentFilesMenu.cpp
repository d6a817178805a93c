// SPDX-License-Identifier: BSD-3-Clause
#include "RecentFilesMenu.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

constexpr qsizetype maxFiles = 8;

QString settingsKey() { return QStringLiteral("recentFiles"); }

} // namespace

RecentFilesMenu::RecentFilesMenu(QSettings* settings, QWidget* parent)
    : QMenu(tr("Open &Recent"), parent)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("recentFilesMenu"));
    if (m_settings)
        m_files = m_settings->value(settingsKey()).toStringList();
    listFiles();
}

void RecentFilesMenu::addFile(const QString& fileName)
{
    QStringList files = m_files;
    const QString absolute = QFileInfo(fileName).absoluteFilePath();
    files.removeAll(absolute);
    files.prepend(absolute);
    setFiles(files.mid(0, maxFiles));
}

void RecentFilesMenu::removeFile(const QString& fileName)
{
    QStringList files = m_files;
    files.removeAll(QFileInfo(fileName).absoluteFilePath());
    setFiles(files);
}

void RecentFilesMenu::setFiles(const QStringList& files)
{
    m_files = files;
    if (m_settings)
        m_settings->setValue(settingsKey(), m_files);
    listFiles();
}

void RecentFilesMenu::listFiles()
{
    clear();
    for (const QString& file : std::as_const(m_files)) {
        // An ampersand in a file name is no mnemonic.
        QString text = QDir::toNativeSeparators(file);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* const action = addAction(text);
        connect(action, &QAction::triggered, this, [this, file] { Q_EMIT fileChosen(file); });
    }
    setEnabled(!m_files.isEmpty());
}
