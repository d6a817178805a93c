// SPDX-License-Identifier: BSD-3-Clause
#include "CrvProfile.h"
#include "CrvServices.h"
#include "FileMenu.h"
#include "InspectorFixture.h"
#include "KnMatrixTransform.h"
#include "KnViewpoint.h"

#include <QLineEdit>
#include <QPushButton>

namespace {

/// A node that the scene on the screen doesn't have.
template <class Node>
class OtherNode : public Node {
public:
    OtherNode()
    {
        this->ref();
        this->setName(KbName("Other"));
    }
};

} // namespace

/// The selection while panes come and go below the focus.
class TestSelection : public QObject {
    Q_OBJECT
private Q_SLOTS:
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

    void anEditorGoesThatHadTheFocus_data()
    {
        QTest::addColumn<bool>("inScene"); // whether the tree shows the node
        QTest::addColumn<bool>("popup"); // whether the popup of its editor is open
        QTest::addColumn<char>("then"); // f(ield), n(ode), p(rofile), s(cene)
        QTest::addColumn<QString>("selected");
        for (const bool popup : { false, true }) {
            for (const bool inScene : { false, true }) {
                const auto row = [=](const char* what, char then, const QString& selected) {
                    QTest::addRow("%s, %s, %s", what, inScene ? "filtered away" : "of no scene",
                        popup ? "popup" : "line")
                        << inScene << popup << then << selected;
                };
                const QString before
                    = (inScene ? popup ? u"Frame place"_s : u"Front view"_s : u"Other"_s)
                    + (popup ? u".matrix"_s : u".description"_s);
                row("another field", 'f', u"Oak.transparency"_s);
                row("no field", '0', before.section(u'.', 0, 0));
                row("another node", 'n', u"Oak"_s);
                row("another profile", 'p', before);
                row("another scene", 's', QString());
            }
        }
    }
    void anEditorGoesThatHadTheFocus()
    {
        QFETCH(bool, inScene);
        QFETCH(bool, popup);
        QFETCH(char, then);
        QFETCH(QString, selected);
        CrvServices* const services = CrvServices::getInstance();
        KnField* const oak = m_inspector->field(u"Oak.transparency"_s);
        if (inScene) {
            services->selectField(
                m_inspector->field(popup ? u"Frame place.matrix"_s : u"Front view.description"_s));
            QTest::keyClicks(m_inspector->window.findChild<QLineEdit*>(u"sceneFilter"_s), u"oak"_s);
        } else {
            services->selectField(
                popup ? static_cast<KnField*>(&m_transform.matrix) : &m_viewpoint.description);
        }
        QVERIFY(services->getSelectedField());
        const auto* const tree = m_inspector->window.findChild<QTreeView*>(u"sceneTree"_s);
        QVERIFY(!tree->currentIndex().isValid());

        QWidget* const frame = m_inspector->dock(u"Field Editor"_s)->widget();
        if (popup)
            QTest::mouseClick(frame->findChild<QPushButton*>(u"m_editButton"_s), Qt::LeftButton);
        auto* const line = frame->findChild<QLineEdit*>(popup ? u"m_lineEdits"_s : u"lineEdit"_s);
        QTest::mouseClick(line, Qt::LeftButton);
        QCOMPARE(QApplication::focusWidget(), line);

        CrvPluginsManager* const manager = CrvPluginsManager::getInstance();
        switch (then) {
        case 'f':
            services->selectField(oak);
            break;
        case '0':
            services->selectField(nullptr);
            break;
        case 'n':
            services->selectNode(oak->getContainer());
            break;
        case 'p':
            manager->setActiveProfile(manager->getProfilesList().back());
            QVERIFY(!m_inspector->dock(u"Field Editor"_s));
            break;
        default:
            // The line that is left has made a command.
            m_inspector->answerNextQuestion(QMessageBox::Discard);
            m_inspector->window.findChild<FileMenu*>()->openFile(m_inspector->sceneFile);
        }
        QCoreApplication::processEvents();
        QCOMPARE(selection(), selected);
    }

    void theFocusSelectsNothing()
    {
        CrvServices* const services = CrvServices::getInstance();
        for (const QString& name : { u"sceneTree"_s, u"fieldList"_s }) {
            auto* const view = m_inspector->window.findChild<QTreeView*>(name);
            const QString before = selection();
            view->setFocus(Qt::TabFocusReason);
            QVERIFY(view->hasFocus() && !view->currentIndex().isValid());
            QCOMPARE(selection(), before);
            // A key does: it goes to the first row.
            QTest::keyClick(view, Qt::Key_Down);
            QCOMPARE(view->currentIndex().row(), 0);
            QVERIFY(selection() != before);
        }
        QVERIFY(services->getSelectedField());
    }

private:
    static QString selection()
    {
        const CrvServices* const services = CrvServices::getInstance();
        const KnFieldContainer* const node = services->getSelectedNode();
        const KnField* const field = services->getSelectedField();
        return node ? nodeLabel(*node) + (field ? u'.' + fieldName(*field) : QString()) : QString();
    }

    OtherNode<KnMatrixTransform> m_transform;
    OtherNode<KnViewpoint> m_viewpoint;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<InspectorFixture> m_inspector;
};

QTEST_MAIN(TestSelection)
#include "test_selection.moc"
