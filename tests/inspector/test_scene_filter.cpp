// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "InspectorFixture.h"
#include "KnGroup.h"
#include "KnNameSensor.h"
#include "KnSensorQueue.h"
#include "SceneFilterModel.h"
#include "TextRows.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTextDocument>

namespace {

KnFieldContainer* newNode(const QString& type, const QString& name)
{
    auto* const node = static_cast<KnFieldContainer*>(
        KnType::fromName(KbName(toKbString(type))).createInstance());
    node->setName(KbName(toKbString(name)));
    return node;
}

// The names in all rows that are open, those that match in brackets.
QStringList shownRows(const QTreeView& tree)
{
    QStringList names;
    for (QModelIndex index = tree.model()->index(0, 0); index.isValid();
         index = tree.indexBelow(index)) {
        const QString name = index.data().toString();
        names += index.data(SceneFilterModel::MatchRole).toBool() ? u'[' + name + u']' : name;
    }
    return names;
}

} // namespace

class TestSceneFilter : public InspectorTest {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        InspectorTest::init();
        m_tree = m_inspector->view(u"sceneTree"_s);
        m_line = m_inspector->window.findChild<QLineEdit*>(u"sceneFilter"_s);
        m_note = m_inspector->window.findChild<QLabel*>(u"sceneFilterNote"_s);
        m_scene = KnNodePtr(new KnGroup);
        m_scene->setName(KbName("Scene"));
        const auto add = [this](const QString& type, const QString& name) {
            KnFieldContainer* const node = newNode(type, name);
            static_cast<KnGroup*>(m_scene.get())->addChild(node);
            return node;
        };
        KnFieldContainer* const oak = add(u"Material"_s, u"Oak"_s);
        oak->getField(KbName("transparency"))->set("0.1");
        oak->getField(KbName("diffuseColor"))->set("0.5 0.25 0");
        add(u"Material"_s, u"Été wall"_s);
        KnFieldContainer* const lamp = add(u"PointLight"_s, u"Desk lamp"_s);
        lamp->getField(KbName("on"))->set("FALSE");
        add(u"Text"_s, u"a:b>c"_s)->getField(KbName("string"))->set("[\"one\", \"two\"]");
        add(u"Transform"_s, QString());
        CrvServices::getInstance()->setRoots({ m_scene });
        QCoreApplication::processEvents();
    }
    void cleanup()
    {
        CrvServices::getInstance()->setRoots({});
        m_scene = KnNodePtr();
        InspectorTest::cleanup();
    }

    /// Filter and scene take turns as the tree's model, for as long as the window lives.
    void nothingIsLeftOfAFilter()
    {
        qsizetype objects = 0;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClicks(m_line, u"Oak"_s);
            QTRY_COMPARE(shownRows(*m_tree).size(), 2);
            m_line->selectAll();
            QTest::keyClick(m_line, Qt::Key_Delete);
            QTRY_VERIFY(shownRows(*m_tree).size() > 2);
            const qsizetype count = m_tree->findChildren<QObject*>().size();
            QVERIFY(objects == 0 || count == objects);
            objects = count;
        }
    }

    void words_data()
    {
        addTextRows({
            { "  oAk ", "Oak" }, { "light", "Desk lamp" }, // by its type
            { "desk lamp", "Desk lamp" }, { "lamp desk", "Desk lamp" }, // both, in any order
            { "\"lamp desk\"", "" }, { "\"k l\"", "Desk lamp" }, { "ÉTÉ", "Été wall" },
            { ".*", "" }, { "name:light", "" }, { "type:POINTlight", "Desk lamp" },
            { "type:\"a\" name:oak", "Oak" },
            { "class:NODE oak", "Oak" }, // by what its type derives from
            { "type:node oak", "" }, { "transform", "Transform" }, // without a name
            { "field:diffuse", "Oak, Été wall" }, { "field:color wall", "Été wall" },
            { "\"a:b>c\"", "a:b>c" }, { "transparency>0", "Oak" }, { "Transparency=0.1", "Oak" },
            { "transparency<=0.1", "Oak, Été wall" }, { "transparency!=0", "Oak" },
            { "transparency>=+1e-1", "Oak" }, { "transparency<0", "" },
            { "diffuseColor=0.25", "Oak" }, // one of three
            { "string=TWO", "a:b>c" }, { "on=false", "Desk lamp" }, { "on!=\"true\"", "Desk lamp" },
            { "transp>0", "" }, // no such field
        });
    }
    void words()
    {
        const auto [text, matches] = textRow<2>();
        QTest::keyClicks(m_line, u"\""_s); // only for a moment
        m_line->clear();
        m_line->insert(text);
        QTRY_COMPARE(m_note->isVisible() ? m_note->text() : QString(),
            matches.isEmpty() ? u"no match"_s : QString());
        QStringList expected;
        for (const QString& match : matches.split(u", "_s, Qt::SkipEmptyParts))
            expected += u'[' + match + u']';
        if (!expected.isEmpty())
            expected.prepend(u"Scene"_s);
        QCOMPARE(shownRows(*m_tree), expected);
    }

    void aTextThatIsNotCompleteChangesNothing_data()
    {
        addTextRows({ { "type:" }, { "field:\"\"" }, { "transparency>" }, { ">0" }, { "on<true" },
            { "\"desk" }, { "typ:light" } });
    }
    void aTextThatIsNotCompleteChangesNothing()
    {
        const QString rest = textRow<1>()[0];
        QTest::keyClicks(m_line, u"oak"_s);
        const QStringList shown = shownRows(*m_tree);
        QVERIFY(m_note->isHidden());
        m_line->insert(u' ' + rest);
        QVERIFY(m_note->isVisible());
        QCOMPARE(shownRows(*m_tree), shown);
        for (qsizetype i = 0; i < rest.size(); ++i)
            QTest::keyClick(m_line, Qt::Key_Backspace);
        QTRY_VERIFY(m_note->isHidden());
        QCOMPARE(shownRows(*m_tree), shown);
    }

    // However small the slices are, and whatever the program does between them.
    void slicesFindWhatOneLookFinds()
    {
        auto* const group = static_cast<KnGroup*>(m_scene.get());
        KnNodePtr lost(new KnGroup);
        group->insertChild(lost.get(), 0);
        for (int i = 0; i < 3000; ++i)
            static_cast<KnGroup*>(lost.get())->addChild(newNode(u"Material"_s, QString::number(i)));
        NodeFilter filter([](void*, KnSensor*) {}, nullptr);
        filter.begin(NodeQuery(u"oak"_s), { m_scene });
        int slices = 0;
        for (; !filter.work(QDeadlineTimer(0)); ++slices) {
            if (slices == 2) {
                group->removeChild(lost.get());
                lost = KnNodePtr();
                group->addChild(newNode(u"Material"_s, u"Oak too"_s));
            }
        }
        QVERIFY(slices > 2);
        QCOMPARE(filter.acceptedChildren(group), std::vector<int>({ 0, 5 }));
        KnSensorQueue::getInstance().process();
    }

    void aNewNameIsSeen()
    {
        auto* const group = static_cast<KnGroup*>(m_scene.get());
        KnFieldContainer* const oak = group->getChild(0);
        const auto first = [this] { return m_tree->model()->index(0, 0); };
        QSignalSpy changes(m_tree->model(), &QAbstractItemModel::dataChanged);
        oak->setName(KbName("Ash"));
        oak->setName(KbName("Beech"));
        QTRY_COMPARE(changes.count(), 1);
        QCOMPARE(changes.constFirst().constFirst().toModelIndex().data().toString(), u"Beech"_s);
        QTest::keyClicks(m_line, u"beech"_s);
        QTRY_COMPARE(shownRows(*m_tree), (QStringList { u"Scene"_s, u"[Beech]"_s }));
        oak->setName(KbName("Cedar"));
        QTRY_COMPARE(m_tree->model()->rowCount(first()), 0);
        oak->setName(KbName("Red beech"));
        QTRY_COMPARE(shownRows(*m_tree), (QStringList { u"Scene"_s, u"[Red beech]"_s }));
    }

    void whatWasOpenIsOpenAgain()
    {
        auto* const group = static_cast<KnGroup*>(m_scene.get());
        KnGroup* const room = addRoom(u"Shelf"_s);
        const auto index = [this](const QString& name) {
            return m_tree->model()
                ->match(m_tree->model()->index(0, 0), Qt::DisplayRole, name, 1,
                    Qt::MatchExactly | Qt::MatchRecursive)
                .value(0);
        };
        m_tree->expand(index(u"Room"_s));
        m_tree->expand(index(u"Shelf"_s));
        const QStringList open = shownRows(*m_tree);
        QVERIFY(open.contains(u"Book"_s));
        QTest::keyClicks(m_line, u"oak"_s);
        m_line->clear();
        QCOMPARE(shownRows(*m_tree), open);

        // To another group, in either order of events, and back.
        auto* const hall = static_cast<KnGroup*>(newNode(u"Group"_s, u"Hall"_s));
        group->addChild(hall);
        QCoreApplication::processEvents();
        m_tree->expand(index(u"Hall"_s));
        const KnNodePtr keeper(room);
        group->removeChild(room);
        hall->addChild(room);
        QTRY_VERIFY(shownRows(*m_tree).contains(u"Book"_s));
        group->addChild(newNode(u"Text"_s, u"heard of first"_s));
        hall->removeChild(room);
        group->addChild(room);
        QTRY_VERIFY(index(u"heard of first"_s).isValid());
        QVERIFY(shownRows(*m_tree).contains(u"Book"_s));
    }

    void stepsAlongTheMatches_data() { addTextRows({ { "filtered" }, { "filter taken away" } }); }
    void stepsAlongTheMatches()
    {
        const bool taken = textRow<1>()[0] == u"filter taken away";
        auto* const group = static_cast<KnGroup*>(m_scene.get());
        auto* const room = static_cast<KnGroup*>(newNode(u"Group"_s, u"Material room"_s));
        room->addChild(newNode(u"Material"_s, u"Pine"_s));
        group->insertChild(room, 1);
        QTest::keyClicks(m_line, u"material"_s);
        if (taken)
            m_line->clear();
        QCoreApplication::processEvents();
        const auto press = [this](const QKeySequence& keys) {
            m_inspector->press(keys);
            const KnFieldContainer* const node = CrvServices::getInstance()->getSelectedNode();
            return node && m_tree->visualRect(m_tree->currentIndex()).isValid() ? nodeLabel(*node)
                                                                                : QString();
        };
        for (const QString& name : { u"Oak"_s, u"Material room"_s, u"Pine"_s, u"Été wall"_s,
                 u"Oak"_s, u"Material room"_s, u"Pine"_s })
            QCOMPARE(press(Qt::Key_F3), name);
        for (const QString& name : { u"Material room"_s, u"Oak"_s, u"Été wall"_s, u"Pine"_s })
            QCOMPARE(press(QKeySequence(Qt::SHIFT | Qt::Key_F3)), name);
        // What was selected goes back, without the one that is gone.
        const QKeySequence back(Qt::ALT | Qt::Key_Left);
        QCOMPARE(press(back), u"Été wall"_s);
        group->removeChild(group->findChild(group->getChild(0)));
        QCoreApplication::processEvents();
        QCOMPARE(press(back), u"Material room"_s);
        QCOMPARE(press(QKeySequence(Qt::ALT | Qt::Key_Right)), u"Été wall"_s);
        QCOMPARE(press(back), u"Material room"_s);
        QCOMPARE(press(Qt::Key_F3), u"Pine"_s); // what lay ahead is no more
        QCOMPARE(press(back), u"Material room"_s);
    }

    void thePathLeadsUp()
    {
        KnGroup* const room = addRoom(u"A shelf <b>"_s);
        const auto* const shelf = static_cast<const KnGroup*>(room->getChild(0));
        CrvServices::getInstance()->selectNode(shelf->getChild(0));
        auto* const path = m_inspector->window.findChild<QLabel*>(u"nodePath"_s);
        const auto shown = [path] {
            QTextDocument text;
            text.setHtml(path->text());
            return text.toPlainText();
        };
        m_inspector->window.resizeDocks(
            { m_inspector->dock(u"sceneDock"_s) }, { 400 }, Qt::Horizontal);
        QTRY_COMPARE(shown(), u"Scene / Room / A shelf <b> / Book"_s);
        room->setName(KbName("Hall"));
        QTRY_COMPARE(shown(), u"Scene / Hall / A shelf <b> / Book"_s);
        const int width = path->width();
        path->resize(path->fontMetrics().horizontalAdvance(u"Scene / ... / A shelf <b> / Book "_s)
                + 2 * path->margin(),
            path->height());
        QCOMPARE(shown(), u"Scene / \u2026 / A shelf <b> / Book"_s);
        path->resize(width, path->height());
        // From the end of the path two links back.
        const int x = path->fontMetrics().horizontalAdvance(u"Scene / Ha"_s);
        QTest::mouseClick(path, Qt::LeftButton, {}, QPoint(x, path->height() / 2));
        QCOMPARE(CrvServices::getInstance()->getSelectedNode(), room);
        QCOMPARE(shown(), u"Scene / Hall"_s);
        path->grab(); // a label takes its new links when it is drawn
        path->setFocus(Qt::TabFocusReason);
        QTest::keyClick(path, Qt::Key_Tab);
        QTest::keyClick(path, Qt::Key_Return); // on the first link
        QTRY_COMPARE(shown(), u"Scene"_s);
    }

    void keysOpenAndCloseBelow()
    {
        addRoom(u"Shelf"_s);
        m_inspector->clickNode(u"Room"_s);
        const QStringList closed = shownRows(*m_tree);
        m_inspector->press(Qt::Key_Asterisk);
        QCOMPARE(shownRows(*m_tree), closed + QStringList({ u"Shelf"_s, u"Book"_s }));
        m_inspector->press(Qt::Key_Slash);
        QCOMPARE(shownRows(*m_tree), closed);
        m_inspector->press(Qt::Key_Right); // what stood below is closed, too
        QCOMPARE(shownRows(*m_tree), closed + QStringList({ u"Shelf"_s }));
    }

private:
    /// A room in the scene, with a book on a shelf.
    KnGroup* addRoom(const QString& shelfName)
    {
        auto* const room = static_cast<KnGroup*>(newNode(u"Group"_s, u"Room"_s));
        auto* const shelf = static_cast<KnGroup*>(newNode(u"Group"_s, shelfName));
        shelf->addChild(newNode(u"Text"_s, u"Book"_s));
        room->addChild(shelf);
        static_cast<KnGroup*>(m_scene.get())->addChild(room);
        QCoreApplication::processEvents();
        return room;
    }

    KnNodePtr m_scene;
    QTreeView* m_tree = nullptr;
    QLineEdit* m_line = nullptr;
    QLabel* m_note = nullptr;
};

QTEST_MAIN(TestSceneFilter)
#include "test_scene_filter.moc"
