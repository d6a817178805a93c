// SPDX-License-Identifier: BSD-3-Clause
#include "FieldListModel.h"
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

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

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

} // namespace

class TestSceneModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void modelsAreSound()
    {
        SceneModel model;
        SceneFilterModel filter;
        filter.setSourceModel(&model);
        const QAbstractItemModelTester modelTester(&model, FailureMode::QtTest);
        const QAbstractItemModelTester filterTester(&filter, FailureMode::QtTest);
        model.setRoots({ m_sample });
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
        model.setRoots({ KnNodePtr(root) });
        QCOMPARE(shown(QString()), u"Material, Material"_s);
    }

    void fieldListFollowsTheFields()
    {
        auto* const material = new KnMaterial;
        const KnNodePtr node(material);
        FieldListModel model;
        const QAbstractItemModelTester tester(&model, FailureMode::QtTest);
        model.setNode(material);
        const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        const int row = model.rowOf(&material->transparency);
        material->transparency.setValue(0.25F);
        material->transparency.setIgnored(1);
        KnSensorQueue::getInstance().process();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes[0][0].toModelIndex().row(), row);
        QStringList cells;
        for (int column = 0; column < FieldListModel::ColumnCount; ++column)
            cells += model.index(row, column).data().toString();
        QCOMPARE(cells.join(u' '), u"transparency SFFloat 0.25 yes"_s);

        // A node that isn't shown any more isn't watched.
        auto* const view = new KnViewpoint;
        const KnNodePtr next(view);
        view->description.setValue("<b>");
        model.setNode(view);
        material->transparency.setValue(0.5F);
        KnSensorQueue::getInstance().process();
        QCOMPARE(changes.size(), 1);
        // A tag in a value is text.
        QCOMPARE(model.index(0, FieldListModel::ValueColumn).data(Qt::ToolTipRole).toString(),
            u"&quot;&lt;b&gt;&quot;"_s);
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
    }

private:
    const KnNodePtr m_sample
        = SceneReader().readFile(QStringLiteral(CORVANE_SCENES "/all_fields.json"));
};

QTEST_GUILESS_MAIN(TestSceneModels)
#include "test_scene_models.moc"
