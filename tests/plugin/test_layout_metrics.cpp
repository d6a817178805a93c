// SPDX-License-Identifier: BSD-3-Clause
#include "LayoutMetrics.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestLayoutMetrics : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // All others are seen in the layouts that are made with them.
    void rowsThatNoLayoutShows()
    {
        QCOMPARE(layoutMetric(u"labelHeight"_s), 20);
        QCOMPARE(layoutMetric(u"MFTableMinHeightUnix"_s), 46);
    }

    void aNameWithoutARowGives0()
    {
        for (const QString& name : { u"MFGlobalLayoutMargin"_s, u"buttonwidth"_s, u"button"_s,
                 u"buttonWidths"_s, u"SFColorRGBAInterSpacing"_s, QString() })
            QCOMPARE(name + QString::number(layoutMetric(name)), name + u'0');
    }
};

QTEST_MAIN(TestLayoutMetrics)
#include "test_layout_metrics.moc"
