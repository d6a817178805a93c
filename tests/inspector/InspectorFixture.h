// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CommandLine.h"
#include "CrvPluginsManager.h"
#include "KnField.h"
#include "MainWindow.h"
#include "RowInput.h"
#include "SceneReader.h"
#include "SceneSearch.h"
#include "SceneText.h"
#include "Startup.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;

/// The program as a person meets it: the window with the built plug-ins loaded, shown and active,
/// on a copy of the sample scene, with settings of its own.
class InspectorFixture {
public:
    /// `folder` holds scene and settings; a second fixture in the same one is the next start.
    explicit InspectorFixture(const QTemporaryDir& folder, const QString& profile = u"Everything"_s)
        : m_settings(folder.filePath(u"settings.ini"_s), QSettings::IniFormat)
        , sceneFile(folder.filePath(u"scene.json"_s))
        , window(&m_settings)
        , startup(window)
    {
        CrvPluginsManager::getInstance()->useBuiltInProfiles();
        QFile::copy(QStringLiteral(CORVANE_SCENES "/all_fields.json"), sceneFile);
        CommandLine commandLine;
        commandLine.scene = sceneFile;
        commandLine.profile = profile;
        commandLine.plugins
            = { QStringLiteral(CORVANE_PLUGIN), QStringLiteral(CORVANE_EXAMPLE_PLUGIN) };
        if (!startup.applyCommandLine(commandLine))
            qFatal("%s", qPrintable(startup.errorText()));
        window.restoreLayout();
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window isn't active");
    }

    /// By "Node.field".
    KnField* field(const QString& place) { return find(window.document().root(), place); }
    QString text(const QString& place) { return textOf(field(place)); }
    /// What the scene file says of a field, by the reader.
    QString savedText(const QString& place)
    {
        const KnNodePtr root = SceneReader().readFile(sceneFile);
        return textOf(find(root, place));
    }

    /// Clicks a row of the tree or of the list.
    void clickNode(const QString& name) { clickRow(view(u"sceneTree"_s), name); }
    void clickField(const QString& node, const QString& name)
    {
        clickNode(node);
        clickRow(view(u"fieldList"_s), name);
    }

    /// The entries of a menu by object name, a star behind those that are checked.
    QString entries(const QString& menu) const
    {
        QStringList names;
        for (const QAction* action : window.findChild<QMenu*>(menu)->actions()) {
            if (!action->objectName().isEmpty())
                names += action->objectName() + (action->isChecked() ? u"*"_s : QString());
        }
        return names.join(u", "_s);
    }
    /// Clicks an entry.
    void choose(const QString& menu, const QString& entry)
    {
        auto* const popup = window.findChild<QMenu*>(menu);
        auto* const action = popup->findChild<QAction*>(entry, Qt::FindDirectChildrenOnly);
        popup->popup(QPoint());
        QTest::mouseClick(popup, Qt::LeftButton, {}, popup->actionGeometry(action).center());
        QCoreApplication::processEvents();
    }

    QDockWidget* dock(const QString& name) const { return window.findChild<QDockWidget*>(name); }
    QTreeView* view(const QString& name) const { return window.findChild<QTreeView*>(name); }
    QString console() const
    {
        return window.findChild<QTextEdit*>(u"m_consoleOutput"_s)->toPlainText();
    }
    /// A widget of the field editor shown.
    template <class Widget>
    Widget* inEditor() const
    {
        return dock(u"Field Editor"_s)->widget()->findChild<Widget*>();
    }

    void press(const QKeySequence& keys)
    {
        QTest::keySequence(window.focusWidget(), keys);
        QCoreApplication::processEvents();
    }

    /// Clicks a button of the next message box.
    void answerNextQuestion(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(0, &window, [this, button] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                QTest::mouseClick(box->button(button), Qt::LeftButton);
            else
                answerNextQuestion(button);
        });
    }

private:
    static KnField* find(const KnNodePtr& root, const QString& place)
    {
        SceneSearch search({ root.get() });
        search.find(place);
        return search.field();
    }
    static QString textOf(const KnField* field)
    {
        KbString text;
        field->get(text);
        return toQString(text);
    }
    QSettings m_settings;

public:
    const QString sceneFile;
    MainWindow window;
    Startup startup;
};

/// Base of tests that work in one window: a new one for each test function.
class InspectorTest : public QObject {
    Q_OBJECT
protected Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        m_folder = std::make_unique<QTemporaryDir>();
        m_inspector = std::make_unique<InspectorFixture>(*m_folder);
    }
    void cleanup()
    {
        m_inspector.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

protected:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<InspectorFixture> m_inspector;
};
