// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfile.h"
#include "CrvServices.h"
#include "FileMenu.h"
#include "InspectorFixture.h"
#include "KnMatrixTransform.h"
#include "KnViewpoint.h"

#include <QLineEdit>
#include <QPushButton>

/// The selection while panes come and go below the focus.
class TestSelection : public InspectorTest {
    Q_OBJECT
private Q_SLOTS:
    void anEditorGoesThatHadTheFocus_data()
    {
        QTest::addColumn<bool>("inScene"); // whether the tree shows the node
        QTest::addColumn<bool>("popup"); // whether the popup of its editor is open
        for (const char* then : { "field", "nothing", "node", "profile", "scene" }) {
            for (const bool inScene : { false, true }) {
                for (const bool popup : { false, true })
                    QTest::addRow("%s, %d, %d", then, inScene, popup) << inScene << popup;
            }
        }
    }
    void anEditorGoesThatHadTheFocus()
    {
        QFETCH(bool, inScene);
        QFETCH(bool, popup);
        const QByteArray then = QByteArray(QTest::currentDataTag()).split(',').constFirst();
        CrvServices* const services = CrvServices::getInstance();
        KnField* const oak = m_inspector->field(u"Oak.transparency"_s);
        if (inScene) {
            services->selectField(
                m_inspector->field(popup ? u"Frame place.matrix"_s : u"Front view.description"_s));
            QTest::keyClicks(m_inspector->window.findChild<QLineEdit*>(u"sceneFilter"_s), u"oak"_s);
        } else {
            services->selectField(
                popup ? m_transform->getField("matrix") : m_viewpoint->getField("description"));
        }
        const QString before = selection();
        QVERIFY(before.contains(u'.'));
        QVERIFY(!m_inspector->view(u"sceneTree"_s)->currentIndex().isValid());

        QWidget* const frame = m_inspector->dock(u"Field Editor"_s)->widget();
        if (popup)
            QTest::mouseClick(frame->findChild<QPushButton*>(u"m_editButton"_s), Qt::LeftButton);
        auto* const line = frame->findChild<QLineEdit*>(popup ? u"m_lineEdits"_s : u"lineEdit"_s);
        QTest::mouseClick(line, Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), line);

        QString expected = before;
        if (then == "field") {
            services->selectField(oak);
            expected = u"Oak.transparency"_s;
        } else if (then == "nothing") {
            services->selectField(nullptr);
            expected = before.section(u'.', 0, 0);
        } else if (then == "node") {
            services->selectNode(oak->getContainer());
            expected = u"Oak"_s;
        } else if (then == "profile") {
            CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
            manager->setActiveProfile(manager->getProfilesList().back());
            QVERIFY(!m_inspector->dock(u"Field Editor"_s));
        } else {
            // The line that is left has made a command.
            m_inspector->answerNextQuestion(QMessageBox::Discard);
            m_inspector->window.findChild<FileMenu*>()->openFile(m_inspector->sceneFile);
            expected = u"Workshop.visible"_s; // where a scene begins
        }
        QCoreApplication::processEvents();
        QCOMPARE(selection(), expected);
    }

    void theFocusSelectsNothing()
    {
        for (const QString& name : { u"sceneTree"_s, u"fieldList"_s }) {
            CrvServices* const services = CrvServices::getInstance();
            services->selectNode(
                name == u"sceneTree"_s ? nullptr : services->getRoots().front().get());
            services->selectField(nullptr);
            auto* const view = m_inspector->view(name);
            const QString before = selection();
            view->setFocus(Qt::TabFocusReason);
            QVERIFY(view->hasFocus() && !view->currentIndex().isValid());
            QCOMPARE(selection(), before);
            // A key does: it goes to the first row.
            QTest::keyClick(view, Qt::Key_Down);
            QCOMPARE(view->currentIndex().row(), 0);
            QVERIFY(selection() != before);
        }
    }

private:
    static QString selection()
    {
        const CrvServices* const services = CrvServices::getInstance();
        const KnFieldContainer* const node = services->getSelectedNode();
        const KnField* const field = services->getSelectedField();
        return node ? nodeLabel(*node) + (field ? u'.' + fieldName(*field) : QString()) : QString();
    }

    // Nodes that the scene on the screen doesn't have.
    const KnNodePtr m_transform { new KnMatrixTransform };
    const KnNodePtr m_viewpoint { new KnViewpoint };
};

QTEST_MAIN(TestSelection)
#include "test_selection.moc"
