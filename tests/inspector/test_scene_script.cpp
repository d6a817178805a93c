// SPDX-License-Identifier: BSD-3-Clause
#include "KnDatabase.h"
#include "KnGroup.h"
#include "KnNodePtr.h"
#include "NearNames.h"
#include "SceneScript.h"
#include "SceneText.h"
#include "TextRows.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Step = SceneScript::Step;

/// A graph in which names repeat, are missing, or look like something else:
/// Room { Lamp (PointLight), Lamp (DirectionalLight), PointLight, PointLight,
///        Shelf { Lamp (Group) { a/b[1]=c.on (PointLight) } }, Room { Book (Material) }, Shelf }
class Graph {
public:
    Graph()
    {
        KnDatabase::init();
        KnGroup* const room = group(nullptr, "Room");
        m_root = KnNodePtr(room);
        add(room, "PointLight", "Lamp");
        add(room, "DirectionalLight", "Lamp");
        add(room, "PointLight", "");
        add(room, "PointLight", "");
        KnGroup* const shelf = group(room, "Shelf");
        add(group(shelf, "Lamp"), "PointLight", "a/b[1]=c.on\n");
        add(group(room, "Room"), "Material", "Book");
        room->addChild(shelf); // shared
    }

    NodePlaces::Nodes roots() const { return { m_root.get() }; }

private:
    static KnFieldContainer* add(KnGroup* parent, const char* type, const char* name)
    {
        auto* const node = static_cast<KnFieldContainer*>(KnType::fromName(type).createInstance());
        node->setName(name);
        if (parent)
            parent->addChild(node);
        return node;
    }
    static KnGroup* group(KnGroup* parent, const char* name)
    {
        return static_cast<KnGroup*>(add(parent, "Group", name));
    }

    KnNodePtr m_root;
};

} // namespace

class TestSceneScript : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addresses_data()
    {
        // What is searched for; the path and the field that it leads to, or the error.
        addTextRows({ { "Room", "Room" }, { "/Room", "Room" }, { "Room/Room", "Room/Room" },
            { "Book", "Room/Room/Book" }, { "Material", "Room/Room/Book" },
            { "Room/Lamp[1]", "Room/Lamp[1]" }, { "Lamp[2]", "Room/Shelf/Lamp" },
            { "PointLight[1]", "Room/PointLight[1]" }, { "Shelf/Lamp", "Room/Shelf/Lamp" },
            { "book", "Room/Room/Book" }, { "mATERIAL", "Room/Room/Book" },
            { "room/ROOM/book.Shininess", "Room/Room/Book", "shininess" },
            { "Room/PointLight[0].on", "Room/PointLight[0]", "on" },
            { R"(a\/b\[1]\=c.on\n)", R"(Room/Shelf/Lamp/a\/b\[1]\=c.on\n)" },
            { R"(a\/b\[1]=c.on\n.on)", R"(Room/Shelf/Lamp/a\/b\[1]\=c.on\n)", "on" },
            { "", "\"\" lacks a name" }, { "Room//Lamp", "\"Room//Lamp\" lacks a name" },
            { "/Shelf", "no root \"Shelf\"" },
            { "Boko", "no node \"Boko\" in the scene; did you mean \"Book\"?" },
            { "Room/Book", "Room/Room/Book" }, { "/Room/Book", "no node \"Book\" in \"Room\"" },
            { "Shelf/Lmap", "no node \"Lmap\" in \"Shelf\"; did you mean \"Lamp\"?" },
            { "Book.shinynes",
                "node \"Book\" has no field \"shinynes\"; did you mean"
                " \"shininess\"?" },
            { "Lamp[3].on", "no node \"Lamp[3]\": the last one is \"Lamp[2]\"" },
            { "Lamp.on",
                "\"Lamp\" may be any of 3 nodes:\n  Room/Lamp[0]\n  Room/Lamp[1]\n"
                "  Room/Shelf/Lamp" } });
    }
    void addresses()
    {
        const auto [text, expected, fieldName] = textRow<3>();
        const Graph graph;
        SceneSearch search(graph.roots());
        if (!search.find(text)) {
            QCOMPARE(search.errorText(), expected);
            return;
        }
        QCOMPARE(search.places().path(search.node()), expected);
        QCOMPARE(search.field() ? ::fieldName(*search.field()) : QString(), fieldName);
    }

    // What is printed can be typed in again, for every node.
    void pathsComeBack()
    {
        const Graph graph;
        SceneSearch search(graph.roots());
        const NodePlaces::Nodes nodes = search.places().nodes();
        QCOMPARE(nodes.size(), 10);
        for (KnFieldContainer* const node : nodes) {
            const QString path = search.places().path(node);
            QVERIFY2(search.find(path) && search.node() == node, qPrintable(path));
        }
    }

    // Each group stands twice in the one above, so that the leaf has 2^40 places.
    void sharedPartsAreWalkedOnce()
    {
        constexpr int levels = 40;
        KnNodePtr top(new KnGroup);
        top->setName("Leaf");
        for (int i = 0; i < levels; ++i) {
            auto* const group = new KnGroup;
            group->addChild(top.get());
            group->addChild(top.get());
            top = KnNodePtr(group);
        }
        SceneSearch search({ top.get() });
        QCOMPARE(search.places().nodes().size(), levels + 1);
        QVERIFY(search.find(u"Group[1]/Group/Group/Group"_s) && search.find(u"Leaf.visible"_s));
    }

    void scripts_data()
    {
        // Steps parted by bars, what they print, and the error.
        addTextRows({ { "get Book.transparency", "0\n" },
            { "get Book.transparency|set Book.transparency=.5|get Book.transparency", "0\n0.5\n" },
            { "set Lamp[0].color=1 0 0|set Lamp[0].color=\"\"|get Lamp[0].color", "0 0 0\n" },
            { R"(set a\/b\[1]\=c.on\n.on=FALSE|get a\/b\[1]\=c.on\n.on)", "FALSE\n" },
            { "get Book", "", "\"Book\" names no field: NODE.FIELD expected" },
            { "set Book.shininess=[ 0, x ]", "",
                "Book.shininess: Material \"Book\", field shininess (MFFloat): the text was "
                "refused, row 1, character 5: expected a number, found: x ]" } });
    }
    void scripts()
    {
        const auto [text, output, error] = textRow<3>();
        QList<Step> steps;
        for (const QString& step : text.split(u'|')) {
            const QString rest = step.mid(4);
            const qsizetype equals = NodeAddress::indexOf(rest, u'=');
            if (step.startsWith(u"get "))
                steps += { Step::Kind::Get, rest, {} };
            else
                steps += { Step::Kind::Set, rest.left(equals), rest.mid(equals + 1) };
        }
        const Graph graph;
        SceneScript script(graph.roots());
        QCOMPARE(script.run(steps), error.isEmpty());
        QCOMPARE(script.errorText(), error);
        if (error.isEmpty())
            QCOMPARE(QString::fromUtf8(script.output()), output);
    }

    // A line for each node and field, also of a name with a line end; nodes only once.
    void lists()
    {
        const Graph graph;
        SceneScript script(graph.roots());
        QVERIFY(script.run({ Step() }));
        const QByteArrayList lines = script.output().split('\n');
        QCOMPARE(lines.value(0), "Room\tGroup");
        QCOMPARE(lines.value(1), "Room.visible\tSFBool\tTRUE");
        QCOMPARE(std::count_if(lines.begin(), lines.end(),
                     [](const QByteArray& line) { return line.count('\t') == 1; }),
            10);
        QVERIFY(lines.contains(R"(Room/Shelf/Lamp/a\/b\[1]\=c.on\n)"
                               "\tPointLight"));
        QVERIFY(lines.contains("Room/PointLight[1].location\tSFVec3f\t0 0 1"));
    }

    void nearNames_data()
    {
        addTextRows({ { "colour", "color, colours, cool", "color, colours" },
            { "LAPM", "Lamp", "Lamp" }, { "xyz", "Lamp", "" }, { "a", "b, c, d, e", "b, c, d" },
            { "lamp", "Desk lamp, La", "Desk lamp" },
            { "Lamp 1", "Lamp 12, Lamp 2, Lamp 12", "Lamp 12, Lamp 2" } });
    }
    void nearNames()
    {
        const auto [text, names, nearest] = textRow<3>();
        QCOMPARE(::nearNames(text, names.split(u", "_s)).join(u", "_s), nearest);
    }
};

QTEST_APPLESS_MAIN(TestSceneScript)
#include "test_scene_script.moc"
