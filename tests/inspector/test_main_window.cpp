// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "FileMenu.h"
#include "InspectorFixture.h"
#include "KnMFields.h"
#include "KnSFields.h"
#include "KnSensorQueue.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeView>
#include <QUndoStack>

using namespace Qt::StringLiterals;

class TestMainWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // What the offscreen platform has to say of itself.
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        m_folder = std::make_unique<QTemporaryDir>();
    }
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void clicksSelect();
    void selectionFromElsewhereIsShown();
    void editIsUndoneAndSaved();
    void undoKeysReachTheSceneFromALineEdit();
    void typedTextIsSavedToo();
    void typedTextOutlivesTheSelection();
    void writesWithoutCommandsModify();
    void largeArrayStaysModified();
    void closingAsksFirst();
    void refusedFileChangesNothing();
    void openedFilesAreRemembered();
    void viewMenuFollowsTheDocks();
    void profilesCanBeChosen();
    void layoutComesBack();
    void messagesReachTheConsole();
    void pluginOfAThirdPartyWorks();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestMainWindow::clicksSelect()
{
    InspectorFixture inspector(*m_folder);
    const CrvServices* const services = CrvServices::getInstance();
    QVERIFY(!inspector.dock(u"Field Editor"_s)->isVisible());

    inspector.clickNode(u"Desk lamp"_s);
    QCOMPARE(services->getSelectedNode(), inspector.field(u"Desk lamp.on"_s)->getContainer());
    QVERIFY(!services->getSelectedField());
    inspector.clickField(u"intensity"_s);
    QCOMPARE(services->getSelectedField(), inspector.field(u"Desk lamp.intensity"_s));
    QVERIFY(inspector.dock(u"Field Editor"_s)->isVisible());

    inspector.clickNode(u"Room"_s);
    QVERIFY(!services->getSelectedField());
    QVERIFY(!inspector.dock(u"Field Editor"_s)->isVisible());
}

void TestMainWindow::selectionFromElsewhereIsShown()
{
    InspectorFixture inspector(*m_folder);
    const auto current = [&inspector](const QString& view) {
        return inspector.window.findChild<QTreeView*>(view)->currentIndex().data().toString();
    };
    CrvServices* const services = CrvServices::getInstance();
    services->selectField(inspector.field(u"Oak.transparency"_s));
    QCOMPARE(current(u"sceneTree"_s), u"Oak"_s);
    QCOMPARE(current(u"fieldList"_s), u"transparency"_s);
    QVERIFY(inspector.window.findChild<QLabel*>(u"fieldHeading"_s)->text().contains(u"Oak"_s));
    services->selectNode(nullptr);
    QCOMPARE(current(u"sceneTree"_s), QString());
    QCOMPARE(current(u"fieldList"_s), QString());
}

void TestMainWindow::editIsUndoneAndSaved()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Desk lamp"_s);
    inspector.clickField(u"on"_s);
    QVERIFY(!inspector.window.isWindowModified());

    QTest::mouseClick(inspector.inEditor<QCheckBox>(), Qt::LeftButton);
    QCOMPARE(inspector.text(u"Desk lamp.on"_s), u"TRUE"_s);
    QTRY_VERIFY(inspector.window.isWindowModified());
    inspector.press(QKeySequence::Undo);
    QCOMPARE(inspector.text(u"Desk lamp.on"_s), u"FALSE"_s);
    QTRY_VERIFY(!inspector.window.isWindowModified());
    inspector.press(QKeySequence(Qt::CTRL | Qt::Key_Y));
    QTRY_VERIFY(inspector.window.isWindowModified());

    inspector.press(QKeySequence::Save);
    QCOMPARE(inspector.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
    QVERIFY(!inspector.window.isWindowModified());
    inspector.press(QKeySequence::Undo);
    QTRY_VERIFY(inspector.window.isWindowModified());
    inspector.answerNextQuestion(QMessageBox::Discard);
    inspector.window.close();
    QCOMPARE(inspector.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
}

void TestMainWindow::undoKeysReachTheSceneFromALineEdit()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Front view"_s);
    inspector.clickField(u"description"_s);
    auto* const line = inspector.inEditor<QLineEdit>();
    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClicks(line, u"Porch"_s);
    // What is being typed is the line's own to undo.
    inspector.press(QKeySequence::Undo);
    QCOMPARE(line->text(), u"From the door"_s);
    inspector.press(QKeySequence::Redo);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(inspector.text(u"Front view.description"_s), u"\"Porch\""_s);
    QTRY_VERIFY(!line->isUndoAvailable());

    QVERIFY(line->hasFocus());
    inspector.press(QKeySequence::Undo);
    QCOMPARE(inspector.text(u"Front view.description"_s), u"\"From the door\""_s);
    QTRY_COMPARE(line->text(), u"From the door"_s);
    inspector.press(QKeySequence::Redo);
    QCOMPARE(inspector.text(u"Front view.description"_s), u"\"Porch\""_s);
    inspector.press(QKeySequence::Undo);
}

void TestMainWindow::typedTextIsSavedToo()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Front view"_s);
    inspector.clickField(u"description"_s);
    auto* const line = inspector.inEditor<QLineEdit>();
    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClicks(line, u"Porch"_s);
    inspector.press(QKeySequence::Save);
    QCOMPARE(inspector.savedText(u"Front view.description"_s), u"\"Porch\""_s);
    QVERIFY(!inspector.window.isWindowModified());
    QVERIFY(line->hasFocus());
    QTest::keyClicks(line, u"!"_s);
    inspector.answerNextQuestion(QMessageBox::Save);
    inspector.window.close();
    QCOMPARE(inspector.savedText(u"Front view.description"_s), u"\"Porch!\""_s);
}

void TestMainWindow::typedTextOutlivesTheSelection()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Front view"_s);
    inspector.clickField(u"description"_s);
    auto* const line = inspector.inEditor<QLineEdit>();
    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClicks(line, u"Porch"_s);
    inspector.clickNode(u"Desk lamp"_s);
    QCOMPARE(inspector.text(u"Front view.description"_s), u"\"Porch\""_s);
    QTRY_VERIFY(inspector.window.isWindowModified());
    inspector.press(QKeySequence::Undo);
    QCOMPARE(inspector.text(u"Front view.description"_s), u"\"From the door\""_s);
    QTRY_VERIFY(!inspector.window.isWindowModified());
}

void TestMainWindow::writesWithoutCommandsModify()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Oak"_s);
    auto* const shininess = dynamic_cast<KnMFFloat*>(inspector.field(u"Oak.shininess"_s));
    const float former = (*shininess)[0];
    shininess->set1Value(0, 0.5F);
    QTRY_VERIFY(inspector.window.isWindowModified());
    shininess->set1Value(0, former);
    QTRY_VERIFY(!inspector.window.isWindowModified());
    shininess->setIgnored(1);
    QTRY_VERIFY(inspector.window.isWindowModified());
    shininess->setIgnored(0);
    QTRY_VERIFY(!inspector.window.isWindowModified());

    // The scene that was watched is gone; the next one starts anew.
    shininess->set1Value(0, 0.5F);
    inspector.answerNextQuestion(QMessageBox::Discard);
    inspector.window.findChild<FileMenu*>()->openFile(inspector.sceneFile());
    QVERIFY(!inspector.window.isWindowModified());
    QVERIFY(inspector.field(u"Oak.shininess"_s) != shininess);
}

void TestMainWindow::largeArrayStaysModified()
{
    InspectorFixture inspector(*m_folder);
    // A command of the former scene has nothing to do with what comes.
    inspector.clickNode(u"Desk lamp"_s);
    inspector.clickField(u"on"_s);
    QTest::mouseClick(inspector.inEditor<QCheckBox>(), Qt::LeftButton);
    QString error;
    QVERIFY(
        inspector.window.document().open(QStringLiteral(CORVANE_SCENES "/station.json"), &error));
    QVERIFY(!inspector.window.isWindowModified());
    auto* const points = dynamic_cast<KnMFVec3f*>(inspector.field(u"Shield points.point"_s));
    CrvServices::getInstance()->selectField(points);
    const KbVec3f former = (*points)[0];
    points->set1Value(0, KbVec3f(1.0F, 2.0F, 3.0F));
    QTRY_VERIFY(inspector.window.isWindowModified());
    points->set1Value(0, former);
    QTRY_VERIFY(KnSensorQueue::getInstance().isEmpty());
    QVERIFY(inspector.window.isWindowModified());
    const QString copy = m_folder->filePath(u"copy.json"_s);
    QVERIFY2(inspector.window.document().save(copy, &error), qPrintable(error));
    QVERIFY(!inspector.window.isWindowModified());
}

void TestMainWindow::closingAsksFirst()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Desk lamp"_s);
    // No event has told of this edit yet when the window is to close.
    inspector.field(u"Desk lamp.on"_s)->set("TRUE");
    inspector.answerNextQuestion(QMessageBox::Cancel);
    inspector.window.close();
    QVERIFY(inspector.window.isVisible());
    inspector.answerNextQuestion(QMessageBox::Save);
    inspector.window.close();
    QVERIFY(!inspector.window.isVisible());
    QCOMPARE(inspector.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
}

void TestMainWindow::refusedFileChangesNothing()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Desk lamp"_s);
    const KnFieldContainer* const root = inspector.window.document().root().get();
    inspector.answerNextQuestion(QMessageBox::Ok);
    inspector.window.findChild<FileMenu*>()->openFile(m_folder->filePath(u"missing.json"_s));
    QCOMPARE(inspector.window.document().root().get(), root);
    QCOMPARE(CrvServices::getInstance()->getSelectedNode(),
        inspector.field(u"Desk lamp.on"_s)->getContainer());
    QVERIFY(inspector.window.windowTitle().startsWith(u"scene.json"_s));
}

void TestMainWindow::openedFilesAreRemembered()
{
    QString entry;
    {
        InspectorFixture inspector(*m_folder);
        auto* const menu = inspector.window.findChild<QMenu*>(u"recentFilesMenu"_s);
        QCOMPARE(menu->actions().size(), 1);
        entry = menu->actions().constFirst()->text();
        QVERIFY(entry.endsWith(u"scene.json"_s));
    }
    InspectorFixture inspector(*m_folder);
    auto* const menu = inspector.window.findChild<QMenu*>(u"recentFilesMenu"_s);
    QCOMPARE(menu->actions().size(), 1);
    const NodePtr former = inspector.window.document().root();
    menu->actions().constFirst()->trigger();
    QVERIFY(inspector.window.document().root().get() != former.get());
}

void TestMainWindow::viewMenuFollowsTheDocks()
{
    InspectorFixture inspector(*m_folder);
    const auto entry
        = [&inspector](const QString& name) { return inspector.action(u"viewMenu"_s, name); };
    QVERIFY(entry(u"Console"_s)->isChecked());
    QVERIFY(!entry(u"Field Editor"_s)->isChecked());
    inspector.clickNode(u"Desk lamp"_s);
    inspector.clickField(u"on"_s);
    QVERIFY(entry(u"Field Editor"_s)->isChecked());

    QDockWidget* const console = inspector.dock(u"Console"_s);
    QTest::mouseClick(
        console->findChild<QAbstractButton*>(u"qt_dockwidget_closebutton"_s), Qt::LeftButton);
    QVERIFY(console->isHidden());
    QVERIFY(!entry(u"Console"_s)->isChecked());
    inspector.choose(u"viewMenu"_s, u"Console"_s);
    QVERIFY(console->isVisible());
    QVERIFY(entry(u"Console"_s)->isChecked());
    inspector.choose(u"viewMenu"_s, u"Profile Selector"_s);
    QVERIFY(inspector.window.findChild<QToolBar*>()->isHidden());
    // A window out of sight doesn't close its docks.
    inspector.window.hide();
    QVERIFY(entry(u"Console"_s)->isChecked());
}

void TestMainWindow::profilesCanBeChosen()
{
    InspectorFixture inspector(*m_folder, u"Fields"_s);
    QVERIFY(!inspector.action(u"viewMenu"_s, u"Console"_s));
    QVERIFY(inspector.action(u"profileMenu"_s, u"Fields"_s)->isChecked());
    inspector.clickNode(u"Desk lamp"_s);
    inspector.clickField(u"on"_s);

    inspector.choose(u"profileMenu"_s, u"Everything"_s);
    QVERIFY(inspector.action(u"profileMenu"_s, u"Everything"_s)->isChecked());
    QVERIFY(!inspector.action(u"profileMenu"_s, u"Fields"_s)->isChecked());
    QVERIFY(inspector.dock(u"Console"_s)->isVisible());
    QVERIFY(inspector.dock(u"Field Editor"_s)->isVisible());

    inspector.choose(u"profileMenu"_s, u"Console"_s);
    QVERIFY(!inspector.dock(u"Field Editor"_s));
    QVERIFY(!inspector.action(u"viewMenu"_s, u"Field Editor"_s));
    inspector.choose(u"profileMenu"_s, u"Everything"_s);
    QVERIFY(inspector.dock(u"Field Editor"_s)->isVisible());
}

void TestMainWindow::layoutComesBack()
{
    {
        InspectorFixture inspector(*m_folder);
        inspector.clickNode(u"Desk lamp"_s);
        inspector.clickField(u"on"_s);
        inspector.choose(u"viewMenu"_s, u"Console"_s);
        inspector.dock(u"History"_s)->hide();
        inspector.window.close();
    }
    InspectorFixture inspector(*m_folder);
    QVERIFY(inspector.dock(u"History"_s)->isHidden());
    QVERIFY(inspector.dock(u"Console"_s)->isHidden());
    QVERIFY(!inspector.action(u"viewMenu"_s, u"Console"_s)->isChecked());
    // It was open, but there is nothing to edit yet.
    QVERIFY(inspector.dock(u"Field Editor"_s)->isHidden());
}

void TestMainWindow::messagesReachTheConsole()
{
    InspectorFixture inspector(*m_folder);
    const auto* const view = inspector.window.findChild<QTextEdit*>(u"m_consoleOutput"_s);
    QCOMPARE(view->toPlainText(), u"Opened "_s + inspector.sceneFile() + u": 25 nodes"_s);
    inspector.field(u"Desk lamp.intensity"_s)->set("bright");
    QTRY_VERIFY(view->toPlainText().contains(u"intensity"_s));
}

void TestMainWindow::pluginOfAThirdPartyWorks()
{
    InspectorFixture inspector(*m_folder);
    inspector.clickNode(u"Table place"_s);
    QDockWidget* const dock = inspector.dock(u"Node Editor"_s);
    QVERIFY(dock->isVisible());
    const auto* const distance = dock->findChild<QLabel*>(u"distance"_s);
    QVERIFY2(distance->text().contains(u"0.74"_s), qPrintable(distance->text()));
    QTest::mouseClick(dock->findChild<QPushButton*>(u"moveBack"_s), Qt::LeftButton);
    QCOMPARE(inspector.text(u"Table place.translation"_s), u"0 0 0"_s);
    QTRY_VERIFY(distance->text().contains(u"by 0 "_s));
    inspector.press(QKeySequence::Undo);
    QCOMPARE(inspector.text(u"Table place.translation"_s), u"0 0.74 0"_s);
    inspector.clickNode(u"Oak"_s);
    QVERIFY(!dock->isVisible());
}

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
