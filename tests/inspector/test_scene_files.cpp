// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "KnField.h"
#include "KnGroup.h"
#include "KnReadError.h"
#include "KnTestNode.h"
#include "KnText.h"
#include "SceneDocument.h"
#include "SceneReader.h"
#include "SceneText.h"
#include "SceneWriter.h"

#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString samplePath(const QString& name)
{
    return QStringLiteral(CORVANE_SCENES) + QLatin1Char('/') + name;
}

QByteArray sceneWith(const QByteArray& root)
{
    return "{ \"format\": \"corvane-scene\",\n \"version\": 1,\n \"root\": " + root + " }\n";
}

QByteArray nestedGroups(int levels)
{
    QByteArray root = "{ \"type\": \"Group\" }";
    for (int i = 0; i < levels; ++i)
        root = "{ \"type\": \"Group\", \"children\": [" + root + "] }";
    return sceneWith(root);
}

void writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.errorString()));
    QCOMPARE(file.write(content), content.size());
}

// What a node holds that a file must bring back, one line each.
void describe(KnFieldContainer* node, const QString& place, QStringList& lines)
{
    lines += place + typeName(node->getObjectType()) + QLatin1Char(' ')
        + toQString(node->getName().getString());
    const KnFieldData* const data = node->getContainerFieldData();
    for (int i = 0; i < data->getNum(); ++i) {
        const KnField* const field = data->getField(node, i);
        KbString text;
        field->get(text);
        lines += place + fieldName(*field) + (field->isIgnored() ? u" ignored "_s : u" "_s)
            + toQString(text);
    }
    const auto* group = dynamic_cast<const KnGroup*>(node);
    for (int i = 0; group && i < group->getNumChildren(); ++i)
        describe(group->getChild(i), place + QString::number(i) + QLatin1Char('/'), lines);
}

QStringList describe(const NodePtr& root)
{
    QStringList lines;
    describe(root.get(), QString(), lines);
    return lines;
}

void collectFieldTypes(KnFieldContainer* node, QSet<QString>& types)
{
    const KnFieldData* const data = node->getContainerFieldData();
    for (int i = 0; i < data->getNum(); ++i)
        types += typeName(data->getField(node, i)->getObjectType());
    const auto* group = dynamic_cast<const KnGroup*>(node);
    for (int i = 0; group && i < group->getNumChildren(); ++i)
        collectFieldTypes(group->getChild(i), types);
}

} // namespace

class TestSceneFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }
    void refusesBadFiles_data();
    void refusesBadFiles();
    void refusesWhatIsNoFile();
    void refusalLeavesTheOpenSceneAlone();
    void samplesSurvive_data();
    void samplesSurvive();
    void sampleHoldsEveryFieldType();
    void keepsTexts_data();
    void keepsTexts();
    void keepsIgnoredFields();
    void failedSaveLeavesTheFileAlone();
};

void TestSceneFiles::refusesBadFiles_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("messageParts");

    const auto node = [](const char* name, const QByteArray& root, const QStringList& parts) {
        QTest::newRow(name) << sceneWith(root) << parts;
    };
    QTest::newRow("empty") << QByteArray(" \n") << QStringList { u"empty"_s };
    QTest::newRow("not JSON") << QByteArray("Group {\n}\n") << QStringList { u":1:1:"_s };
    QTest::newRow("truncated") << sceneWith("{ \"type\": \"Group\"").chopped(4)
                               << QStringList { u":3:"_s };
    QTest::newRow("syntax error") << sceneWith("\n\n { \"type\" \"Group\" }")
                                  << QStringList { u":5:11:"_s };
    QTest::newRow("an array") << QByteArray("[]") << QStringList { u"object"_s };
    QTest::newRow("another format") << QByteArray("{ \"format\": \"x\", \"version\": 1 }")
                                    << QStringList { u"format"_s, u"corvane-scene"_s };
    QTest::newRow("a newer version")
        << QByteArray("{ \"format\": \"corvane-scene\", \"version\": 2 }")
        << QStringList { u"version"_s, u"1 expected"_s };
    QTest::newRow("no root") << QByteArray("{ \"format\": \"corvane-scene\", \"version\": 1 }")
                             << QStringList { u"root: missing"_s };
    node("root of a wrong kind", "[]", { u"root: an object expected"_s });
    node("no type", "{}", { u"root.type: missing"_s });
    node("type of a wrong kind", "{ \"type\": 3 }", { u"root.type"_s, u"text"_s });
    node("unknown type", "{ \"type\": \"Blob\" }", { u"root.type"_s, u"\"Blob\""_s });
    node("a field's type", "{ \"type\": \"SFBool\" }", { u"root.type"_s, u"\"SFBool\""_s });
    node("abstract type", "{ \"type\": \"Light\" }", { u"root.type"_s, u"\"Light\""_s });
    node("name of a wrong kind", "{ \"type\": \"Group\", \"name\": [] }", { u"root.name"_s });
    node("misspelled member", "{ \"type\": \"Group\", \"childs\": [] }",
        { u"root.childs: unknown member"_s });
    node("children of a leaf", "{ \"type\": \"Material\", \"children\": [] }",
        { u"root.children"_s, u"\"Material\""_s });
    node("children of a wrong kind", "{ \"type\": \"Group\", \"children\": {} }",
        { u"root.children: an array expected"_s });
    node("fields of a wrong kind", "{ \"type\": \"Group\", \"fields\": \"\" }",
        { u"root.fields: an object expected"_s });
    node("unknown field", "{ \"type\": \"Text\", \"fields\": { \"colour\": \"1 1 1\" } }",
        { u"root.fields.colour"_s, u"\"Text\""_s });
    node("field of a wrong kind", "{ \"type\": \"Text\", \"fields\": { \"size\": 12 } }",
        { u"root.fields.size"_s, u"text"_s });
    node("ignored of a wrong kind",
        "{ \"type\": \"Text\", \"fields\": { \"size\": { \"value\": \"1\", \"ignored\": 1 } } }",
        { u"root.fields.size.ignored"_s });
    node("unknown member of a field",
        "{ \"type\": \"Text\", \"fields\": { \"size\": { \"val\": \"1\" } } }",
        { u"root.fields.size.val"_s });
    // The last part is the kernel's own.
    node("refused text",
        "{ \"type\": \"Group\", \"children\": [ { \"type\": \"Group\" }, { \"type\": \"Transform\","
        " \"fields\": { \"translation\": \"1 2 x\" } } ] }",
        { u"root.children[1].fields.translation: "_s, u"Transform"_s, u"number"_s });
    QTest::newRow("too deep") << nestedGroups(401) << QStringList { u"levels"_s };
    QTest::newRow("too deep for the parser") << nestedGroups(2000) << QStringList { u":3:"_s };
}

void TestSceneFiles::refusesBadFiles()
{
    QFETCH(QByteArray, json);
    QFETCH(QStringList, messageParts);

    const KnErrorCallback handler = KnReadError::getHandlerCallback();
    SceneReader reader;
    QVERIFY(!reader.readText(json, u"bad.json"_s));
    QVERIFY2(reader.errorText().startsWith(u"bad.json:"_s), qPrintable(reader.errorText()));
    for (const QString& part : messageParts)
        QVERIFY2(reader.errorText().contains(part), qPrintable(reader.errorText()));
    QVERIFY(KnReadError::getHandlerCallback() == handler);
    QVERIFY(reader.readText(nestedGroups(400), u"good.json"_s));
    QCOMPARE(reader.nodeCount(), 401);
}

void TestSceneFiles::refusesWhatIsNoFile()
{
    const QTemporaryDir folder;
    SceneReader reader;
    for (const QString& name : { folder.filePath(u"missing.json"_s), folder.path() }) {
        QVERIFY(!reader.readFile(name));
        QVERIFY2(reader.errorText().startsWith(name + u": "_s), qPrintable(reader.errorText()));
    }
}

void TestSceneFiles::refusalLeavesTheOpenSceneAlone()
{
    const QTemporaryDir folder;
    const QString bad = folder.filePath(u"bad.json"_s);
    writeFile(bad, sceneWith("{ \"type\": \"Group\", \"children\": [ {} ] }"));

    SceneDocument document;
    QString error;
    QVERIFY2(document.open(samplePath(u"all_fields.json"_s), &error), qPrintable(error));
    const NodePtr root = document.root();
    CrvServices::getInstance()->selectNode(root.get());

    QVERIFY(!document.open(bad, &error));
    QVERIFY2(error.contains(u"root.children[0].type: missing"_s), qPrintable(error));
    QCOMPARE(document.root().get(), root.get());
    QCOMPARE(document.fileName(), samplePath(u"all_fields.json"_s));
    QCOMPARE(CrvServices::getInstance()->getSelectedNode(), root.get());
}

void TestSceneFiles::samplesSurvive_data()
{
    QTest::addColumn<int>("nodeCount");
    QTest::newRow("all_fields.json") << 25;
    QTest::newRow("station.json") << 437;
}

void TestSceneFiles::samplesSurvive()
{
    QFETCH(int, nodeCount);
    SceneReader reader;
    const NodePtr root = reader.readFile(samplePath(QString::fromLatin1(QTest::currentDataTag())));
    QVERIFY2(root, qPrintable(reader.errorText()));
    QCOMPARE(reader.nodeCount(), nodeCount);

    const QByteArray json = SceneWriter().toJson(*root.get());
    const NodePtr again = reader.readText(json, u"again.json"_s);
    QVERIFY2(again, qPrintable(reader.errorText()));
    QCOMPARE(describe(again), describe(root));
    QCOMPARE(SceneWriter().toJson(*again.get()), json);
}

void TestSceneFiles::sampleHoldsEveryFieldType()
{
    SceneReader reader;
    const NodePtr root = reader.readFile(samplePath(u"all_fields.json"_s));
    QVERIFY2(root, qPrintable(reader.errorText()));
    QSet<QString> types;
    collectFieldTypes(root.get(), types);
#define CHECK_TYPE(type) QVERIFY2(types.contains(QStringLiteral(#type)), #type);
    KN_TEST_SFIELDS(CHECK_TYPE)
    KN_TEST_MFIELDS(CHECK_TYPE)
#undef CHECK_TYPE
}

void TestSceneFiles::keepsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("quotes and backslashes") << u"a \"b\" \\c\\"_s;
    QTest::newRow("control characters") << u"a\nb\tc\r\u0001\u007f"_s;
    QTest::newRow("outside of the basic plane") << u"\U0001F680 \u00e9"_s;
    QTest::newRow("first half of a pair") << QString(QChar(0xd83d));
    QTest::newRow("second half of a pair") << QChar(0xde80) + u"x"_s;
    QTest::newRow("pair the wrong way round") << QChar(0xde80) + QString(QChar(0xd83d));
}

void TestSceneFiles::keepsTexts()
{
    QFETCH(QString, text);
    auto* const node = new KnText;
    const NodePtr root(node);
    node->setName(KbName(toKbString(text)));
    node->string.set1Value(0, toKbString(text));

    SceneReader reader;
    const NodePtr again = reader.readText(SceneWriter().toJson(*node), u"text.json"_s);
    QVERIFY2(again, qPrintable(reader.errorText()));
    QCOMPARE(toQString(again->getName().getString()), text);
    QCOMPARE(toQString(static_cast<KnText*>(again.get())->string[0]), text);
}

void TestSceneFiles::keepsIgnoredFields()
{
    auto* const node = new KnText;
    const NodePtr root(node);
    node->size.setIgnored(1); // with its default value
    node->spacing.setValue(2.5F);
    node->spacing.setIgnored(1);

    SceneReader reader;
    const NodePtr again = reader.readText(SceneWriter().toJson(*node), u"text.json"_s);
    QVERIFY2(again, qPrintable(reader.errorText()));
    QCOMPARE(describe(again), describe(root));
}

void TestSceneFiles::failedSaveLeavesTheFileAlone()
{
    const QTemporaryDir folder;
    const NodePtr root(new KnGroup);
    SceneWriter writer;
    for (const QString& name : { folder.filePath(u"missing/scene.json"_s), folder.path() }) {
        QVERIFY(!writer.writeFile(*root.get(), name));
        QVERIFY2(writer.errorText().startsWith(name + u": "_s), qPrintable(writer.errorText()));
    }
    QVERIFY(QDir(folder.path()).isEmpty());
}

QTEST_GUILESS_MAIN(TestSceneFiles)
#include "test_scene_files.moc"
