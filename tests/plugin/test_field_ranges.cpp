// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRangeTable.h"
#include "KnComplexity.h"
#include "KnDirectionalLight.h"
#include "KnMaterial.h"
#include "KnSFields.h"
#include "KnTestNode.h"
#include "QUIntValidator.h"
#include "QULongValidator.h"

#include <QTest>

class TestFieldRanges : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void rows_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<bool>("exists");
        QTest::addColumn<double>("floatMax");
        QTest::addColumn<double>("doubleMax");
        QTest::addColumn<int>("intMax");
        QTest::addColumn<bool>("bounded");
        const auto row = [](const char* node, const char* field, bool exists, double floatMax,
                             double doubleMax, int intMax, bool bounded) {
            QTest::addRow("%s %s", node, field) << QByteArray(node) << QByteArray(field) << exists
                                                << floatMax << doubleMax << intMax << bounded;
        };
        row("DefaultNode", "floatField", true, 10, 0, 0, false);
        row("DefaultNode", "doubleField", true, 0, 10, 0, false);
        row("DefaultNode", "intField", true, 0, 0, 100, false);
        row("Complexity", "value", true, 1, 0, 0, true);
        row("Complexity", "textureQuality", true, 1, 0, 0, true);
        row("DirectionalLight", "intensity", true, 1, 0, 0, true);
        row("Material", "transparency", true, 1, 0, 0, true);
        row("DefaultNodefloat", "Field", true, 10, 0, 0, false); // the key is one text
        row("Complexity", "floatField", false, 0, 0, 0, false);
    }
    void rows()
    {
        QFETCH(QByteArray, node);
        QFETCH(QByteArray, field);
        const FieldRangeTable table;
        const FieldRange range = table.get(node.constData(), field.constData());
        QTEST(table.exists(node.constData(), field.constData()), "exists");
        QTEST(double(range.getFloatMax()), "floatMax");
        QTEST(double(range.getDoubleMax()), "doubleMax");
        QTEST(range.getIntMax(), "intMax");
        QTEST(range.isBounded(), "bounded");
        QCOMPARE(range.getFloatMin() + range.getDoubleMin() + float(range.getIntMin()), 0.0F);
    }

    void ratioNodesBoundAllTheirReals_data()
    {
        QTest::addColumn<KnType>("nodeType");
        QTest::addColumn<bool>("bounded");
        QTest::newRow("complexity") << KnComplexity::getClassTypeId() << true;
        QTest::newRow("light") << KnDirectionalLight::getClassTypeId() << true;
        QTest::newRow("material") << KnMaterial::getClassTypeId() << true;
        QTest::newRow("another") << KnTestNode::getClassTypeId() << false;
    }
    void ratioNodesBoundAllTheirReals()
    {
        QFETCH(KnType, nodeType);
        QFETCH(bool, bounded);
        const FieldRangeTable table;
        auto* const node = static_cast<KnFieldContainer*>(nodeType.createInstance());
        node->ref();
        const KnField* const field = node->getContainerFieldData()->getField(node, 0);
        QVERIFY(table.getForRealField(*field, "doubleField")
            == (bounded ? table.get("Complexity", "value")
                        : table.get("DefaultNode", "doubleField")));
        node->unref();
        const KnSFFloat alone;
        QVERIFY(!table.getForRealField(alone, "floatField").isBounded());
    }

    void aDoubleRangeIsHeldInSingleWidth()
    {
        FieldRange range;
        range.setDoubleRange(0.1, 1e300);
        QCOMPARE(range.getDoubleMin(), 0.1F);
        QVERIFY(range.getDoubleMax() > 1e38F);
        QVERIFY(!(range == FieldRange()));
    }

    void unsignedNumbers_data()
    {
        QTest::addColumn<unsigned int>("bottom");
        QTest::addColumn<unsigned int>("top");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        const auto row
            = [](unsigned int bottom, unsigned int top, const char* text, QValidator::State state) {
                  QTest::addRow("%u to %u: '%s'", bottom, top, text)
                      << bottom << top << QString::fromLatin1(text) << int(state);
              };
        row(10, 20, "", QValidator::Acceptable);
        row(10, 20, "10", QValidator::Acceptable);
        row(10, 20, "20", QValidator::Acceptable);
        row(10, 20, "5", QValidator::Intermediate);
        row(10, 20, "25", QValidator::Intermediate);
        row(10, 20, "x", QValidator::Invalid);
        row(10, 20, "-1", QValidator::Invalid);
        row(0, 4294967295, "4294967295", QValidator::Acceptable);
        row(0, 4294967295, "4294967296", QValidator::Invalid);
        row(20, 10, "15", QValidator::Intermediate);
    }
    void unsignedNumbers()
    {
        QFETCH(unsigned int, bottom);
        QFETCH(unsigned int, top);
        QFETCH(QString, text);
        int position = 0;
        const QUIntValidator fixed(bottom, top, nullptr);
        QTEST(int(fixed.validate(text, position)), "state");
        QULongValidator moved(0, 0, nullptr);
        moved.setRange(bottom, top);
        QTEST(int(moved.validate(text, position)), "state");
    }
};

QTEST_APPLESS_MAIN(TestFieldRanges)
#include "test_field_ranges.moc"
