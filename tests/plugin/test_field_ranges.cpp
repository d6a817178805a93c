// SPDX-License-Identifier: BSD-3-Clause
#include "FieldRangeTable.h"
#include "KnComplexity.h"
#include "KnDirectionalLight.h"
#include "KnMaterial.h"
#include "KnPointLight.h"
#include "QUIntValidator.h"
#include "QULongValidator.h"

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

template <class Node>
QString ofReal(KnField& (*field)(Node&))
{
    auto* const node = new Node;
    node->ref();
    const QString text = toText(FieldRangeTable().getForRealField(field(*node), "doubleField"));
    node->unref();
    return text;
}

const QString none = u"f 0 0 d 0 0 i 0 0 free"_s;
const QString ratio = u"f 0 1 d 0 0 i 0 0 bounded"_s;

} // namespace

/// What is known of the numbers of a field before one is typed: ranges and unsigned limits.
class TestFieldRanges : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void ranges_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("range");
        const auto row = [](const char* node, const char* field, const QString& range) {
            QTest::addRow("%s.%s", node, field)
                << QString(QLatin1String(node)) << QString(QLatin1String(field)) << range;
        };
        row("DefaultNode", "floatField", u"f 0 10 d 0 0 i 0 0 free"_s);
        row("DefaultNode", "doubleField", u"f 0 0 d 0 10 i 0 0 free"_s);
        row("DefaultNode", "intField", u"f 0 0 d 0 0 i 0 100 free"_s);
        row("Complexity", "value", ratio);
        row("Complexity", "textureQuality", ratio);
        row("DirectionalLight", "intensity", ratio);
        row("Material", "transparency", ratio);
        row("DefaultNodeint", "Field", u"f 0 0 d 0 0 i 0 100 free"_s); // joined, the same key
        row("DefaultNode", "value", QString());
        row("DefaultNode", "", QString());
        row("", "floatField", QString());
        row("Complexity", "Value", QString());
        row("Complexity", "floatField", QString());
        row("Material", "shininess", QString());
        row("PointLight", "intensity", QString());
    }
    void ranges()
    {
        QFETCH(QString, node);
        QFETCH(QString, field);
        QFETCH(QString, range);
        const FieldRangeTable table;
        const QByteArray nodeType = node.toLatin1();
        const QByteArray name = field.toLatin1();
        QCOMPARE(table.exists(nodeType.constData(), name.constData()), !range.isEmpty());
        QCOMPARE(toText(table.get(nodeType.constData(), name.constData())),
            range.isEmpty() ? none : range);
    }

    void theNodeChoosesTheRow()
    {
        QCOMPARE(ofReal<KnComplexity>([](auto& n) -> KnField& { return n.textureQuality; }), ratio);
        QCOMPARE(ofReal<KnMaterial>([](auto& n) -> KnField& { return n.shininess; }), ratio);
        QCOMPARE(
            ofReal<KnDirectionalLight>([](auto& n) -> KnField& { return n.intensity; }), ratio);
        const QString otherwise = u"f 0 0 d 0 10 i 0 0 free"_s;
        QCOMPARE(ofReal<KnPointLight>([](auto& n) -> KnField& { return n.intensity; }), otherwise);
        QCOMPARE(toText(FieldRangeTable().getForRealField(KnSFFloat(), "doubleField")), otherwise);
    }

    void equalInAllSevenNumbers()
    {
        void (*const sets[])(FieldRange&, int, int)
            = { [](FieldRange& range, int a, int b) { range.setFloatRange(float(a), float(b)); },
                  [](FieldRange& range, int a, int b) { range.setDoubleRange(a, b); },
                  [](FieldRange& range, int a, int b) { range.setIntRange(a, b); } };
        FieldRange range;
        for (const auto set : sets) {
            for (const auto& [min, max] : { std::pair(0, 2), std::pair(0, 3), std::pair(1, 3) }) {
                const FieldRange before = range;
                QVERIFY(range == before);
                set(range, min, max);
                QVERIFY(!(range == before));
            }
        }
        QCOMPARE(toText(range), u"f 1 3 d 1 3 i 1 3 free"_s);
        const FieldRange before = range;
        range.setBounded(true);
        QVERIFY(!(range == before));
        range.setDoubleRange(0.1, 1e39); // held in 32 bits
        QCOMPARE(double(range.getDoubleMin()), 0.10000000149011612);
        QVERIFY(qIsInf(range.getDoubleMax()));
    }

    void theBaseOfAText_data()
    {
        QTest::addColumn<int>("base");
        for (const char* text : { "0x1f", "0x1" })
            QTest::newRow(text) << 16;
        for (const char* text : { "0x", "07" })
            QTest::newRow(text) << 8;
        for (const char* text : { "", "0", "17", "017", "-0x1", "0X1f" })
            QTest::newRow(text) << 10;
    }
    void theBaseOfAText()
    {
        QFETCH(int, base);
        QCOMPARE(FieldRangeTable::detectBase(QLatin1String(QTest::currentDataTag())), base);
    }

    void unsignedTexts_data()
    {
        QTest::addColumn<unsigned int>("bottom");
        QTest::addColumn<unsigned int>("top");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        const auto row
            = [](unsigned int bottom, unsigned int top, const char* text, QValidator::State state) {
                  QTest::addRow("%u..%u: %s", bottom, top, text)
                      << bottom << top << QString(QLatin1String(text)) << int(state);
              };
        row(10, 20, "", QValidator::Acceptable);
        row(10, 20, "10", QValidator::Acceptable);
        row(10, 20, "15", QValidator::Acceptable);
        row(10, 20, "20", QValidator::Acceptable);
        row(10, 20, "9", QValidator::Intermediate);
        row(10, 20, "21", QValidator::Intermediate);
        row(10, 20, "x", QValidator::Invalid);
        row(10, 20, "-1", QValidator::Invalid);
        row(10, 20, "0xf", QValidator::Invalid);
        row(0, 4294967295, "4294967295", QValidator::Acceptable);
        row(0, 4294967295, "4294967296", QValidator::Invalid);
        row(20, 10, "15", QValidator::Intermediate);
    }
    void unsignedTexts()
    {
        QFETCH(unsigned int, bottom);
        QFETCH(unsigned int, top);
        QFETCH(QString, text);
        QFETCH(int, state);
        QUIntValidator made(bottom, top, this);
        QULongValidator moved(1, 2, nullptr);
        moved.setRange(bottom, top);
        QVERIFY(made.bottom() == bottom && made.top() == top && made.parent() == this);
        QVERIFY(moved.bottom() == bottom && moved.top() == top);
        int position = 0;
        QString given = text;
        QCOMPARE(int(made.validate(given, position)), state);
        QCOMPARE(int(moved.validate(given, position)), state);
        QCOMPARE(given, text);
    }
};

QTEST_APPLESS_MAIN(TestFieldRanges)
#include "test_field_ranges.moc"
