// SPDX-License-Identifier: BSD-3-Clause
#include "LayoutMetrics.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestLayoutMetrics : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyRow()
    {
        const QString expected
            = u"frameLineWidth 0,labelLineWidth 0,labelPointSize 10,labelHeight 20,buttonWidth 20,"
              "buttonHeight 20,PopupFrameWidth 260,PopupFrameHeight 100,PopupLayoutMargin 6,"
              "PopupLayoutSpacing 8,SFieldLayoutMargin 4,SFieldLayoutSpacing 6,"
              "SFieldEditLayoutMargin 0,SFieldEditLayoutSpacing 0,SFButtonLayoutMargin 2,"
              "SFButtonLayoutSpacing 0,SFEditionAreaLayMargin 0,SFEditionAreaLaySpacing 2,"
              "SFComponentHeight 18,SFBoolWidth 16,SFColorSpacing 6,SFColorMargin 0,"
              "SFColorInterSpacing 2,SFColorDispWidth 20,SFVecLineHeight 16,SFVecLabelHeight 14,"
              "SF4fBoxVSpacing 4,SF4fBoxHSpacing 4,SF4fBoxHMargin 2,SF3fBoxVSpacing 4,"
              "SF3fBoxHSpacing 20,SF3fBoxHMargin 2,SF2BoxHSpacing 25,SF2BoxHMargin 2,"
              "SF2BoxVSpacing 4,MFGlobalLayoutSpacing 2,MFGlobalLayoutMarging 6,"
              "MFGlobalButtonsLayoutMargin 0,MFGlobalButtonsLayoutSpacing 5,"
              "MFButtonLayoutMargin 0,MFButtonLayoutSpacing 0,MFAccessWidth 60,"
              "MFManageAccessSpacerWidth 0,MFManageAccessSpacerHeight 0,"
              "MFAccessMoveSpacerHeight 0,MFAccessMoveSpacerWidth 0,MFTableMinHeightWin 43,"
              "MFTableMinHeightUnix 46"_s;
        QStringList rows;
        for (const LayoutMetric* row = LayoutMetrics; row->name; ++row) {
            const QString name = QLatin1String(row->name);
            QCOMPARE(layoutMetric(name), row->value);
            rows << u"%1 %2"_s.arg(name).arg(layoutMetric(name)); // from the map
        }
        QCOMPARE(rows, expected.split(u','));
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
