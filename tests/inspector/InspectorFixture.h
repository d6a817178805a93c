// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "MainWindow.h"
#include "Startup.h"

#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>

class QAction;
class QTreeView;

/// The program as a person meets it: the window with the built plug-ins loaded, shown and active,
/// on a copy of the sample scene, with settings of its own.
class InspectorFixture {
public:
    /// `folder` holds scene and settings; a second fixture in the same one is the next start.
    explicit InspectorFixture(const QTemporaryDir& folder, const QString& profile = {});

    QString sceneFile() const;
    /// What the scene file says of a field, by the reader.
    QString savedText(const QString& nodeAndField) const;
    KnField* field(const QString& nodeAndField) const;
    QString text(const QString& nodeAndField) const;

    void clickNode(const QString& name);
    void clickField(const QString& name);
    /// Chooses an entry of a menu by a click; both go by object name.
    void choose(const QString& menu, const QString& entry);
    QAction* action(const QString& menu, const QString& entry) const;
    QDockWidget* dock(const QString& title) const;
    void press(const QKeySequence& keys);

    /// A widget of the field editor shown.
    template <class Widget>
    Widget* inEditor() const
    {
        return dock(QStringLiteral("Field Editor"))->widget()->findChild<Widget*>();
    }

    /// Clicks a button of the next message box.
    void answerNextQuestion(QMessageBox::StandardButton button);

private:
    void clickRow(const QString& view, const QString& name);

    const QTemporaryDir& m_folder;
    QSettings m_settings;

public:
    MainWindow window;
    Startup startup;
};
