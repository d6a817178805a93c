// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "InspectorFixture.h"
#include "KnGroup.h"
#include "KnMaterial.h"
#include "SceneModel.h"

#include <QDialog>
#include <QDragEnterEvent>
#include <QLabel>
#include <QUndoStack>

#include <memory>

namespace {

// The graph: a node's label, in brackets what stands below, and a star behind what is selected.
QString outline(const KnFieldContainer* node)
{
    QString text = nodeLabel(*node);
    if (const auto* const group = dynamic_cast<const KnGroup*>(node)) {
        QStringList children;
        for (int i = 0; i < group->getNumChildren(); ++i)
            children += outline(group->getChild(i));
        text += u'(' + children.join(u' ') + u')';
    }
    return text;
}

QString outline()
{
    QStringList roots;
    for (const KnNodePtr& root : CrvServices::getInstance()->getRoots())
        roots += outline(root.get());
    return roots.join(u' ');
}

// The same as the tree shows it.
QString shown(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const bool isGroup = index.flags().testFlag(Qt::ItemIsDropEnabled);
        rows += index.data().toString() + (isGroup ? u'(' + shown(model, index) + u')' : QString());
    }
    return rows.join(u' ');
}

QString selectedName()
{
    const KnFieldContainer* const node = CrvServices::getInstance()->getSelectedNode();
    return node ? nodeLabel(*node) : QString();
}

} // namespace

class TestSceneEdits : public InspectorTest {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        InspectorTest::init();
        m_tree = m_inspector->view(u"sceneTree"_s);
        m_scene = KnNodePtr(makeGroup(u"Scene"_s));
        m_room = makeGroup(u"Room"_s);
        m_hall = makeGroup(u"Hall"_s);
        scene()->addChild(m_room);
        scene()->addChild(m_hall);
        for (const QString& name : { u"A"_s, u"B"_s, u"C"_s })
            m_room->addChild(makeLeaf(name));
        CrvServices::getInstance()->setRoots({ m_scene });
        QCoreApplication::processEvents();
        m_tree->expandAll();
        m_tree->setFocus();
    }
    void cleanup()
    {
        CrvServices::getInstance()->getUndoStack()->clear();
        CrvServices::getInstance()->setRoots({});
        m_scene = KnNodePtr();
        InspectorTest::cleanup();
    }

    void keysMakeSteps_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QStringList>("keys"); // in quotes what is typed
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QString& node, const QString& keys,
                             const QString& after, const QString& selected, const QString& text) {
            QTest::newRow(name) << node << keys.split(u' ') << after << selected << text;
        };
        row("add to a group", u"Hall"_s, u"Ins 'pointl Return"_s,
            u"Scene(Room(A B C) Hall(PointLight))"_s, u"PointLight"_s, u"Add PointLight to Hall"_s);
        row("add behind a leaf", u"A"_s, u"Ins 'light Down Return"_s,
            u"Scene(Room(A PointLight B C) Hall())"_s, u"PointLight"_s,
            u"Add PointLight to Room"_s);
        row("delete", u"B"_s, u"Del"_s, u"Scene(Room(A C) Hall())"_s, u"C"_s, u"Delete B"_s);
        row("delete the last", u"C"_s, u"Del"_s, u"Scene(Room(A B) Hall())"_s, u"B"_s,
            u"Delete C"_s);
        row("delete a group", u"Room"_s, u"Del"_s, u"Scene(Hall())"_s, u"Hall"_s,
            u"Delete Room (4 nodes)"_s);
        row("delete the only root", u"Scene"_s, u"Del"_s, QString(), QString(),
            u"Delete Scene (6 nodes)"_s);
        row("duplicate", u"Room"_s, u"Ctrl+D"_s, u"Scene(Room(A B C) Room(A B C) Hall())"_s,
            u"Room"_s, u"Duplicate Room"_s);
        row("rename", u"B"_s, u"F2 'Lamp Return"_s, u"Scene(Room(A Lamp C) Hall())"_s, u"Lamp"_s,
            u"Rename B to Lamp"_s);
        row("take the name away", u"B"_s, u"F2 Del Return"_s, u"Scene(Room(A Material C) Hall())"_s,
            u"Material"_s, u"Take the name of B away"_s);
        row("up", u"C"_s, u"Alt+Up"_s, u"Scene(Room(A C B) Hall())"_s, u"C"_s, u"Move C up"_s);
        row("down", u"A"_s, u"Alt+Down"_s, u"Scene(Room(B A C) Hall())"_s, u"A"_s,
            u"Move A down"_s);
        row("duplicate a root", u"Scene"_s, u"Ctrl+D"_s,
            u"Scene(Room(A B C) Hall()) Scene(Room(A B C) Hall())"_s, u"Scene"_s,
            u"Duplicate Scene"_s);
        row("nowhere to go", u"A"_s, u"Alt+Up"_s, u"Scene(Room(A B C) Hall())"_s, u"A"_s,
            QString());
        row("the same name", u"B"_s, u"F2 Return"_s, u"Scene(Room(A B C) Hall())"_s, u"B"_s,
            QString());
        row("no name after all", u"B"_s, u"F2 'Lamp Esc"_s, u"Scene(Room(A B C) Hall())"_s, u"B"_s,
            QString());
        row("no type after all", u"B"_s, u"Ins Esc"_s, u"Scene(Room(A B C) Hall())"_s, u"B"_s,
            QString());
    }
    void keysMakeSteps()
    {
        QFETCH(const QString, node);
        QFETCH(const QStringList, keys);
        QFETCH(const QString, after);
        QFETCH(const QString, selected);
        QFETCH(const QString, text);
        QUndoStack* const stack = CrvServices::getInstance()->getUndoStack();
        const QString before = outline();
        m_inspector->clickNode(node);
        for (const QString& key : keys)
            press(key);
        const int steps = text.isEmpty() ? 0 : 1;
        QTRY_COMPARE(outline(), after);
        QTRY_COMPARE(shown(*m_tree->model()), after);
        QTRY_COMPARE(selectedName(), selected);
        const auto* const heading = m_inspector->window.findChild<QLabel*>(u"fieldHeading"_s);
        QTRY_VERIFY(
            selected.isEmpty() || heading->accessibleName().section(u' ', 0, 0) == selected);
        const auto* const title = m_inspector->window.findChild<QLabel*>(u"editorHeadingText"_s);
        if (text.startsWith(u"Rename"_s) && !selected.isEmpty())
            QTRY_VERIFY(title->accessibleName().contains(selected));
        QCOMPARE(nodeAt(m_tree->currentIndex()), CrvServices::getInstance()->getSelectedNode());
        QCOMPARE(stack->count(), steps);
        QCOMPARE(stack->undoText(), text);
        QCOMPARE(m_inspector->window.isWindowModified(), steps > 0);
        if (steps == 0)
            return;
        for (int round = 0; round < 2; ++round) {
            press(u"Ctrl+Z"_s);
            QTRY_COMPARE(shown(*m_tree->model()), before);
            QCOMPARE(outline(), before);
            QTRY_COMPARE(selectedName(), node);
            QVERIFY(!m_inspector->window.isWindowModified());
            press(u"Ctrl+Y"_s);
            QTRY_COMPARE(shown(*m_tree->model()), after);
            QCOMPARE(outline(), after);
            QTRY_COMPARE(selectedName(), selected);
            QVERIFY(m_inspector->window.isWindowModified());
        }
    }

    void dragging_data()
    {
        QTest::addColumn<QStringList>("dragged");
        QTest::addColumn<QString>("onto");
        QTest::addColumn<bool>("between"); // in front of it, not into it
        QTest::addColumn<QString>("after"); // empty if it isn't taken
        QTest::newRow("into a group")
            << QStringList { u"B"_s } << u"Hall"_s << false << u"Scene(Room(A C) Hall(B))"_s;
        QTest::newRow("in front of a sibling")
            << QStringList { u"C"_s } << u"A"_s << true << u"Scene(Room(C A B) Hall())"_s;
        QTest::newRow("several") << QStringList { u"A"_s, u"C"_s } << u"Hall"_s << false
                                 << u"Scene(Room(B) Hall(A C))"_s;
        QTest::newRow("several among siblings")
            << QStringList { u"B"_s, u"C"_s } << u"A"_s << true << u"Scene(Room(B C A) Hall())"_s;
        QTest::newRow("to the roots")
            << QStringList { u"Hall"_s } << u"Scene"_s << true << u"Hall() Scene(Room(A B C))"_s;
        QTest::newRow("onto a leaf") << QStringList { u"Hall"_s } << u"A"_s << false
                                     << u"Scene(Room(A Hall() B C))"_s; // behind it
        QTest::newRow("into itself")
            << QStringList { u"Room"_s } << u"Room"_s << false << QString();
        QTest::newRow("below itself") << QStringList { u"Room"_s } << u"A"_s << true << QString();
    }
    void dragging()
    {
        QFETCH(const QStringList, dragged);
        QFETCH(const QString, onto);
        QFETCH(const bool, between);
        QFETCH(const QString, after);
        const QString before = outline();
        QModelIndexList rows;
        for (const QString& name : dragged)
            rows += index(name);
        const std::unique_ptr<QMimeData> data(m_tree->model()->mimeData(rows));
        const QRect target = m_tree->visualRect(index(onto));
        const QPointF place = between ? target.topLeft() : target.center();
        QWidget* const viewport = m_tree->viewport();
        QDragEnterEvent enter(
            place.toPoint(), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &enter);
        QDragMoveEvent move(
            place.toPoint(), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        QCOMPARE(move.isAccepted(), !after.isEmpty());
        QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &drop);
        if (after.isEmpty()) {
            QCOMPARE(outline(), before);
            return;
        }
        QTRY_COMPARE(shown(*m_tree->model()), after);
        QCOMPARE(outline(), after);
        QCOMPARE(selectedName(), dragged.constFirst());
        press(u"Ctrl+Z"_s);
        QTRY_COMPARE(shown(*m_tree->model()), before);
        press(u"Ctrl+Y"_s);
        QTRY_COMPARE(shown(*m_tree->model()), after);
    }

    // Another road to the same node must not make a circle either.
    void noCircleThroughASharedNode()
    {
        m_hall->addChild(m_room);
        auto* const inner = makeGroup(u"Inner"_s);
        m_room->addChild(inner);
        QCoreApplication::processEvents();
        m_tree->expandAll();
        const std::unique_ptr<QMimeData> data(m_tree->model()->mimeData({ index(u"Hall"_s) }));
        const QModelIndex target = index(u"Inner"_s);
        QCOMPARE(target.parent().parent(), index(u"Scene"_s)); // not below Hall here
        QVERIFY(m_tree->model()->dropMimeData(data.get(), Qt::MoveAction, -1, -1, target));
        QCOMPARE(inner->getNumChildren(), 0);
        QCOMPARE(CrvServices::getInstance()->getUndoStack()->count(), 0);
    }

    void aCopyHasAllOfItsOwn()
    {
        auto* const shared = makeGroup(u"Shared"_s);
        shared->addChild(makeLeaf(u"Leaf"_s));
        m_room->addChild(shared);
        m_room->addChild(shared);
        KnField* const field = m_room->getChild(0)->getField(KbName("transparency"));
        field->set("0.125");
        field->setIgnored(1);
        m_inspector->clickNode(u"Room"_s);
        press(u"Ctrl+D"_s);
        auto* const copy = static_cast<KnGroup*>(scene()->getChild(1));
        QVERIFY(copy != m_room);
        QCOMPARE(outline(copy), outline(m_room));
        QCOMPARE(copy->getChild(3), copy->getChild(4));
        QVERIFY(copy->getChild(3) != shared);
        const KnField* const copied = copy->getChild(0)->getField(KbName("transparency"));
        QVERIFY(copied != field);
        KbString text;
        copied->get(text);
        QCOMPARE(toQString(text), u"0.125"_s);
        QCOMPARE(copied->isIgnored(), 1);
    }

    void stepsFindTheirNodes_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("meanwhile"); // + a node in front, - one taken out
        QTest::addColumn<QString>("undone");
        QTest::newRow("delete, one more in front")
            << u"B"_s << u"Del"_s << u"+X"_s << u"Scene(Room(X A B C) Hall())"_s;
        QTest::newRow("delete, the neighbours gone")
            << u"B"_s << u"Del"_s << u"-A-C"_s << u"Scene(Room(B) Hall())"_s;
        QTest::newRow("move, one more in front")
            << u"B"_s << u"Alt+Up"_s << u"+X"_s << u"Scene(Room(X A B C) Hall())"_s;
        QTest::newRow("duplicate, others gone")
            << u"C"_s << u"Ctrl+D"_s << u"-A-B"_s << u"Scene(Room(C) Hall())"_s;
        QTest::newRow("move, itself gone")
            << u"B"_s << u"Alt+Up"_s << u"-B"_s << u"Scene(Room(A C) Hall())"_s;
    }
    void stepsFindTheirNodes()
    {
        QFETCH(const QString, node);
        QFETCH(const QString, key);
        QFETCH(const QString, meanwhile);
        QFETCH(const QString, undone);
        m_inspector->clickNode(node);
        press(key);
        for (qsizetype i = 0; i < meanwhile.size(); i += 2) {
            const QString name = meanwhile.mid(i + 1, 1);
            if (meanwhile.at(i) == u'+') {
                m_room->insertChild(makeLeaf(name), 0);
                continue;
            }
            for (int row = m_room->getNumChildren() - 1; row >= 0; --row) {
                if (nodeLabel(*m_room->getChild(row)) == name)
                    m_room->removeChild(row);
            }
        }
        QCoreApplication::processEvents();
        CrvServices::getInstance()->getUndoStack()->undo();
        QTRY_COMPARE(shown(*m_tree->model()), undone);
        QCOMPARE(outline(), undone);
        CrvServices::getInstance()->getUndoStack()->redo();
        QTRY_COMPARE(shown(*m_tree->model()), outline());
    }

    void whatAStepNeedsLives()
    {
        m_inspector->clickNode(u"Room"_s);
        press(u"Del"_s);
        const KnNodePtr emptyScene(makeGroup(u"Other"_s));
        scene()->addChild(emptyScene.get());
        // The step alone holds the room by now.
        QCOMPARE(m_room->getReferenceCount() > 0, true);
        QCoreApplication::processEvents();
        press(u"Ctrl+Z"_s);
        QTRY_COMPARE(shown(*m_tree->model()), u"Scene(Room(A B C) Hall() Other())"_s);
    }

    // Several rows are one step, and what stands below another one isn't touched twice.
    void severalAreOneStep()
    {
        m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
        QItemSelectionModel* const selection = m_tree->selectionModel();
        const auto rows = QItemSelectionModel::Select | QItemSelectionModel::Rows;
        selection->setCurrentIndex(index(u"A"_s), QItemSelectionModel::ClearAndSelect | rows);
        selection->select(index(u"C"_s), rows);
        press(u"Alt+Down"_s); // C is stopped
        QTRY_COMPARE(shown(*m_tree->model()), u"Scene(Room(B A C) Hall())"_s);
        press(u"Ctrl+D"_s);
        QCOMPARE(outline(), u"Scene(Room(B A A C C) Hall())"_s);
        CrvServices::getInstance()->getUndoStack()->undo();
        QCoreApplication::processEvents();
        selection->setCurrentIndex(index(u"Room"_s), QItemSelectionModel::ClearAndSelect | rows);
        selection->select(index(u"B"_s), rows);
        selection->select(index(u"Hall"_s), rows);
        press(u"Del"_s);
        QTRY_COMPARE(shown(*m_tree->model()), u"Scene()"_s);
        QCOMPARE(selectedName(), u"Scene"_s);
        QCOMPARE(CrvServices::getInstance()->getUndoStack()->undoText(), u"Delete 2 nodes"_s);
        press(u"Ctrl+Z"_s);
        QTRY_COMPARE(shown(*m_tree->model()), u"Scene(Room(B A C) Hall())"_s);
    }

    void severalRootsAreKeptInTheFile()
    {
        m_inspector->clickNode(u"Scene"_s);
        press(u"Ctrl+D"_s);
        press(u"Ctrl+S"_s);
        const QString saved = outline();
        QVERIFY(!m_inspector->window.isWindowModified());
        press(u"Del"_s);
        press(u"Del"_s);
        QTRY_COMPARE(outline(), QString());
        QTRY_VERIFY(m_inspector->window.isWindowModified());
        m_inspector->answerNextQuestion(QMessageBox::Cancel);
        m_inspector->choose(u"fileMenu"_s, u"revertAction"_s);
        QCOMPARE(outline(), QString());
        m_inspector->answerNextQuestion(QMessageBox::Discard);
        m_inspector->choose(u"fileMenu"_s, u"revertAction"_s);
        QCOMPARE(outline(), saved);
        QTRY_COMPARE(shown(*m_tree->model()), saved);
        QVERIFY(!m_inspector->window.isWindowModified());
        m_inspector->choose(u"fileMenu"_s, u"newSceneAction"_s); // nothing to lose
        QCOMPARE(outline(), u"Scene(Sun Paint)"_s);
        QCOMPARE(m_inspector->window.document().fileName(), QString());
        QVERIFY(!m_inspector->window.isWindowModified());
    }

    void anEditIsSeenInAPause()
    {
        CrvServices::getInstance()->setPaused(true);
        m_inspector->clickNode(u"B"_s);
        press(u"Del"_s);
        QCOMPARE(shown(*m_tree->model()), u"Scene(Room(A C) Hall())"_s);
        press(u"Ctrl+Z"_s);
        QTRY_COMPARE(shown(*m_tree->model()), u"Scene(Room(A B C) Hall())"_s);
        CrvServices::getInstance()->setPaused(false);
    }

private:
    static KnGroup* makeGroup(const QString& name)
    {
        auto* const group = new KnGroup;
        group->setName(KbName(toKbString(name)));
        return group;
    }
    static KnFieldContainer* makeLeaf(const QString& name)
    {
        auto* const leaf = new KnMaterial;
        leaf->setName(KbName(toKbString(name)));
        return leaf;
    }
    KnGroup* scene() const { return static_cast<KnGroup*>(m_scene.get()); }
    QModelIndex index(const QString& name) const
    {
        const QAbstractItemModel* const model = m_tree->model();
        const auto how = Qt::MatchExactly | Qt::MatchRecursive;
        return model->match(model->index(0, 0), Qt::DisplayRole, name, 1, how).value(0);
    }
    KnFieldContainer* nodeAt(const QModelIndex& index) const
    {
        return static_cast<const SceneModel*>(m_tree->model())->node(index);
    }
    /// A key, or what is typed behind a quote, where the focus is.
    void press(const QString& key)
    {
        const auto* const dialog = m_inspector->window.findChild<QDialog*>();
        if (dialog && dialog->isVisible())
            QTRY_VERIFY(dialog->isActiveWindow());
        // Where a dialog was, it takes a window manager to get the focus back.
        if (!QApplication::activeWindow())
            m_inspector->window.activateWindow();
        QTRY_VERIFY(QApplication::focusWidget());
        if (key.startsWith(u'\''))
            QTest::keyClicks(QApplication::focusWidget(), key.mid(1));
        else
            QTest::keySequence(QApplication::focusWidget(), QKeySequence(key));
        QCoreApplication::processEvents();
    }

    QTreeView* m_tree = nullptr;
    KnNodePtr m_scene;
    KnGroup* m_room = nullptr; // the scene's, or a step's
    KnGroup* m_hall = nullptr;
};

QTEST_MAIN(TestSceneEdits)
#include "test_scene_edits.moc"
