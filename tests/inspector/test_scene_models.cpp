// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListModel.h"
#include "KnDatabase.h"
#include "KnGroup.h"
#include "KnMFields.h"
#include "KnMaterial.h"
#include "KnSFields.h"
#include "KnSensorQueue.h"
#include "KnViewpoint.h"
#include "SceneFilterModel.h"
#include "SceneModel.h"
#include "SceneReader.h"
#include "SceneText.h"
#include "TextRows.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

#include <map>
#include <string>

using namespace Qt::StringLiterals;
using FailureMode = QAbstractItemModelTester::FailureReportingMode;

namespace {

// The leaves that a model shows, from top to bottom.
QStringList leaves(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList names;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        names += model.hasChildren(index) ? leaves(model, index)
                                          : QStringList(index.data().toString());
    }
    return names;
}

// The whole tree as a model shows it, in brackets what stands below.
QString shape(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QString text;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        text += index.data().toString() + u'(' + shape(model, index) + u')';
    }
    return text;
}

/// A graph of a few shared groups that changes at random, never into a circle.
class RandomScene {
public:
    explicit RandomScene(quint32 seed)
        : m_random(seed)
    {
        for (int i = 0; i < 6; ++i)
            m_groups.push_back(newNode(true));
        // Enough to be put in another order as a whole.
        for (int i = 0; i < 60; ++i)
            static_cast<KnGroup*>(m_groups[0].get())->addChild(newNode(false).get());
    }

    std::vector<KnNodePtr> roots() const { return { m_groups[0], m_groups[1] }; }
    int below(int bound) { return m_random.bounded(bound); }

    void change()
    {
        // A group stands only below those in front of it.
        const int place = below(1 + below(static_cast<int>(m_groups.size())));
        const int others = static_cast<int>(m_groups.size()) - place - 1;
        auto* const group = static_cast<KnGroup*>(m_groups[std::size_t(place)].get());
        const int count = group->getNumChildren();
        switch (below(9)) {
        case 0: // a group that has something already
            m_groups.push_back(newNode(true));
            static_cast<KnGroup*>(m_groups.back().get())->addChild(newNode(false).get());
            group->insertChild(m_groups.back().get(), below(count + 1));
            break;
        case 1: // now and then, or the places of a node become more and more
            if (others > 0 && below(5) == 0)
                group->insertChild(
                    m_groups[std::size_t(place + 1 + below(others))].get(), below(count + 1));
            break;
        case 2: // sometimes to empty it
            for (int i = below(4) == 0 ? count : below(3); i > 0 && i <= count; --i)
                group->removeChild(below(i));
            break;
        case 3:
            for (int i = below(90); i > 0 && count > 0; --i)
                group->moveChild(below(count), below(count));
            break;
        case 4:
            group->moveChild(below(count + 1), below(count + 1));
            break;
        default:
            group->insertChild(newNode(false).get(), below(count + 1));
        }
    }

private:
    KnNodePtr newNode(bool isGroup)
    {
        KnNodePtr node(isGroup ? static_cast<KnFieldContainer*>(new KnGroup) : new KnMaterial);
        node->setName(KbName(std::to_string(++m_count).c_str()));
        return node;
    }

    QRandomGenerator m_random;
    int m_count = 0;
    std::vector<KnNodePtr> m_groups;
};

/// A node whose class says nothing of its fields.
class KnTerseNode : public KnNode {
    KN_NODE(KnTerseNode)
    KnSFBool on;
};

KN_NODE_SOURCE(KnTerseNode, KnNode)

KnTerseNode::KnTerseNode() { KN_FIELD(on); }

/// Says when it dies.
class MortalGroup : public KnGroup {
public:
    explicit MortalGroup(bool* dead)
        : m_dead(dead)
    {
    }

protected:
    ~MortalGroup() override { *m_dead = true; }

private:
    bool* m_dead;
};

} // namespace

class TestSceneModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void modelsAreSound()
    {
        SceneModel model;
        SceneFilterModel filter;
        const QAbstractItemModelTester modelTester(&model, FailureMode::QtTest);
        const QAbstractItemModelTester filterTester(&filter, FailureMode::QtTest);
        model.setRoots({ m_sample });
        filter.setRoots({ m_sample });
        const auto shown = [&filter](const QString& text) {
            filter.setFilterText(text);
            return leaves(filter).join(u", "_s);
        };
        QCOMPARE(shown(u"  oak "_s), u"Oak"_s);
        QCOMPARE(shown(u"light"_s), u"Window light, Desk lamp"_s); // one by its type
        QCOMPARE(shown(u".*"_s), QString());
        QCOMPARE(shown(QString()), leaves(model).join(u", "_s));

        // A node may stand in several places.
        auto* const root = new KnGroup;
        root->addChild(new KnMaterial);
        root->addChild(root->getChild(0));
        filter.setRoots({ KnNodePtr(root) });
        QCOMPARE(shown(QString()), u"Material, Material"_s);
    }

    void treeFollowsTheGraph_data() { addTextRows({ { "bare" }, { "filter", "1" } }); }
    void treeFollowsTheGraph()
    {
        const QString filterText = textRow<2>()[1];
        const quint32 seed = QRandomGenerator::global()->generate();
        RandomScene scene(seed);
        SceneFilterModel filtering;
        SceneModel bare;
        filtering.setFilterText(filterText);
        SceneModel& model = filterText.isEmpty() ? bare : filtering;
        const QAbstractItemModelTester tester(&model, FailureMode::QtTest);
        const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.setRoots(scene.roots());
        std::vector<std::pair<QPersistentModelIndex, KnNodePtr>> held;
        for (int batch = 0; batch < 300; ++batch) {
            for (int change = scene.below(5); change >= 0; --change) {
                scene.change();
                // Somebody looks while the rows are behind the graph.
                const QModelIndex top = model.index(scene.below(2), 0);
                const QModelIndex row = model.index(scene.below(4), 0, top);
                if (KnFieldContainer* const node = model.node(row))
                    held.emplace_back(row, KnNodePtr(node));
            }
            KnSensorQueue::getInstance().process();
            const QByteArray where
                = "seed " + QByteArray::number(seed) + ", batch " + QByteArray::number(batch);
            for (const auto& [index, node] : held)
                QVERIFY2(!index.isValid() || model.node(index) == node.get(), where);
            if (batch % 4 != 0) // so that some groups stay unseen for a while
                continue;
            SceneFilterModel fresh;
            fresh.setFilterText(filterText);
            fresh.setRoots(scene.roots());
            QTRY_VERIFY2(shape(model) == shape(fresh), where);
            QVERIFY2(!QTest::currentTestFailed(), where);
        }
        QCOMPARE(resets.size(), 0);
    }

    void whatHappensToRows_data()
    {
        // The children of a group that has "abcdef", and the signals by their first letters, and
        // rows.
        addTextRows({ { "abxycdef", "i2-3" }, { "aef", "r1-3" }, { "xbcdefy", "r0-0 i0-0 i6-6" },
            { "bcdefa", "m0>6" }, { "afbcde", "m5>1" }, { "ebcdaf", "m4>0 m1>5" },
            { "xfbcd", "r4-4 r0-0 m3>0 i0-0" }, { "abcdef", "" }, { "abcdefa", "i6-6" },
            { "", "r0-5" }, { "tsrqponmlkjihgfedcba", "anew", "abcdefghijklmnopqrst" } });
    }
    void whatHappensToRows()
    {
        const auto [children, told, other] = textRow<3>();
        const QString start = other.isEmpty() ? u"abcdef"_s : other;
        std::map<QChar, KnNodePtr> nodes;
        auto* const group = new KnGroup;
        const auto fill = [&](const QString& names) {
            for (const QChar name : names) {
                KnNodePtr& node = nodes[name];
                if (!node)
                    node = KnNodePtr(new KnMaterial);
                group->addChild(node.get());
            }
        };
        fill(start);
        SceneModel model;
        model.setRoots({ KnNodePtr(group) });
        const QModelIndex parent = model.index(0, 0);
        shape(model);
        QStringList heard;
        const auto range = [&](const QString& what, int first, int last) {
            heard += what + QString::number(first) + (what == u"m" ? u'>' : u'-')
                + QString::number(last);
        };
        connect(&model, &QAbstractItemModel::rowsInserted, this,
            [&](const QModelIndex&, int first, int last) { range(u"i"_s, first, last); });
        connect(&model, &QAbstractItemModel::rowsRemoved, this,
            [&](const QModelIndex&, int first, int last) { range(u"r"_s, first, last); });
        connect(&model, &QAbstractItemModel::rowsMoved, this,
            [&](const QModelIndex&, int first, int, const QModelIndex&, int to) {
                range(u"m"_s, first, to);
            });
        connect(&model, &QAbstractItemModel::layoutChanged, this, [&] { heard += u"anew"_s; });
        const QPersistentModelIndex held = model.index(0, 0, parent);
        while (group->removeChild(0)) { }
        fill(children);
        QCOMPARE(model.rowCount(parent), start.size());
        KnSensorQueue::getInstance().process();
        QCOMPARE(heard.join(u' '), told);
        QVERIFY(!held.isValid() || model.node(held) == nodes[start.front()].get());
    }

    void aDroppedNodeIsGone()
    {
        bool dead[3] = {};
        auto* const root = new KnGroup;
        auto* const group = new MortalGroup(&dead[0]);
        group->addChild(new MortalGroup(&dead[1]));
        root->addChild(group);
        SceneModel model;
        model.setRoots({ KnNodePtr(root) });
        shape(model);
        // Its own sensor waits in the queue when it goes.
        group->addChild(new MortalGroup(&dead[2]));
        root->removeChild(0);
        KnSensorQueue::getInstance().process();
        QVERIFY(dead[0] && dead[1] && dead[2]);
        QCOMPARE(shape(model), u"Group()"_s);
    }

    void fieldListFollowsTheFields()
    {
        auto* const material = new KnMaterial;
        const KnNodePtr node(material);
        FieldListModel model;
        const QAbstractItemModelTester tester(&model, FailureMode::QtTest);
        model.setNodes({ material });
        const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        const int row = model.rowOf(&material->transparency);
        model.index(row, FieldListModel::ValueColumn).data(); // rows are watched once they are seen
        material->transparency.setValue(0.25F);
        material->transparency.setIgnored(1);
        KnSensorQueue::getInstance().process();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes[0][0].toModelIndex().row(), row);
        QStringList cells;
        for (int column = 0; column <= FieldListModel::IgnoredColumn; ++column)
            cells += model.index(row, column).data().toString();
        QCOMPARE(cells.join(u' '), u"transparency SFFloat 0.25 yes"_s);

        // A node that isn't shown any more isn't watched.
        auto* const view = new KnViewpoint;
        const KnNodePtr next(view);
        view->description.setValue("<b>");
        model.setNodes({ view });
        material->transparency.setValue(0.5F);
        KnSensorQueue::getInstance().process();
        QCOMPARE(changes.size(), 1);
        // A tag in a value is text.
        QTextDocument tip;
        tip.setHtml(model.index(0, FieldListModel::ValueColumn).data(Qt::ToolTipRole).toString());
        QCOMPARE(tip.toPlainText(),
            u"description  SFString\nWhat the viewpoint is called where people choose one.\n"
            "\"<b>\""_s);
    }

    void fieldsAreExplained_data()
    {
        addTextRows({ { "PointLight.intensity", "How bright the light is. (0 to 1)" },
            { "PointLight.location", "Where the light stands." },
            { "DrawStyle.pointSize", "The diameter of points. (pixels, at least 0)" },
            { "TerseNode.on", "" } });
    }
    void fieldsAreExplained()
    {
        const auto [place, meaning] = textRow<2>();
        KnDatabase::init();
        KnTerseNode::getClassTypeId();
        const QStringList names = place.split(u'.');
        const KnNodePtr node(static_cast<KnFieldContainer*>(
            KnType::fromName(KbName(toKbString(names[0]))).createInstance()));
        FieldListModel model;
        model.setNodes({ node.get() });
        const QModelIndex index = model.index(
            model.rowOf(node->getField(KbName(toKbString(names[1])))), FieldListModel::TypeColumn);
        QCOMPARE(index.data(Qt::StatusTipRole).toString(), meaning);
        QTextDocument tip;
        tip.setHtml(index.data(Qt::ToolTipRole).toString());
        QStringList lines { names[1] + u"  "_s + index.data().toString(), meaning,
            index.siblingAtColumn(FieldListModel::ValueColumn).data().toString() };
        lines.removeAll(QString());
        QCOMPARE(tip.toPlainText(), lines.join(u'\n'));
    }

    // Also where no view has asked for a text before.
    void heldTextsStay()
    {
        auto* const view = new KnViewpoint;
        view->description.setValue("a");
        FieldListModel model;
        const auto shown
            = [&model] { return model.index(0, FieldListModel::ValueColumn).data().toString(); };
        model.setNodes({ view });
        model.setHeld(true);
        view->description.setValue("b");
        QCOMPARE(shown(), u"\"a\""_s);
        model.setHeld(false);
        QCOMPARE(shown(), u"\"b\""_s);
        model.setNodes({});
        model.setHeld(true);
        model.setNodes({ new KnViewpoint });
        static_cast<KnViewpoint*>(model.node())->description.setValue("c");
        QCOMPARE(shown(), u"\"\""_s);
    }

    void summariesStayShort()
    {
        const auto summary = [](KnField&& field, const QString& text) {
            return field.set(toKbString(text)) ? fieldSummary(field, 30) : QString();
        };
        const QString numbers = QStringList(9999, u"12345678"_s).join(u", "_s);
        QCOMPARE(summary(KnMFInt32(), u"[]"_s), u"no values"_s);
        QCOMPARE(summary(KnMFInt32(), u"[7]"_s), u"1 value:  7"_s);
        QCOMPARE(summary(KnMFInt32(), u'[' + numbers + u']'),
            u"9999 values:  "_s + numbers.left(30) + u'\u2026');
        QCOMPARE(summary(KnSFString(), u'"' + numbers + u'"'), u'"' + numbers.left(29) + u'\u2026');
        // A tip takes mark-up for what it says.
        QCOMPARE(toolTipText(u"<b>bold</b>"_s), u"&lt;b&gt;bold&lt;/b&gt;"_s);
    }

private:
    const KnNodePtr m_sample
        = SceneReader().readFile(QStringLiteral(CORVANE_SCENES "/all_fields.json"));
};

QTEST_GUILESS_MAIN(TestSceneModels)
#include "test_scene_models.moc"
