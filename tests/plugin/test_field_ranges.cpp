// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRangeTable.h"
#include "KnComplexity.h"
#include "KnDirectionalLight.h"
#include "KnMaterial.h"
#include "KnTestNode.h"
#include "QUIntValidator.h"
#include "QULongValidator.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString maxima(const FieldRange& range)
{
    return u"float %1, double %2, integer %3%4"_s.arg(range.getFloatMax())
        .arg(range.getDoubleMax())
        .arg(range.getIntMax())
        .arg(range.isBounded() ? u", bounded"_s : QString());
}

} // namespace

class TestFieldRanges : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyKindOfRow()
    {
        const FieldRangeTable table;
        const auto found = [&table](const char* node, const char* field) {
            return table.exists(node, field) ? maxima(table.get(node, field)) : u"none"_s;
        };
        QCOMPARE(found("DefaultNode", "floatField"), u"float 10, double 0, integer 0"_s);
        QCOMPARE(found("DefaultNode", "doubleField"), u"float 0, double 10, integer 0"_s);
        QCOMPARE(found("DefaultNode", "intField"), u"float 0, double 0, integer 100"_s);
        QCOMPARE(found("Material", "transparency"), u"float 1, double 0, integer 0, bounded"_s);
        QCOMPARE(found("Complexity", "floatField"), u"none"_s);
    }

    void ratioNodesBoundAllTheirReals()
    {
        const FieldRangeTable table;
        for (const KnType& type : { KnComplexity::getClassTypeId(), KnMaterial::getClassTypeId(),
                 KnDirectionalLight::getClassTypeId(), KnTestNode::getClassTypeId() }) {
            auto* const node = static_cast<KnFieldContainer*>(type.createInstance());
            node->ref();
            const KnField* const field = node->getContainerFieldData()->getField(node, 0);
            QCOMPARE(table.getForRealField(*field, "doubleField").isBounded(),
                type != KnTestNode::getClassTypeId());
            node->unref();
        }
        QVERIFY(!table.getForRealField(KnSFFloat(), "doubleField").isBounded());
    }

    void unsignedNumbers()
    {
        const struct {
            unsigned int bottom, top;
            QString text;
            QValidator::State state;
        } rows[] = {
            { 10, 20, QString(), QValidator::Acceptable },
            { 10, 20, u"10"_s, QValidator::Acceptable },
            { 10, 20, u"20"_s, QValidator::Acceptable },
            { 10, 20, u"5"_s, QValidator::Intermediate },
            { 10, 20, u"25"_s, QValidator::Intermediate },
            { 10, 20, u"x"_s, QValidator::Invalid },
            { 10, 20, u"-1"_s, QValidator::Invalid },
            { 0, 4294967295, u"4294967295"_s, QValidator::Acceptable },
            { 0, 4294967295, u"4294967296"_s, QValidator::Invalid },
            { 20, 10, u"15"_s, QValidator::Intermediate },
        };
        for (auto [bottom, top, text, state] : rows) {
            int position = 0;
            QCOMPARE(QUIntValidator(bottom, top, nullptr).validate(text, position), state);
            QULongValidator moved(0, 0, nullptr);
            moved.setRange(bottom, top);
            QCOMPARE(moved.validate(text, position), state);
        }
    }
};

QTEST_APPLESS_MAIN(TestFieldRanges)
#include "test_field_ranges.moc"
