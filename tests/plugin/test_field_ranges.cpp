// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRangeTable.h"
#include "KnComplexity.h"
#include "KnMaterial.h"
#include "KnNodePtr.h"
#include "KnPointLight.h"
#include "TextRows.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString toText(const FieldRange& range)
{
    return u"f %1 %2 d %3 %4 i %5 %6 %7"_s.arg(range.getFloatMin())
        .arg(range.getFloatMax())
        .arg(range.getDoubleMin())
        .arg(range.getDoubleMax())
        .arg(range.getIntMin())
        .arg(range.getIntMax())
        .arg(QLatin1String(range.isBounded() ? "bounded" : "free"));
}

QString ofReal(KnFieldContainer* node, const char* field)
{
    const KnNodePtr held(node);
    return toText(FieldRangeTable().getForRealField(*node->getField(field), "doubleField"));
}

constexpr char none[] = "f 0 0 d 0 0 i 0 0 free";
constexpr char ratio[] = "f 0 1 d 0 0 i 0 0 bounded";

} // namespace

/// What is known of the numbers of a field before one is typed.
class TestFieldRanges : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ranges_data()
    {
        addTextRows({ { "DefaultNode", "floatField", "f 0 10 d 0 0 i 0 0 free" },
            { "DefaultNode", "doubleField", "f 0 0 d 0 10 i 0 0 free" },
            { "DefaultNode", "intField", "f 0 0 d 0 0 i 0 100 free" },
            { "Complexity", "value", ratio }, { "Complexity", "textureQuality", ratio },
            { "DirectionalLight", "intensity", ratio }, { "Material", "transparency", ratio },
            { "Material", "shininess", none }, { "PointLight", "intensity", none },
            { "Complexity", "Value", none } });
    }
    void ranges()
    {
        const auto [node, field, range] = textRow<3>();
        QCOMPARE(toText(FieldRangeTable().get(qPrintable(node), qPrintable(field))), range);
    }

    void theNodeChoosesTheRow()
    {
        const auto bounded = QLatin1String(ratio);
        QCOMPARE(ofReal(new KnComplexity, "textureQuality"), bounded);
        QCOMPARE(ofReal(new KnMaterial, "shininess"), bounded);
        const QString otherwise = u"f 0 0 d 0 10 i 0 0 free"_s;
        QCOMPARE(ofReal(new KnPointLight, "intensity"), otherwise);
        QCOMPARE(toText(FieldRangeTable().getForRealField(KnSFFloat(), "doubleField")), otherwise);
    }
};

QTEST_APPLESS_MAIN(TestFieldRanges)
#include "test_field_ranges.moc"
