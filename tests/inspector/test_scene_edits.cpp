// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "InspectorFixture.h"
#include "KnGroup.h"
#include "KnMaterial.h"
#include "SceneModel.h"
#include "TextRows.h"

#include <QDialog>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
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
        // The node, the keys (behind a quote what is typed), the scene then, what is selected, and
        // the text of the step.
        addTextRows({
            { "Hall", "Ins 'pointl Return", "Scene(Room(A B C) Hall(PointLight))", "PointLight",
                "Add PointLight to Hall" },
            { "A", "Ins 'light Down Return", "Scene(Room(A PointLight B C) Hall())", "PointLight",
                "Add PointLight to Room" },
            { "B", "Del", "Scene(Room(A C) Hall())", "C", "Delete B" },
            { "C", "Del", "Scene(Room(A B) Hall())", "B", "Delete C" },
            { "Room", "Del", "Scene(Hall())", "Hall", "Delete Room (4 nodes)" },
            { "Scene", "Del", "", "", "Delete Scene (6 nodes)" },
            { "Room", "Ctrl+D", "Scene(Room(A B C) Room(A B C) Hall())", "Room", "Duplicate Room" },
            { "B", "F2 'Lamp Return", "Scene(Room(A Lamp C) Hall())", "Lamp", "Rename B to Lamp" },
            { "B", "F2 Del Return", "Scene(Room(A Material C) Hall())", "Material",
                "Take the name of B away" },
            { "C", "Alt+Up", "Scene(Room(A C B) Hall())", "C", "Move C up" },
            { "A", "Alt+Down", "Scene(Room(B A C) Hall())", "A", "Move A down" },
            { "Scene", "Ctrl+D", "Scene(Room(A B C) Hall()) Scene(Room(A B C) Hall())", "Scene",
                "Duplicate Scene" },
            { "A", "Alt+Up", "Scene(Room(A B C) Hall())", "A", "" },
            { "B", "F2 Return", "Scene(Room(A B C) Hall())", "B", "" },
            { "B", "F2 'Lamp Esc", "Scene(Room(A B C) Hall())", "B", "" },
            { "B", "Ins Esc", "Scene(Room(A B C) Hall())", "B", "" },
        });
    }
    void keysMakeSteps()
    {
        const auto [node, keys, after, selected, text] = textRow<5>();
        QUndoStack* const stack = CrvServices::getInstance()->getUndoStack();
        const QString before = outline();
        m_inspector->clickNode(node);
        for (const QString& key : keys.split(u' '))
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
        // What is dragged, in front of or into what, and the scene then, if it is taken at all.
        addTextRows({ { "B", "into", "Hall", "Scene(Room(A C) Hall(B))" },
            { "C", "before", "A", "Scene(Room(C A B) Hall())" },
            { "A C", "into", "Hall", "Scene(Room(B) Hall(A C))" },
            { "B C", "before", "A", "Scene(Room(B C A) Hall())" },
            { "Hall", "before", "Scene", "Hall() Scene(Room(A B C))" },
            { "Hall", "into", "A", "Scene(Room(A Hall() B C))" }, // behind the leaf
            { "Room", "into", "Room" }, { "Room", "before", "A" } });
    }
    void dragging()
    {
        const auto [names, how, onto, after] = textRow<4>();
        const QStringList dragged = names.split(u' ');
        const QString before = outline();
        QModelIndexList rows;
        for (const QString& name : dragged)
            rows += index(name);
        const std::unique_ptr<QMimeData> data(m_tree->model()->mimeData(rows));
        const QRect target = m_tree->visualRect(index(onto));
        const QPointF place = how == u"before" ? target.topLeft() : target.center();
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
        // The node, the key, what happens meanwhile (+ a node in front, - one taken out), and the
        // scene after undo.
        addTextRows({ { "B", "Del", "+X", "Scene(Room(X A B C) Hall())" },
            { "B", "Del", "-A-C", "Scene(Room(B) Hall())" },
            { "B", "Alt+Up", "+X", "Scene(Room(X A B C) Hall())" },
            { "C", "Ctrl+D", "-A-B", "Scene(Room(C) Hall())" },
            { "B", "Alt+Up", "-B", "Scene(Room(A C) Hall())" } });
    }
    void stepsFindTheirNodes()
    {
        const auto [node, key, meanwhile, undone] = textRow<4>();
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
        m_room->addChild(makeLeaf(u"D"_s));
        QCoreApplication::processEvents();
        m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
        QItemSelectionModel* const selection = m_tree->selectionModel();
        const auto rows = QItemSelectionModel::Select | QItemSelectionModel::Rows;
        selection->setCurrentIndex(index(u"A"_s), QItemSelectionModel::ClearAndSelect | rows);
        selection->select(index(u"C"_s), rows);
        selection->select(index(u"D"_s), rows);
        press(u"Alt+Down"_s); // D is stopped, and stops C
        QTRY_COMPARE(shown(*m_tree->model()), u"Scene(Room(B A C D) Hall())"_s);
        press(u"Ctrl+D"_s);
        QCOMPARE(outline(), u"Scene(Room(B A A C C D D) Hall())"_s);
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
        QTRY_COMPARE(shown(*m_tree->model()), u"Scene(Room(B A C D) Hall())"_s);
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
