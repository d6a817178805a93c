// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMenu>

class QSettings;
class RecentFilesMenu;
class SceneDocument;

/// The File menu, and the questions and messages that opening and saving a scene bring up.
class FileMenu : public QMenu {
    Q_OBJECT
public:
    /// `document` outlives the menu; `settings` too, and may be null.
    FileMenu(SceneDocument* document, QSettings* settings, QWidget* parent);

    /// Opens a file, unless the person decides to keep the present scene with its edits. A message
    /// box says why a file is refused.
    void openFile(const QString& fileName);
    /// Asks what to do with edits that aren't saved. False if the scene must stay.
    bool mayDropScene();

private:
    void makeNew();
    void revert();
    void chooseFile();
    bool save();
    bool saveAs();
    bool saveTo(const QString& fileName);
    QString startDirectory() const;
    void noteFile();

    SceneDocument* m_document; // not owned
    RecentFilesMenu* m_recentFiles; // child
    QAction* m_revert; // child; for a scene that has a file
};
