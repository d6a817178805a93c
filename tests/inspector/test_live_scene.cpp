// SPDX-License-Identifier: BSD-3-Clause
#include "CrvCommand.h"
#include "CrvServices.h"
#include "FieldListModel.h"
#include "InspectorFixture.h"
#include "KnFieldSensor.h"
#include "KnGroup.h"
#include "KnSensorQueue.h"
#include "SliderInput.h"
#include "TextRows.h"

#include <QAbstractEventDispatcher>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QUndoStack>

#include <functional>

namespace {

/// Sets a text, as an edit does.
class SetText : public CrvCommand {
public:
    SetText(KnField* field, const QString& text)
        : m_field(field)
        , m_after(toKbString(text))
    {
        m_field->get(m_before);
    }

    void execute() override { m_field->set(m_after); }
    void undo() override { m_field->set(m_before); }
    void redo() override { execute(); }

private:
    KnField* m_field; // lives in a node that the undo step keeps
    KbString m_before;
    KbString m_after;
};

QString textOf(const KnField* field)
{
    KbString text;
    field->get(text);
    return toQString(text);
}

KnFieldContainer* newNode(const QString& type, const QString& name)
{
    auto* const node = static_cast<KnFieldContainer*>(
        KnType::fromName(KbName(toKbString(type))).createInstance());
    node->setName(KbName(toKbString(name)));
    return node;
}

} // namespace

/// The window on a scene that another part of the program changes.
class TestLiveScene : public InspectorTest {
    Q_OBJECT
public:
    static void initMain() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

private Q_SLOTS:
    void init()
    {
        InspectorTest::init();
        m_scene = static_cast<KnGroup*>(m_inspector->window.document().root().get());
        m_tree = m_inspector->view(u"sceneTree"_s);
        for (const QString& name : { u"A"_s, u"B"_s })
            m_scene->addChild(newNode(u"Group"_s, name));
        m_a = static_cast<KnGroup*>(m_scene->getChild(m_scene->getNumChildren() - 2));
        m_b = static_cast<KnGroup*>(m_scene->getChild(m_scene->getNumChildren() - 1));
        for (int i = 0; i < 100; ++i)
            m_a->addChild(newNode(u"Material"_s, QString::number(i)));
        QCoreApplication::processEvents();
    }
    void anEditorLetsGo_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("hasStep"); // an earlier edit keeps the node
        QTest::addColumn<int>("steps"); // that the typed text makes of itself when it is left
        for (const bool hasStep : { false, true }) {
            const auto add = [&](const char* name, const char* place, const char* value,
                                 int steps) {
                QTest::addRow("%s, %d", name, hasStep)
                    << QString::fromLatin1(place) << QString::fromLatin1(value) << hasStep << steps;
            };
            add("popup", "MatrixTransform.matrix", "2 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", 1);
            add("cell", "IndexedFaceSet.coordIndex", "[ 1, 2 ]", 1);
            add("text cell", "Text.string", "[ \"a\", \"b\" ]", 1);
            add("color dialog", "Material.diffuseColor", "[ 1 0 0 ]", 0);
            add("drag", "Material.transparency", "0.5", 0);
            add("line", "Viewpoint.description", "\"a\"", 1);
        }
    }
    void anEditorLetsGo()
    {
        QFETCH(const QString, place);
        QFETCH(const QString, value);
        QFETCH(bool, hasStep);
        QFETCH(int, steps);
        CrvServices* const services = CrvServices::getInstance();
        const auto add = [&] {
            m_b->addChild(newNode(place.section(u'.', 0, 0), QString()));
            KnFieldContainer* const node = m_b->getChild(m_b->getNumChildren() - 1);
            KnField* const field = node->getField(KbName(toKbString(place.section(u'.', 1))));
            field->set(toKbString(value));
            return field;
        };
        KnField* const neighbor = add();
        KnField* const field = add();
        const QString before = textOf(field);
        QCoreApplication::processEvents();
        services->selectField(field);
        QVERIFY(m_tree->currentIndex().isValid());
        if (hasStep)
            services->executeCommand(new SetText(field, u"\"\""_s));
        field->set(toKbString(value));
        QCoreApplication::processEvents();

        KnFieldSensor life(nullptr, nullptr);
        life.attach(field);
        editWhile([&] {
            QVERIFY(m_b->removeChild(field->getContainer()));
            QTRY_VERIFY(!services->getSelectedNode());
            QVERIFY(!m_tree->currentIndex().isValid());
        });
        QCoreApplication::processEvents();
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(textOf(neighbor), before);
        QCOMPARE(services->getUndoStack()->count(), steps + int { hasStep });
        QCOMPARE(life.getAttachedField() != nullptr, steps > 0 || hasStep);
        if (life.getAttachedField()) {
            if (steps == 0)
                field->set("\"\"");
            while (services->getUndoStack()->canUndo())
                services->getUndoStack()->undo();
            QCOMPARE(textOf(field), before);
            services->getUndoStack()->clear();
            QVERIFY(!life.getAttachedField());
        }
        // The editor serves the next field.
        services->selectField(neighbor);
        QCoreApplication::processEvents();
        QVERIFY(m_inspector->dock(u"Field Editor"_s)->isVisible());
        QCOMPARE(textOf(neighbor), before);
    }

    void theViewStays_data() { addTextRows({ { "bare" }, { "filter", "material" } }); }
    void theViewStays()
    {
        const QString filterText = textRow<2>()[1];
        CrvServices* const services = CrvServices::getInstance();
        QTest::keyClicks(m_inspector->window.findChild<QLineEdit*>(u"sceneFilter"_s), filterText);
        KnFieldContainer* const selected = m_a->getChild(70);
        services->selectNode(selected);
        const auto first = [this] { return m_tree->indexAt(QPoint(1, 1)); };
        m_tree->scrollTo(m_tree->currentIndex().siblingAtRow(40), QTreeView::PositionAtTop);
        QCOMPARE(first().data().toString(), u"40"_s);
        const QPersistentModelIndex group = first().parent();
        for (int i = 0; i < 50; ++i)
            m_a->insertChild(newNode(u"Material"_s, u"x"_s), 3 * i);
        m_a->removeChild(m_a->findChild(m_a->getChild(70)));
        m_a->removeChild(1);
        m_a->moveChild(m_a->findChild(selected), 2);
        m_scene->moveChild(0, m_scene->findChild(m_a));
        QTRY_VERIFY(m_tree->model()->rowCount(group) > 140);
        QCOMPARE(first().data().toString(), u"40"_s);
        QVERIFY(m_tree->isExpanded(group));
        QCOMPARE(m_tree->currentIndex().data().toString(), u"70"_s);
        QCOMPARE(
            m_tree->selectionModel()->selectedRows(), QModelIndexList { m_tree->currentIndex() });
        QCOMPARE(services->getSelectedNode(), selected);
        // With all that is in sight gone, what the group gets later is shown as the group was.
        while (m_a->removeChild(0)) { }
        QTRY_VERIFY(!services->getSelectedNode());
        m_a->addChild(newNode(u"Material"_s, u"y"_s));
        if (filterText.isEmpty()) {
            QTRY_COMPARE(m_tree->model()->rowCount(group), 1);
            QVERIFY(m_tree->isExpanded(group));
        }
        // A sibling that a view would go to is nobody's choice.
        QVERIFY(!services->getSelectedNode() && !m_tree->currentIndex().isValid());
    }

    void theSelectionFollowsItsNode()
    {
        CrvServices* const services = CrvServices::getInstance();
        KnFieldContainer* const node = m_a->getChild(5);
        const auto shown = [this] {
            const QModelIndex index = m_tree->currentIndex();
            return index.parent().data().toString() + u'.' + index.data().toString();
        };
        m_b->addChild(node);
        services->selectNode(node);
        QCOMPARE(shown(), u"A.5"_s);
        m_a->removeChild(5);
        QTRY_COMPARE(shown(), u"B.5"_s); // its other place
        const int bar = m_tree->verticalScrollBar()->value();
        m_b->removeChild(0); // heard of before the other
        m_a->insertChild(node, 90);
        QTRY_COMPARE(shown(), u"A.5"_s); // moved
        QCOMPARE(m_tree->verticalScrollBar()->value(), bar);
        QCOMPARE(services->getSelectedNode(), node);
        // The whole group goes.
        m_scene->removeChild(m_a);
        QTRY_VERIFY(!services->getSelectedNode());
        QVERIFY(!m_tree->currentIndex().isValid());

        // A node that the tree doesn't have is the program's business.
        const KnNodePtr loose(newNode(u"Material"_s, u"loose"_s));
        services->selectNode(loose.get());
        m_scene->removeChild(0);
        QCoreApplication::processEvents();
        QCOMPARE(services->getSelectedNode(), loose.get());
    }

    void aChangedValueIsLit()
    {
        const auto* const list = m_inspector->view(u"fieldList"_s);
        m_inspector->clickField(u"Oak"_s, u"shininess"_s);
        KnField* const field = m_inspector->field(u"Oak.transparency"_s);
        const auto background = [list] {
            const QModelIndex index = list->model()->index(5, FieldListModel::ValueColumn);
            const QRect cell = list->visualRect(index);
            return list->viewport()->grab(cell).toImage().pixel(
                cell.width() - 3, cell.height() / 2);
        };
        const QRgb plain = background();
        QCoreApplication::processEvents();
        QCOMPARE(background(), plain); // selecting lights nothing
        const QString text = textOf(field);
        field->set(toKbString(text));
        QCoreApplication::processEvents();
        QCOMPARE(background(), plain); // and a write that changes nothing neither
        field->set("0.125");
        KnSensorQueue::getInstance().process();
        QVERIFY(background() != plain);
        QTRY_COMPARE(background(), plain);
        const auto* const dispatcher = QAbstractEventDispatcher::instance();
        QTRY_VERIFY(dispatcher->registeredTimers(list->model()).isEmpty());
    }

    void pausedListStaysAsItIs()
    {
        CrvServices* const services = CrvServices::getInstance();
        const auto* const list = m_inspector->view(u"fieldList"_s);
        const auto* const heading = m_inspector->window.findChild<QLabel*>(u"fieldHeading"_s);
        auto* const button = m_inspector->window.findChild<QToolButton*>(u"pauseButton"_s);
        const auto shown = [list] {
            list->viewport()->grab();
            return list->model()->index(5, FieldListModel::ValueColumn).data().toString();
        };
        m_inspector->clickField(u"Oak"_s, u"transparency"_s);
        KnField* const field = m_inspector->field(u"Oak.transparency"_s);
        m_inspector->press(QKeySequence(Qt::CTRL | Qt::Key_P));
        QVERIFY(services->isPaused() && button->isChecked());
        QVERIFY(heading->accessibleName().startsWith(u"Paused"_s));
        const QString before = shown();
        field->set("0.125");
        m_a->removeChild(0);
        QCoreApplication::processEvents();
        QCOMPARE(shown(), before);
        QCOMPARE(m_a->getNumChildren(), 99);

        // A person's edit is seen at once.
        auto* const line = m_inspector->inEditor<QLineEdit>();
        line->selectAll();
        QTest::keyClicks(line, u"0.75\r"_s);
        QTRY_COMPARE(shown(), u"0.75"_s);
        field->set("0.5");
        // Another node is read when it is selected.
        m_inspector->clickNode(u"Front view"_s);
        m_inspector->clickNode(u"Oak"_s);
        QCOMPARE(shown(), u"0.5"_s);
        field->set("0.25");
        QCoreApplication::processEvents();
        QCOMPARE(shown(), u"0.5"_s);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!services->isPaused() && !heading->accessibleName().startsWith(u"Paused"_s));
        QCOMPARE(shown(), u"0.25"_s);
    }

private:
    /// Begins an edit as a person would, lets `act` happen, and goes on with it as if nothing had.
    void editWhile(const std::function<void()>& act)
    {
        const QString kind = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
        QWidget* const frame = m_inspector->dock(u"Field Editor"_s)->widget();
        if (kind == u"drag") {
            SliderInput drag(frame->findChild<QSlider*>());
            drag.press();
            act();
            drag.moveBy(20);
            drag.release();
            return;
        }
        if (kind == u"color dialog") {
            QTimer timer;
            connect(&timer, &QTimer::timeout, &timer, [&] {
                auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
                if (!dialog)
                    return;
                timer.stop();
                act();
                dialog->setCurrentColor(Qt::green);
                QTest::keyClick(dialog, Qt::Key_Return);
            });
            timer.start(0);
            auto* const table = frame->findChild<QTableView*>();
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                table->visualRect(table->model()->index(0, 0)).center());
            QVERIFY(!timer.isActive());
            return;
        }
        if (kind == u"popup")
            QTest::mouseClick(frame->findChild<QPushButton*>(u"m_editButton"_s), Qt::LeftButton);
        if (kind.endsWith(u"cell")) {
            auto* const table = frame->findChild<QTableView*>();
            const QPoint at = table->visualRect(table->model()->index(1, 0)).center();
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, at);
        } else {
            QTest::mouseClick(frame->findChild<QLineEdit*>(), Qt::LeftButton);
        }
        const QPointer<QWidget> line = QApplication::focusWidget();
        QVERIFY(qobject_cast<QLineEdit*>(line));
        QTest::keyClicks(line, u"7"_s);
        act();
        if (line)
            QTest::keyClick(line, Qt::Key_Return);
    }

    KnGroup* m_scene = nullptr; // the document's
    KnGroup* m_a = nullptr; // in the scene, with 100 children named after their rows
    KnGroup* m_b = nullptr; // in the scene, and empty
    QTreeView* m_tree = nullptr; // the window's
};

QTEST_MAIN(TestLiveScene)
#include "test_live_scene.moc"
