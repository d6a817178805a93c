// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "KnGroup.h"
#include "KnText.h"
#include "SceneDocument.h"
#include "SceneReader.h"
#include "SceneText.h"
#include "SceneWriter.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray sceneWith(const QByteArray& root)
{
    return R"({ "format": "corvane-scene", "version": 1, "root":)"
           "\n"
        + root + " }\n";
}

QByteArray nestedGroups(int levels)
{
    QByteArray root = R"({ "type": "Group" })";
    for (int i = 0; i < levels; ++i)
        root = R"({ "type": "Group", "children": [)" + root + "] }";
    return sceneWith(root);
}

// What a node holds that a file must bring back.
QStringList describe(KnFieldContainer* node)
{
    QStringList lines { nodeLabel(*node) };
    const KnFieldData* const data = node->getContainerFieldData();
    for (int i = 0; i < data->getNum(); ++i) {
        KbString text;
        data->getField(node, i)->get(text);
        lines += toQString(text) + QString::number(data->getField(node, i)->isIgnored());
    }
    const auto* group = dynamic_cast<const KnGroup*>(node);
    for (int i = 0; group && i < group->getNumChildren(); ++i)
        lines += describe(group->getChild(i));
    return lines;
}

QStringList writtenAndRead(const KnNodePtr& root)
{
    SceneReader reader;
    const KnNodePtr again = reader.readText(SceneWriter().toJson(*root.get()), u"again.json"_s);
    return again ? describe(again.get()) : QStringList(reader.errorText());
}

} // namespace

class TestSceneFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("json");
        // The message behind the file's name, and what is refused with it.
        const auto row
            = [](const char* message, const QByteArray& json) { QTest::newRow(message) << json; };
        const auto node = [&row](const char* message, const QByteArray& root) {
            row(message, sceneWith(R"({ "type": )" + root + " }"));
        };
        row(": format: not a scene: \"corvane-scene\"", R"({ "format": "x", "version": 1 })");
        row(": version: version 1", R"({ "format": "corvane-scene", "version": 2 })");
        row(": root.type: missing", sceneWith("{}"));
        node(": root.type: unknown node type \"Light\"", R"("Light")"); // abstract
        node(": root.childs: unknown member", R"("Group", "childs": [])");
        node(": root.fields.size: a text in", R"("Text", "fields": { "size": 12 })");
        node(": root.fields.colour: a node of", R"("Text", "fields": { "colour": "1" })");
        node(": root.fields.spacing: Text, field", R"("Text", "fields": { "spacing": "x" })");
        row(": root.children[0]", nestedGroups(401));
    }
    void refuses()
    {
        QFETCH(QByteArray, json);
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"bad.json"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(json) > 0);
        file.close();
        SceneDocument document;
        QString error;
        QVERIFY2(document.open(m_sample, &error), qPrintable(error));
        const KnNodePtr root = document.root();
        CrvServices::getInstance()->selectNode(root.get());

        QVERIFY(!document.open(file.fileName(), &error));
        const QString message = file.fileName() + QString::fromUtf8(QTest::currentDataTag());
        QCOMPARE(error.left(message.size()), message);
        QCOMPARE(document.root().get(), root.get());
        QCOMPARE(document.fileName(), m_sample);
        QCOMPARE(CrvServices::getInstance()->getSelectedNode(), root.get());
    }

    void scenesSurvive()
    {
        QFile scene(m_sample);
        QVERIFY(scene.open(QIODevice::ReadOnly));
        for (const QByteArray& json : { scene.readAll(), nestedGroups(400) }) { // as deep as may be
            const KnNodePtr root = SceneReader().readText(json, u"first.json"_s);
            QVERIFY(root);
            QCOMPARE(writtenAndRead(root), describe(root.get()));
        }
    }

    void textsSurvive()
    {
        // Halves of a pair of code units may stand alone.
        const QString text = u"a \"b\" \\c\\\nb\tc\r\u0001\u007f \U0001F680 \u00e9 "_s
            + QChar(0xd83d) + u' ' + QChar(0xde80) + QChar(0xd83d);
        auto* const node = new KnText;
        const KnNodePtr root(node);
        node->setName(KbName(toKbString(text)));
        node->string.set1Value(0, toKbString(text));
        node->size.setIgnored(1); // with its default value
        node->spacing.setValue(2.5F);
        node->spacing.setIgnored(1);
        QCOMPARE(writtenAndRead(root), describe(node));
        QCOMPARE(nodeLabel(*node), text);

        SceneWriter writer;
        QVERIFY(!writer.writeFile(*node, u"/missing/scene.json"_s));
        QVERIFY(writer.errorText().startsWith(u"/missing/scene.json: "_s));
    }

private:
    const QString m_sample = QStringLiteral(CORVANE_SCENES "/all_fields.json");
};

QTEST_GUILESS_MAIN(TestSceneFiles)
#include "test_scene_files.moc"
