// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRangeTable.h"
#include "KnComplexity.h"
#include "KnDirectionalLight.h"
#include "KnMaterial.h"
#include "KnTestNode.h"
#include "QUIntValidator.h"
#include "QULongValidator.h"

#include <QTest>

class TestFieldRanges : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void rows()
    {
        const struct {
            const char* node;
            const char* field;
            bool exists;
            float maxima[3]; // float, double, integer
            bool bounded;
        } rows[] = {
            { "DefaultNode", "floatField", true, { 10, 0, 0 }, false },
            { "DefaultNode", "doubleField", true, { 0, 10, 0 }, false },
            { "DefaultNode", "intField", true, { 0, 0, 100 }, false },
            { "Complexity", "value", true, { 1, 0, 0 }, true },
            { "Complexity", "textureQuality", true, { 1, 0, 0 }, true },
            { "DirectionalLight", "intensity", true, { 1, 0, 0 }, true },
            { "Material", "transparency", true, { 1, 0, 0 }, true },
            { "DefaultNodefloat", "Field", true, { 10, 0, 0 }, false }, // the key is one text
            { "Complexity", "floatField", false, { 0, 0, 0 }, false },
        };
        const FieldRangeTable table;
        for (const auto& row : rows) {
            FieldRange expected;
            expected.setFloatRange(0, row.maxima[0]);
            expected.setDoubleRange(0, double(row.maxima[1]));
            expected.setIntRange(0, int(row.maxima[2]));
            expected.setBounded(row.bounded);
            QVERIFY2(table.get(row.node, row.field) == expected, row.field);
            QCOMPARE(table.exists(row.node, row.field), row.exists);
        }
    }

    void ratioNodesBoundAllTheirReals()
    {
        const FieldRangeTable table;
        const FieldRange ratio = table.get("Complexity", "value");
        const FieldRange free = table.get("DefaultNode", "doubleField");
        const std::pair<KnType, FieldRange> rows[] = { { KnComplexity::getClassTypeId(), ratio },
            { KnDirectionalLight::getClassTypeId(), ratio },
            { KnMaterial::getClassTypeId(), ratio }, { KnTestNode::getClassTypeId(), free } };
        for (const auto& [type, range] : rows) {
            auto* const node = static_cast<KnFieldContainer*>(type.createInstance());
            node->ref();
            const KnField* const field = node->getContainerFieldData()->getField(node, 0);
            QVERIFY(table.getForRealField(*field, "doubleField") == range);
            node->unref();
        }
        QVERIFY(table.getForRealField(KnSFFloat(), "doubleField") == free);
    }

    void unsignedNumbers()
    {
        const struct {
            unsigned int bottom;
            unsigned int top;
            const char* text;
            QValidator::State state;
        } rows[] = {
            { 10, 20, "", QValidator::Acceptable },
            { 10, 20, "10", QValidator::Acceptable },
            { 10, 20, "20", QValidator::Acceptable },
            { 10, 20, "5", QValidator::Intermediate },
            { 10, 20, "25", QValidator::Intermediate },
            { 10, 20, "x", QValidator::Invalid },
            { 10, 20, "-1", QValidator::Invalid },
            { 0, 4294967295, "4294967295", QValidator::Acceptable },
            { 0, 4294967295, "4294967296", QValidator::Invalid },
            { 20, 10, "15", QValidator::Intermediate },
        };
        for (const auto& row : rows) {
            QString text = QString::fromLatin1(row.text);
            int position = 0;
            const QUIntValidator fixed(row.bottom, row.top, nullptr);
            QVERIFY2(fixed.validate(text, position) == row.state, row.text);
            QULongValidator moved(0, 0, nullptr);
            moved.setRange(row.bottom, row.top);
            QVERIFY2(moved.validate(text, position) == row.state, row.text);
        }
    }
};

QTEST_APPLESS_MAIN(TestFieldRanges)
#include "test_field_ranges.moc"
