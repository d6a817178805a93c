// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "FieldListModel.h"
#include "KnCoordinates.h"
#include "KnGroup.h"
#include "KnMaterial.h"
#include "KnSensorQueue.h"
#include "SceneFilterModel.h"
#include "SceneModel.h"
#include "ScenePanel.h"
#include "SceneReader.h"
#include "SceneText.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;
using FailureMode = QAbstractItemModelTester::FailureReportingMode;

namespace {

NodePtr readSample(const QString& name)
{
    SceneReader reader;
    const NodePtr root = reader.readFile(QStringLiteral(CORVANE_SCENES) + QLatin1Char('/') + name);
    if (!root)
        qFatal("%s", qPrintable(reader.errorText()));
    return root;
}

// The leaves that a model shows, from top to bottom.
QStringList leaves(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList names;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.hasChildren(index))
            names += leaves(model, index);
        else
            names += index.data().toString();
    }
    return names;
}

KnFieldContainer* named(const NodePtr& root, const char* name)
{
    SceneModel model;
    model.setRoot(root);
    const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole,
        QLatin1String(name), 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : model.node(found.constFirst());
}

} // namespace

class TestSceneModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // What the offscreen platform has to say of itself.
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
    }
    void sceneModelIsSound();
    void sharedNodeStandsInEachPlace();
    void filters_data();
    void filters();
    void filteringKeepsTheSelection();
    void fieldListIsSound();
    void fieldListFollowsTheFields();
    void summariesStayShort_data();
    void summariesStayShort();
};

void TestSceneModels::sceneModelIsSound()
{
    SceneModel model;
    SceneFilterModel filter;
    filter.setSourceModel(&model);
    const QAbstractItemModelTester modelTester(&model, FailureMode::QtTest);
    const QAbstractItemModelTester filterTester(&filter, FailureMode::QtTest);
    model.setRoot(readSample(u"station.json"_s));
    filter.setFilterText(u"window"_s);
    filter.setFilterText(QString());
    QCOMPARE(leaves(filter), leaves(model));
    model.setRoot(NodePtr());
    QCOMPARE(model.rowCount(), 0);
}

void TestSceneModels::sharedNodeStandsInEachPlace()
{
    auto* const root = new KnGroup;
    const NodePtr keepRoot(root);
    auto* const left = new KnGroup;
    auto* const right = new KnGroup;
    root->addChild(left);
    root->addChild(right);
    auto* const shared = new KnMaterial;
    left->addChild(shared);
    right->addChild(shared);

    SceneModel model;
    model.setRoot(keepRoot);
    const QModelIndex top = model.index(0, 0);
    for (int row : { 0, 1 }) {
        const QModelIndex place = model.index(0, 0, model.index(row, 0, top));
        QCOMPARE(model.node(place), shared);
        QCOMPARE(place.parent().row(), row);
    }
    QCOMPARE(model.indexOf(shared).parent().row(), 0);
}

void TestSceneModels::filters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("by name") << u"oak"_s << QStringList { u"Oak"_s };
    QTest::newRow("by type") << u"light"_s << QStringList { u"Window light"_s, u"Desk lamp"_s };
    QTest::newRow("blanks around") << u"  Oak "_s << QStringList { u"Oak"_s };
    QTest::newRow("deep") << u"frame style"_s << QStringList { u"Frame style"_s };
    QTest::newRow("nothing") << u"no such node"_s << QStringList {};
    QTest::newRow("no pattern") << u".*"_s << QStringList {};
}

void TestSceneModels::filters()
{
    QFETCH(QString, text);
    QFETCH(QStringList, shown);
    SceneModel model;
    SceneFilterModel filter;
    filter.setSourceModel(&model);
    model.setRoot(readSample(u"all_fields.json"_s));
    filter.setFilterText(text);
    QCOMPARE(leaves(filter), shown);
}

void TestSceneModels::filteringKeepsTheSelection()
{
    const NodePtr root = readSample(u"all_fields.json"_s);
    CrvServices* const services = CrvServices::getInstance();
    KnFieldContainer* const oak = named(root, "Oak");
    ScenePanel panel;
    panel.setRoot(root);
    panel.show();
    auto* const tree = panel.findChild<QTreeView*>(u"sceneTree"_s);
    auto* const line = panel.findChild<QLineEdit*>(u"sceneFilter"_s);

    services->selectNode(oak);
    QCOMPARE(tree->currentIndex().data().toString(), u"Oak"_s);
    int selections = 0;
    connect(services, &CrvServices::selectedNodeChanged, &panel, [&selections] { ++selections; });
    QTest::keyClicks(line, u"light"_s);
    QVERIFY(!tree->currentIndex().isValid());
    line->clear();
    QCOMPARE(tree->currentIndex().data().toString(), u"Oak"_s);
    QCOMPARE(services->getSelectedNode(), oak);
    QCOMPARE(selections, 0);

    // What is left is opened, so that it can be chosen at once.
    QTest::keyClicks(line, u"frame st"_s);
    const QModelIndex found = tree->model()
                                  ->match(tree->model()->index(0, 0), Qt::DisplayRole,
                                      u"Frame style"_s, 1, Qt::MatchRecursive)
                                  .value(0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(found).center());
    QCOMPARE(services->getSelectedNode(), named(root, "Frame style"));
    services->selectNode(nullptr);
}

void TestSceneModels::fieldListIsSound()
{
    const NodePtr root = readSample(u"all_fields.json"_s);
    FieldListModel model;
    const QAbstractItemModelTester tester(&model, FailureMode::QtTest);
    model.setNode(named(root, "Oak"));
    QCOMPARE(model.rowCount(), 6);
    model.setNode(named(root, "Corners"));
    QCOMPARE(model.rowCount(), 1);
    model.setNode(nullptr);
    QCOMPARE(model.rowCount(), 0);
}

void TestSceneModels::fieldListFollowsTheFields()
{
    auto* const material = new KnMaterial;
    const NodePtr node(material);
    FieldListModel model;
    model.setNode(material);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    const int row = model.rowOf(&material->transparency);
    QCOMPARE(model.field(model.index(row, 0)), &material->transparency);

    material->transparency.setValue(0.25F);
    material->transparency.setIgnored(1);
    KnSensorQueue::getInstance().process();
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes[0][0].toModelIndex().row(), row);
    QCOMPARE(model.index(row, FieldListModel::ValueColumn).data().toString(), u"0.25"_s);
    QCOMPARE(model.index(row, FieldListModel::IgnoredColumn).data().toString(), u"yes"_s);

    // A node that isn't shown any more isn't watched.
    model.setNode(nullptr);
    material->transparency.setValue(0.5F);
    KnSensorQueue::getInstance().process();
    QCOMPARE(changes.size(), 1);
}

void TestSceneModels::summariesStayShort_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("summary");
    const QString longText(500, QLatin1Char('x'));
    QTest::newRow("scalar") << u"SFFloat"_s << u"0.5"_s << u"0.5"_s;
    QTest::newRow("empty array") << u"MFVec3f"_s << u"[]"_s << u"no values"_s;
    QTest::newRow("one value") << u"MFVec3f"_s << u"1 2 3"_s << u"1 value:  1 2 3"_s;
    QTest::newRow("two values") << u"MFInt32"_s << u"[1, 2]"_s << u"2 values:  1, 2"_s;
    QTest::newRow("long array") << u"MFInt32"_s
                                << u"[ "_s + QStringList(9999, u"12345678"_s).join(u", "_s)
            + u" ]"_s << u"9999 values:  12345678, 12345678, 12345678, \u2026"_s;
    QTest::newRow("long text") << u"SFString"_s << longText
                               << u"\""_s + longText.left(29) + u"\u2026"_s;
    QTest::newRow("long text of an array")
        << u"MFString"_s << longText << u"1 value:  \""_s + longText.left(29) + u"\u2026"_s;
    QTest::newRow("image") << u"SFImage"_s << u"2 1 3 0x010203 0x040506"_s
                           << u"2 \u00d7 1 pixels of 3 bytes"_s;
    QTest::newRow("no image") << u"SFImage"_s << u"0 0 0"_s << u"no pixels"_s;
}

void TestSceneModels::summariesStayShort()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    QFETCH(QString, summary);
    const std::unique_ptr<KnTypedObject> object(
        KnType::fromName(KbName(toKbString(type))).createInstance());
    auto& field = dynamic_cast<KnField&>(*object);
    QVERIFY(field.set(toKbString(text)));
    QCOMPARE(fieldSummary(field, 30), summary);
}

QTEST_MAIN(TestSceneModels)
#include "test_scene_models.moc"
