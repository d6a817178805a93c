// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"
#include "FittedFont.h"

#include <QSpinBox>

using namespace Qt::StringLiterals;

/// No editor of a single value forces a dock wider than docks are.
class TestEditorWidths : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void anEditorFitsANarrowDock_data() { addEditorRows(false); }
    void anEditorFitsANarrowDock()
    {
        QFETCH(EditorCase, row);
        write(field(row.type), row.start);
        select(field(row.type));
        QFrame* const frame = editor()->getFrame();
        QVERIFY(frame->minimumSizeHint().width() <= 360);
        frame->parentWidget()->setFixedWidth(360);
        settle();
        for (const QWidget* part : frame->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!part->isWindow())
                QVERIFY(frame->rect().contains(part->geometry()));
        }
        for (const QLineEdit* line : frame->findChildren<QLineEdit*>()) {
            if (!line->isVisible() || qobject_cast<QSpinBox*>(line->parentWidget()))
                continue;
            // Five digits are whole, within frame, margins and cursor; given room, any number.
            const QFontMetrics metrics = line->fontMetrics();
            QVERIFY(metrics.horizontalAdvance(u"12345"_s) + 7 <= line->width());
            QVERIFY(metrics.horizontalAdvance(u"-0.123457"_s) + 7 <= line->sizeHint().width());
        }
    }

    /// A line that was narrow gets its font back.
    void aFontFollowsTheWidth()
    {
        select(field("SFColorRGBA"));
        auto* const line = child<QLineEdit>("SFColorRGBALine");
        QWidget* const dock = editor()->getFrame()->parentWidget();
        const QFont font = line->font();
        dock->setFixedWidth(360);
        QTRY_VERIFY(line->fontInfo().pixelSize() < QFontInfo(font).pixelSize());
        dock->setFixedWidth(700);
        QTRY_COMPARE(line->font(), font);
    }

    /// A large font of the user doesn't clip a number in the fixed heights, and a small one stays.
    void aFontGetsOnlyAsSmallAsItMust()
    {
        QFont font;
        const QString sample = u"-0.123457"_s;
        for (const QSize& room : { QSize(1000, 12), QSize(48, 14), QSize(1000, 10) }) {
            font.setPixelSize(40);
            const QFont fitted = fittedFont(font, sample, room);
            QVERIFY(QFontMetrics(fitted).tightBoundingRect(sample).height() <= room.height());
            QVERIFY(QFontMetrics(fitted).horizontalAdvance(sample) <= room.width());
            QCOMPARE(fittedFont(fitted, sample, room).pixelSize(), fitted.pixelSize());
        }
    }
};

QTEST_MAIN(TestEditorWidths)
#include "test_editor_widths.moc"
