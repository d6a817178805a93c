// SPDX-License-Identifier: BSD-3-Clause
#include "LayoutMetrics.h"

#include <QTest>

class TestLayoutMetrics : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lookUp_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("value");
        QTest::newRow("first") << QStringLiteral("frameLineWidth") << 0;
        QTest::newRow("points") << QStringLiteral("labelPointSize") << 10;
        QTest::newRow("last") << QStringLiteral("MFTableMinHeightUnix") << 46;
        QTest::newRow("as it is spelt") << QStringLiteral("MFGlobalLayoutMarging") << 6;
        QTest::newRow("spelt otherwise") << QStringLiteral("MFGlobalLayoutMargin") << 0;
        QTest::newRow("letter case") << QStringLiteral("buttonwidth") << 0;
        QTest::newRow("prefix") << QStringLiteral("button") << 0;
        QTest::newRow("no row") << QStringLiteral("SFColorRGBAInterSpacing") << 0;
        QTest::newRow("empty") << QString() << 0;
        QTest::newRow("outside Latin-1") << QStringLiteral("\u4e00") << 0;
    }
    void lookUp()
    {
        QFETCH(QString, name);
        QFETCH(int, value);
        QCOMPARE(layoutMetric(name), value);
        // From the map, where the first call left it.
        QCOMPARE(layoutMetric(name), value);
    }
    void theTableHasEveryRow()
    {
        int rows = 0;
        while (LayoutMetrics[rows].name)
            ++rows;
        QCOMPARE(rows, 48);
    }
};

QTEST_APPLESS_MAIN(TestLayoutMetrics)
#include "test_layout_metrics.moc"
