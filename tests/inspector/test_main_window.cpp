// SPDX-License-Identifier: BSD-3-Clause
#include "CrvPluginsManager.h"
#include "CrvProfile.h"
#include "CrvServices.h"
#include "FileMenu.h"
#include "InspectorSession.h"
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
    InspectorSession session(*m_folder);
    const CrvServices* const services = CrvServices::getInstance();
    QVERIFY(!session.dock(u"Field Editor"_s)->isVisible());

    session.clickNode(u"Desk lamp"_s);
    QCOMPARE(services->getSelectedNode(), session.field(u"Desk lamp.on"_s)->getContainer());
    QVERIFY(!services->getSelectedField());
    session.clickField(u"intensity"_s);
    QCOMPARE(services->getSelectedField(), session.field(u"Desk lamp.intensity"_s));
    QVERIFY(session.dock(u"Field Editor"_s)->isVisible());

    session.clickNode(u"Room"_s);
    QVERIFY(!services->getSelectedField());
    QVERIFY(!session.dock(u"Field Editor"_s)->isVisible());
}

void TestMainWindow::selectionFromElsewhereIsShown()
{
    InspectorSession session(*m_folder);
    const auto current = [&session](const QString& view) {
        return session.window.findChild<QTreeView*>(view)->currentIndex().data().toString();
    };
    CrvServices* const services = CrvServices::getInstance();
    services->selectField(session.field(u"Oak.transparency"_s));
    QCOMPARE(current(u"sceneTree"_s), u"Oak"_s);
    QCOMPARE(current(u"fieldList"_s), u"transparency"_s);
    QVERIFY(session.window.findChild<QLabel*>(u"fieldHeading"_s)->text().contains(u"Oak"_s));
    services->selectNode(nullptr);
    QCOMPARE(current(u"sceneTree"_s), QString());
    QCOMPARE(current(u"fieldList"_s), QString());
}

void TestMainWindow::editIsUndoneAndSaved()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Desk lamp"_s);
    session.clickField(u"on"_s);
    QVERIFY(!session.window.isWindowModified());

    QTest::mouseClick(session.inEditor<QCheckBox>(), Qt::LeftButton);
    QCOMPARE(session.text(u"Desk lamp.on"_s), u"TRUE"_s);
    QTRY_VERIFY(session.window.isWindowModified());
    session.press(QKeySequence::Undo);
    QCOMPARE(session.text(u"Desk lamp.on"_s), u"FALSE"_s);
    QTRY_VERIFY(!session.window.isWindowModified());
    session.press(QKeySequence(Qt::CTRL | Qt::Key_Y));
    QTRY_VERIFY(session.window.isWindowModified());

    session.press(QKeySequence::Save);
    QCOMPARE(session.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
    QVERIFY(!session.window.isWindowModified());
    session.press(QKeySequence::Undo);
    QTRY_VERIFY(session.window.isWindowModified());
    session.answerNextQuestion(QMessageBox::Discard);
    session.window.close();
    QCOMPARE(session.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
}

void TestMainWindow::undoKeysReachTheSceneFromALineEdit()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Front view"_s);
    session.clickField(u"description"_s);
    auto* const line = session.inEditor<QLineEdit>();
    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClicks(line, u"Porch"_s);
    // What is being typed is the line's own to undo.
    session.press(QKeySequence::Undo);
    QCOMPARE(line->text(), u"From the door"_s);
    session.press(QKeySequence::Redo);
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(session.text(u"Front view.description"_s), u"\"Porch\""_s);
    QTRY_VERIFY(!line->isUndoAvailable());

    QVERIFY(line->hasFocus());
    session.press(QKeySequence::Undo);
    QCOMPARE(session.text(u"Front view.description"_s), u"\"From the door\""_s);
    QTRY_COMPARE(line->text(), u"From the door"_s);
    session.press(QKeySequence::Redo);
    QCOMPARE(session.text(u"Front view.description"_s), u"\"Porch\""_s);
    session.press(QKeySequence::Undo);
}

void TestMainWindow::typedTextIsSavedToo()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Front view"_s);
    session.clickField(u"description"_s);
    auto* const line = session.inEditor<QLineEdit>();
    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClicks(line, u"Porch"_s);
    session.press(QKeySequence::Save);
    QCOMPARE(session.savedText(u"Front view.description"_s), u"\"Porch\""_s);
    QVERIFY(!session.window.isWindowModified());
    QVERIFY(line->hasFocus());
    QTest::keyClicks(line, u"!"_s);
    session.answerNextQuestion(QMessageBox::Save);
    session.window.close();
    QCOMPARE(session.savedText(u"Front view.description"_s), u"\"Porch!\""_s);
}

void TestMainWindow::typedTextOutlivesTheSelection()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Front view"_s);
    session.clickField(u"description"_s);
    auto* const line = session.inEditor<QLineEdit>();
    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClicks(line, u"Porch"_s);
    session.clickNode(u"Desk lamp"_s);
    QCOMPARE(session.text(u"Front view.description"_s), u"\"Porch\""_s);
    QTRY_VERIFY(session.window.isWindowModified());
    session.press(QKeySequence::Undo);
    QCOMPARE(session.text(u"Front view.description"_s), u"\"From the door\""_s);
    QTRY_VERIFY(!session.window.isWindowModified());
}

void TestMainWindow::writesWithoutCommandsModify()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Oak"_s);
    auto* const shininess = dynamic_cast<KnMFFloat*>(session.field(u"Oak.shininess"_s));
    const float former = (*shininess)[0];
    shininess->set1Value(0, 0.5F);
    QTRY_VERIFY(session.window.isWindowModified());
    shininess->set1Value(0, former);
    QTRY_VERIFY(!session.window.isWindowModified());
    shininess->setIgnored(1);
    QTRY_VERIFY(session.window.isWindowModified());
    shininess->setIgnored(0);
    QTRY_VERIFY(!session.window.isWindowModified());

    // The scene that was watched is gone; the next one starts anew.
    shininess->set1Value(0, 0.5F);
    session.answerNextQuestion(QMessageBox::Discard);
    session.window.findChild<FileMenu*>()->openFile(session.sceneFile());
    QVERIFY(!session.window.isWindowModified());
    QVERIFY(session.field(u"Oak.shininess"_s) != shininess);
}

void TestMainWindow::largeArrayStaysModified()
{
    InspectorSession session(*m_folder);
    // A command of the former scene has nothing to do with what comes.
    session.clickNode(u"Desk lamp"_s);
    session.clickField(u"on"_s);
    QTest::mouseClick(session.inEditor<QCheckBox>(), Qt::LeftButton);
    QString error;
    QVERIFY(session.window.document().open(QStringLiteral(CORVANE_SCENES "/station.json"), &error));
    QVERIFY(!session.window.isWindowModified());
    auto* const points = dynamic_cast<KnMFVec3f*>(session.field(u"Shield points.point"_s));
    CrvServices::getInstance()->selectField(points);
    const KbVec3f former = (*points)[0];
    points->set1Value(0, KbVec3f(1.0F, 2.0F, 3.0F));
    QTRY_VERIFY(session.window.isWindowModified());
    points->set1Value(0, former);
    QTRY_VERIFY(KnSensorQueue::getInstance().isEmpty());
    QVERIFY(session.window.isWindowModified());
    const QString copy = m_folder->filePath(u"copy.json"_s);
    QVERIFY2(session.window.document().save(copy, &error), qPrintable(error));
    QVERIFY(!session.window.isWindowModified());
}

void TestMainWindow::closingAsksFirst()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Desk lamp"_s);
    // No event has told of this edit yet when the window is to close.
    session.field(u"Desk lamp.on"_s)->set("TRUE");
    session.answerNextQuestion(QMessageBox::Cancel);
    session.window.close();
    QVERIFY(session.window.isVisible());
    session.answerNextQuestion(QMessageBox::Save);
    session.window.close();
    QVERIFY(!session.window.isVisible());
    QCOMPARE(session.savedText(u"Desk lamp.on"_s), u"TRUE"_s);
}

void TestMainWindow::refusedFileChangesNothing()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Desk lamp"_s);
    const KnFieldContainer* const root = session.window.document().root().get();
    session.answerNextQuestion(QMessageBox::Ok);
    session.window.findChild<FileMenu*>()->openFile(m_folder->filePath(u"missing.json"_s));
    QCOMPARE(session.window.document().root().get(), root);
    QCOMPARE(CrvServices::getInstance()->getSelectedNode(),
        session.field(u"Desk lamp.on"_s)->getContainer());
    QVERIFY(session.window.windowTitle().startsWith(u"scene.json"_s));
}

void TestMainWindow::openedFilesAreRemembered()
{
    QString entry;
    {
        InspectorSession session(*m_folder);
        auto* const menu = session.window.findChild<QMenu*>(u"recentFilesMenu"_s);
        QCOMPARE(menu->actions().size(), 1);
        entry = menu->actions().constFirst()->text();
        QVERIFY(entry.endsWith(u"scene.json"_s));
    }
    InspectorSession session(*m_folder);
    auto* const menu = session.window.findChild<QMenu*>(u"recentFilesMenu"_s);
    QCOMPARE(menu->actions().size(), 1);
    const NodePtr former = session.window.document().root();
    menu->actions().constFirst()->trigger();
    QVERIFY(session.window.document().root().get() != former.get());
}

void TestMainWindow::viewMenuFollowsTheDocks()
{
    InspectorSession session(*m_folder);
    const auto entry
        = [&session](const QString& name) { return session.action(u"viewMenu"_s, name); };
    QVERIFY(entry(u"Console"_s)->isChecked());
    QVERIFY(!entry(u"Field Editor"_s)->isChecked());
    session.clickNode(u"Desk lamp"_s);
    session.clickField(u"on"_s);
    QVERIFY(entry(u"Field Editor"_s)->isChecked());

    QDockWidget* const console = session.dock(u"Console"_s);
    QTest::mouseClick(
        console->findChild<QAbstractButton*>(u"qt_dockwidget_closebutton"_s), Qt::LeftButton);
    QVERIFY(console->isHidden());
    QVERIFY(!entry(u"Console"_s)->isChecked());
    session.choose(u"viewMenu"_s, u"Console"_s);
    QVERIFY(console->isVisible());
    QVERIFY(entry(u"Console"_s)->isChecked());
    session.choose(u"viewMenu"_s, u"Profile Selector"_s);
    QVERIFY(session.window.findChild<QToolBar*>()->isHidden());
    // A window out of sight doesn't close its docks.
    session.window.hide();
    QVERIFY(entry(u"Console"_s)->isChecked());
}

void TestMainWindow::profilesCanBeChosen()
{
    InspectorSession session(*m_folder, u"Fields"_s);
    QVERIFY(!session.action(u"viewMenu"_s, u"Console"_s));
    QVERIFY(session.action(u"profileMenu"_s, u"Fields"_s)->isChecked());
    session.clickNode(u"Desk lamp"_s);
    session.clickField(u"on"_s);

    session.choose(u"profileMenu"_s, u"Everything"_s);
    QVERIFY(session.action(u"profileMenu"_s, u"Everything"_s)->isChecked());
    QVERIFY(!session.action(u"profileMenu"_s, u"Fields"_s)->isChecked());
    QVERIFY(session.dock(u"Console"_s)->isVisible());
    QVERIFY(session.dock(u"Field Editor"_s)->isVisible());

    session.choose(u"profileMenu"_s, u"Console"_s);
    QVERIFY(!session.dock(u"Field Editor"_s));
    QVERIFY(!session.action(u"viewMenu"_s, u"Field Editor"_s));
    session.choose(u"profileMenu"_s, u"Everything"_s);
    QVERIFY(session.dock(u"Field Editor"_s)->isVisible());
}

void TestMainWindow::layoutComesBack()
{
    {
        InspectorSession session(*m_folder);
        session.clickNode(u"Desk lamp"_s);
        session.clickField(u"on"_s);
        session.choose(u"viewMenu"_s, u"Console"_s);
        session.dock(u"History"_s)->hide();
        session.window.close();
    }
    InspectorSession session(*m_folder);
    QVERIFY(session.dock(u"History"_s)->isHidden());
    QVERIFY(session.dock(u"Console"_s)->isHidden());
    QVERIFY(!session.action(u"viewMenu"_s, u"Console"_s)->isChecked());
    // It was open, but there is nothing to edit yet.
    QVERIFY(session.dock(u"Field Editor"_s)->isHidden());
}

void TestMainWindow::messagesReachTheConsole()
{
    InspectorSession session(*m_folder);
    const auto* const view = session.window.findChild<QTextEdit*>(u"m_consoleOutput"_s);
    QCOMPARE(view->toPlainText(), u"Opened "_s + session.sceneFile() + u": 25 nodes"_s);
    session.field(u"Desk lamp.intensity"_s)->set("bright");
    QTRY_VERIFY(view->toPlainText().contains(u"intensity"_s));
}

void TestMainWindow::pluginOfAThirdPartyWorks()
{
    InspectorSession session(*m_folder);
    session.clickNode(u"Table place"_s);
    QDockWidget* const dock = session.dock(u"Node Editor"_s);
    QVERIFY(dock->isVisible());
    const auto* const distance = dock->findChild<QLabel*>(u"distance"_s);
    QVERIFY2(distance->text().contains(u"0.74"_s), qPrintable(distance->text()));
    QTest::mouseClick(dock->findChild<QPushButton*>(u"moveBack"_s), Qt::LeftButton);
    QCOMPARE(session.text(u"Table place.translation"_s), u"0 0 0"_s);
    QTRY_VERIFY(distance->text().contains(u"by 0 "_s));
    session.press(QKeySequence::Undo);
    QCOMPARE(session.text(u"Table place.translation"_s), u"0 0.74 0"_s);
    session.clickNode(u"Oak"_s);
    QVERIFY(!dock->isVisible());
}

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
