// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "DisplayCheck.h"
#include "FileMenu.h"
#include "InspectorFixture.h"
#include "KnMFields.h"
#include "PaneTree.h"
#include "TextRows.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QToolBar>

class TestMainWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // What the offscreen platform has to say of itself.
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        m_folder = std::make_unique<QTemporaryDir>();
        m_settingsFile = m_folder->filePath(u"settings.ini"_s);
    }
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void displayIsFoundWhereThereIsOne()
    {
        QVERIFY(displayAnswers(u"offscreen"_s));
        QVERIFY(!displayAnswers(u"xcb"_s, u":4711"_s));
        if (QGuiApplication::platformName() == u"xcb"_s)
            QVERIFY(displayAnswers(QString()) && displayAnswers(u"wayland;xcb"_s));
    }

    void selectionGoesBothWays()
    {
        InspectorFixture inspector(*m_folder);
        CrvServices* const services = CrvServices::getInstance();
        const auto* const tree = inspector.view(u"sceneTree"_s);
        auto* const filter = inspector.window.findChild<QLineEdit*>(u"sceneFilter"_s);
        inspector.clickField(u"Desk lamp"_s, u"intensity"_s);
        QCOMPARE(services->getSelectedField(), inspector.field(u"Desk lamp.intensity"_s));
        QVERIFY(inspector.dock(u"Field Editor"_s)->isVisible());
        services->selectNode(inspector.field(u"Room.on"_s)->getContainer());
        QVERIFY(!services->getSelectedField());
        QVERIFY(!inspector.dock(u"Field Editor"_s)->isVisible());

        services->selectField(inspector.field(u"Oak.transparency"_s));
        QCOMPARE(tree->currentIndex().data().toString(), u"Oak"_s);
        QCOMPARE(
            inspector.view(u"fieldList"_s)->currentIndex().data().toString(), u"transparency"_s);
        // Filtered away, the node stays selected.
        inspector.press(QKeySequence::Find);
        QTest::keyClicks(QApplication::focusWidget(), u"light"_s);
        QCOMPARE(filter->text(), u"light"_s);
        QVERIFY(!tree->currentIndex().isValid() && services->getSelectedField());
        filter->clear();
        QCOMPARE(tree->currentIndex().data().toString(), u"Oak"_s);
    }

    void statusBarExplainsTheFieldUnderTheMouse()
    {
        InspectorFixture inspector(*m_folder);
        inspector.clickField(u"Desk lamp"_s, u"intensity"_s);
        const auto* const list = inspector.view(u"fieldList"_s);
        const QStatusBar* const bar = inspector.window.statusBar();
        QTest::mouseMove(list->viewport(), list->visualRect(list->indexAt({ 2, 2 })).center());
        QTRY_COMPARE(bar->currentMessage(), u"Whether the light shines."_s);
        QTest::mouseMove(list->viewport(), list->visualRect(list->currentIndex()).center());
        QTRY_COMPARE(bar->currentMessage(), u"How bright the light is. (0 to 1)"_s);
    }

    void editIsUndoneAndSaved()
    {
        InspectorFixture inspector(*m_folder);
        inspector.clickField(u"Desk lamp"_s, u"on"_s);
        QVERIFY(!inspector.window.isWindowModified());
        QTest::mouseClick(inspector.inEditor<QCheckBox>(), Qt::LeftButton);
        QTRY_VERIFY(inspector.window.isWindowModified());
        inspector.press(QKeySequence::Undo);
        QTRY_VERIFY(!inspector.window.isWindowModified());
        inspector.press(QKeySequence(Qt::CTRL | Qt::Key_Y));
        inspector.press(QKeySequence::Save);
        QCOMPARE(inspector.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
        QVERIFY(!inspector.window.isWindowModified());
        inspector.press(QKeySequence::Undo);
        QTRY_VERIFY(inspector.window.isWindowModified());
        for (const auto button : { QMessageBox::Cancel, QMessageBox::Discard }) {
            inspector.answerNextQuestion(button);
            inspector.window.close();
            QCOMPARE(inspector.window.isVisible(), button == QMessageBox::Cancel);
        }
        QCOMPARE(inspector.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
    }

    void anotherSceneBeginsWithoutEdits()
    {
        InspectorFixture inspector(*m_folder);
        inspector.clickField(u"Desk lamp"_s, u"on"_s);
        QTest::mouseClick(inspector.inEditor<QCheckBox>(), Qt::LeftButton);
        QTRY_VERIFY(inspector.window.isWindowModified());
        inspector.answerNextQuestion(QMessageBox::Discard);
        inspector.window.findChild<FileMenu*>()->openFile(inspector.sceneFile);
        QVERIFY(!inspector.window.isWindowModified());
        QVERIFY(!inspector.window.findChild<QAction*>(u"undoAction"_s)->isEnabled());
    }

    void aFieldSelectedElsewhereIsMarkedInTheList()
    {
        InspectorFixture inspector(*m_folder);
        CrvServices::getInstance()->selectField(inspector.field(u"Oak.shininess"_s));
        const QItemSelectionModel* const marks = inspector.view(u"fieldList"_s)->selectionModel();
        QCOMPARE(marks->selectedRows().size(), 1);
        QCOMPARE(marks->selectedRows().constFirst().data().toString(), u"shininess"_s);
    }

    void typedTextIsNotLost()
    {
        InspectorFixture inspector(*m_folder);
        const QString place = u"Front view.description"_s;
        const auto clickLine = [&inspector] {
            inspector.clickField(u"Front view"_s, u"description"_s);
            auto* const line = inspector.inEditor<QLineEdit>();
            QTest::mouseClick(line, Qt::LeftButton);
            line->end(false);
            return line;
        };
        QTest::keyClicks(clickLine(), u" on"_s);
        // What is being typed is the line's own to undo; what was applied is the scene's.
        inspector.press(QKeySequence::Undo);
        QCOMPARE(inspector.inEditor<QLineEdit>()->text(), u"From the door"_s);
        inspector.press(QKeySequence::Redo);
        inspector.clickNode(u"Desk lamp"_s);
        QCOMPARE(inspector.text(place), u"\"From the door on\""_s);
        auto* const line = clickLine();
        inspector.press(QKeySequence::Undo);
        QCOMPARE(inspector.text(place), u"\"From the door\""_s);
        inspector.press(QKeySequence::Redo);
        QTRY_COMPARE(line->text(), u"From the door on"_s);

        // Saving and closing take what stands in the line.
        QTest::keyClicks(line, u"!"_s);
        inspector.press(QKeySequence::Save);
        QCOMPARE(inspector.savedText(place), u"\"From the door on!\""_s);
        QVERIFY(line->hasFocus() && !inspector.window.isWindowModified());
        QTest::keyClicks(line, u"?"_s);
        inspector.answerNextQuestion(QMessageBox::Save);
        inspector.window.close();
        QCOMPARE(inspector.savedText(place), u"\"From the door on!?\""_s);
    }

    void anEntryGoesWithTheRowsAboveIt()
    {
        QStandardItemModel model;
        auto* const room = new QStandardItem(u"room"_s);
        room->appendRow(new QStandardItem(u"lamp"_s));
        model.appendRow(room);
        PaneTree tree;
        tree.setModel(&model);
        tree.expandAll();
        tree.show();
        QVERIFY(QTest::qWaitForWindowActive(&tree));
        tree.setCurrentIndex(room->child(0)->index());
        QTest::keyClick(&tree, Qt::Key_F2);
        const QPointer<QLineEdit> line = tree.viewport()->findChild<QLineEdit*>();
        QVERIFY(line);
        model.removeRow(0);
        QVERIFY(!line || !line->isVisible());
    }

    void writesWithoutCommandsModify()
    {
        InspectorFixture inspector(*m_folder, u"Fields"_s);
        QCOMPARE(inspector.entries(u"profileMenu"_s), u"Everything, Fields*, Console"_s);
        inspector.clickNode(u"Oak"_s);
        KnField* const shininess = inspector.field(u"Oak.shininess"_s);
        // No event has told of this edit yet when the scene is to go.
        shininess->setIgnored(1);
        const QString large = QStringLiteral(CORVANE_SCENES "/station.json");
        for (const auto button : { QMessageBox::Cancel, QMessageBox::Discard }) {
            QVERIFY(shininess->isIgnored());
            inspector.answerNextQuestion(button);
            inspector.window.findChild<FileMenu*>()->openFile(large);
        }
        QVERIFY(!inspector.window.isWindowModified());
        KnField* const points = inspector.field(u"Shield points.point"_s);
        CrvServices::getInstance()->selectField(points);
        dynamic_cast<KnMFVec3f*>(points)->set1Value(0, KbVec3f(1.0F, 2.0F, 3.0F));
        QTRY_VERIFY(inspector.window.isWindowModified());
        QString error;
        QVERIFY2(inspector.window.document().save(m_folder->filePath(u"copy.json"_s), &error),
            qPrintable(error));
        QVERIFY(inspector.window.windowTitle().startsWith(u"copy.json"_s));
        QVERIFY(!inspector.window.isWindowModified());
    }

    void viewMenuFollowsTheDocks()
    {
        InspectorFixture inspector(*m_folder);
        const auto entries = [&inspector] { return inspector.entries(u"viewMenu"_s); };
        inspector.clickField(u"Desk lamp"_s, u"on"_s);
        QCOMPARE(
            entries(), u"Profile Selector*, Console*, Field Editor*, Node Editor, Scene View*"_s);
        const QDockWidget* const console = inspector.dock(u"Console"_s);
        const QString closeButton = u"qt_dockwidget_closebutton"_s;
        QTest::mouseClick(console->findChild<QAbstractButton*>(closeButton), Qt::LeftButton);
        inspector.choose(u"viewMenu"_s, u"Profile Selector"_s);
        QVERIFY(inspector.window.findChild<QToolBar*>()->isHidden());
        QCOMPARE(
            entries(), u"Profile Selector, Console, Field Editor*, Node Editor, Scene View*"_s);
        inspector.choose(u"viewMenu"_s, u"Console"_s);
        QVERIFY(console->isVisible());

        inspector.choose(u"profileMenu"_s, u"Console"_s);
        QCOMPARE(inspector.entries(u"profileMenu"_s), u"Everything, Fields, Console*"_s);
        QCOMPARE(entries(), u"Profile Selector, Console*"_s);
    }

    void pluginOfAThirdPartyWorks()
    {
        InspectorFixture inspector(*m_folder);
        inspector.clickNode(u"Table place"_s);
        const QDockWidget* const dock = inspector.dock(u"Node Editor"_s);
        QWidget* const view = inspector.dock(u"Scene View"_s)->widget();
        const QImage before = view->grab().toImage();
        QTest::mouseClick(dock->findChild<QAbstractButton*>(u"moveBack"_s), Qt::LeftButton);
        QTRY_VERIFY(dock->findChild<QLabel*>(u"distance"_s)->text().contains(u"by 0 "_s));
        QTRY_VERIFY(view->grab().toImage() != before);
        inspector.press(QKeySequence::Undo);
        QCOMPARE(inspector.text(u"Table place.translation"_s), u"0 0.74 0"_s);
        inspector.clickNode(u"Oak"_s);
        QVERIFY(!dock->isVisible());
    }

    void nextStartRemembers()
    {
        {
            InspectorFixture inspector(*m_folder);
            inspector.choose(u"viewMenu"_s, u"Console"_s);
            inspector.dock(u"historyDock"_s)->hide();
            inspector.clickField(u"Desk lamp"_s, u"on"_s);
            inspector.window.close();
        }
        InspectorFixture inspector(*m_folder);
        for (const QString& dock : { u"historyDock"_s, u"Console"_s })
            QVERIFY2(inspector.dock(dock)->isHidden(), qPrintable(dock));
        QVERIFY(!inspector.entries(u"viewMenu"_s).contains(u"Console*"_s));

        // A refused file is not remembered, and leaves the scene.
        const KnNodePtr root = inspector.window.document().root();
        inspector.answerNextQuestion(QMessageBox::Ok);
        const QString missing = m_folder->filePath(u"missing.json"_s);
        inspector.window.findChild<FileMenu*>()->openFile(missing);
        QCOMPARE(inspector.window.document().root().get(), root.get());
        QVERIFY(inspector.window.windowTitle().startsWith(u"scene.json"_s));
        QVERIFY(inspector.console().contains(missing + u": "_s));
        const auto* const menu = inspector.window.findChild<QMenu*>(u"recentFilesMenu"_s);
        QCOMPARE(menu->actions().size(), 1);
        menu->actions().constFirst()->trigger();
        QVERIFY(inspector.window.document().root().get() != root.get());
    }

    void doubtfulLayoutIsNotUsed_data()
    {
        const char* const damaged = "is damaged and is not used.";
        addTextRows({ { "window/layout", damaged }, { "window/geometry", damaged },
            { "window/check", damaged },
            { "window/restoring", "is not used again: the program" } });
    }
    void doubtfulLayoutIsNotUsed()
    {
        const auto [key, word] = textRow<2>();
        for (int start = 1; start <= 3; ++start) {
            const bool doubtful = start == 2;
            if (doubtful)
                QSettings(m_settingsFile, QSettings::IniFormat).setValue(key, QByteArray(1, '\0'));
            InspectorFixture inspector(*m_folder);
            QCOMPARE(inspector.console().contains(u"The saved window layout "_s + word), doubtful);
            QCOMPARE(inspector.dock(u"historyDock"_s)->isVisible(), start < 3);
            inspector.dock(u"historyDock"_s)->hide();
            inspector.window.close();
        }
    }

    void layoutIsMarkedUntilItIsSeen()
    {
        {
            InspectorFixture inspector(*m_folder);
            inspector.window.QMainWindow::addDockWidget(
                Qt::TopDockWidgetArea, inspector.dock(u"historyDock"_s));
            inspector.window.close();
        }
        const auto marked = [this] {
            QFile file(m_settingsFile);
            return file.open(QIODevice::ReadOnly) && file.readAll().contains("restoring=true");
        };
        QSettings settings(m_settingsFile, QSettings::IniFormat);
        MainWindow window(&settings);
        auto* const dock = window.findChild<QDockWidget*>(u"historyDock"_s);
        bool markedInTime = false;
        connect(dock, &QDockWidget::dockLocationChanged, this,
            [inTime = &markedInTime, marked] { *inTime = marked(); });
        QVERIFY(!marked());
        window.restoreLayout();
        QVERIFY(markedInTime);
        QCOMPARE(window.dockWidgetArea(dock), Qt::TopDockWidgetArea);
        QCoreApplication::processEvents();
        settings.sync();
        QVERIFY(marked()); // there is no window to be seen yet
        window.show();
        QTRY_VERIFY((settings.sync(), !marked()));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_settingsFile;
};

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
