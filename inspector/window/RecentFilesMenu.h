// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMenu>
#include <QStringList>

class QSettings;

/// The scene files used last, newest first, kept from one start to the next.
class RecentFilesMenu : public QMenu {
    Q_OBJECT
public:
    /// `settings` outlives the menu; null keeps nothing from one start to the next.
    RecentFilesMenu(QSettings* settings, QWidget* parent);

    void addFile(const QString& fileName);
    void removeFile(const QString& fileName);

Q_SIGNALS:
    void fileChosen(const QString& fileName);

private:
    void listFiles();
    void setFiles(const QStringList& files);

    QSettings* m_settings; // not owned, may be null
    QStringList m_files; // absolute names
};
