// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"
#include "StandardError.h"
#include "TextRows.h"
#include "WindowInput.h"

#include <QAbstractEventDispatcher>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>

#include <string_view>

using namespace std::string_view_literals;

namespace {

const char Five[] = "[ 10, 11, 12, 13, 14 ]";

class PaintCount : public QObject {
public:
    explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

} // namespace

/// Rows that are shown, added, deleted, moved and jumped to, as a person does it.
class TestRowTable : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        EditorFixture::init();
        m_field = &node().MFInt32;
        show("MFInt32", Five);
    }

    void rowsAreAddedDeletedAndMoved_data()
    {
        addTextRows({
            { "[]", "duvx", "[] 0-0 0" },
            { "[]", "a", "[ 0 ] 1-1 1" },
            { "[]", "ad", "[] 0-0 2" },
            { "[ 10 ]", "0d", "[] 0-0 1" },
            { "[ 10 ]", "0da", "[ 0 ] 1-1 2" },
            // No cell is current yet.
            { Five, "a", "[ 0, 10, 11, 12, 13, 14 ] 1-6 1" },
            { Five, "2+", "[ 10, 11, 12, 0, 13, 14 ] 1-6 1" },
            { Five, "2+-", "[ 10, 11, 0, 13, 14 ] 1-5 2" },
            { Five, "1xz", "[ 10, 11, 12, 13, 14 ] 1-5 1" },
            // The next row to go is the one before, not the fourth, to which the box was cut.
            { Five, "E1--", "[ 12, 13, 14 ] 1-3 2" },
            // Up and down move the row of the access box; the current one has no say.
            { Five, "AuEv", "[ 10, 11, 12, 13, 14 ] 1-5 0" },
            { Five, "B4vv", "[ 10, 12, 13, 11, 14 ] 1-5 2" },
            { Five, "B4vu", "[ 10, 11, 12, 13, 14 ] 1-5 2" },
            // The table and the field disagree until the next refresh.
            { Five, "E!a", "[ 10, 11, 0 ] 1-3 1" },
            { Five, "E!d", "[ 10 ] 1-1 1" },
            { Five, "E!dz", "[ 10, 11 ] 1-2 1" },
            { Five, "E!uv", "[ 10, 11 ] 1-2 0" },
        });
    }

    void rowsAreAddedDeletedAndMoved()
    {
        // At once, and with a refresh behind each step.
        const auto [start, steps, end] = textRow<3>();
        const QByteArray letters = steps.toLatin1();
        QStringList ends;
        for (const bool isRefreshed : { false, true }) {
            cleanup();
            init();
            show(QStringLiteral("MFInt32"), start);
            for (const char step : letters) {
                take(step);
                if (isRefreshed && step != '!')
                    settle();
            }
            ends << state();
        }
        QCOMPARE(ends, QStringList({ end, end }));
    }

    void thePanelTellsWhatTheTableShows()
    {
        const auto* const count = child<QLabel>("m_labelNumElement");
        const auto* const ignore = child<QAbstractButton>("m_ignoreButton");
        QCOMPARE(count->text(), QStringLiteral("<p align=\"center\">5 elements</p>"));
        // While a cell writes nothing is refreshed.
        editor()->setFieldUpdateEnabled(false);
        m_field->setIgnored(true);
        write(m_field, "[]");
        QVERIFY(!ignore->isChecked() && table()->rowCount() == 5 && count->text().contains(u'5'));
        editor()->setFieldUpdateEnabled(true);
        editor()->updateFromField();
        QVERIFY(ignore->isChecked());
        QCOMPARE(count->text(), QStringLiteral("<p align=\"center\">0 elements</p>"));
        QCOMPARE(state(), QStringLiteral("[] 0-0 0"));
    }

    void addingTellsTheCurrentCell()
    {
        QSignalSpy told(table().operator->(), &QTableWidget::currentCellChanged);
        clickButton("m_addButton");
        QCOMPARE(told.last(), QVariantList({ 0, 0, 0, 0 }));
        table().click(3, 0);
        clickButton("m_addButton");
        QCOMPARE(told.last(), QVariantList({ 3, 0, 4, 0 }));
    }

    void movesAreToldOnStandardError()
    {
        // From the first row up, from the last one down, and what does move.
        const QByteArray told = standardErrorOf([this] {
            for (const char step : "AuEvBuAv"sv)
                take(step);
        });
        QCOMPARE(told,
            QByteArray("WfMFieldTable::swapUpRow() 0\nWfMFieldTable::swapDownRow() 4\n"
                       "WfMFieldTable::swapUpRow() 1\nWfMFieldTable::swapDownRow() 0\n"));
        QCOMPARE(state(), QStringLiteral("[ 10, 11, 12, 13, 14 ] 1-5 2"));
    }

    void shiftDeletesTheSelectedRows()
    {
        WfMFieldTable* const widget = table().operator->();
        QTest::keyPress(widget, Qt::Key_Shift);
        table().click(1, 0);
        table().click(3, 0, Qt::ShiftModifier);
        press(Qt::Key_Delete);
        QTest::keyRelease(widget, Qt::Key_Shift);
        QCOMPARE(state(), QStringLiteral("[ 10, 14 ] 1-2 1"));
        QCOMPARE(widget->selectionMode(), QAbstractItemView::NoSelection);
        undo();
        QCOMPARE(text(), QLatin1String(Five));
    }

    void shiftCountsOnlyWhileItIsHeldOnTheTable_data()
    {
        addTextRows({ { "typed in a cell" }, { "released in a cell" },
            { "released in another widget" }, { "released in another window" } });
    }

    void shiftCountsOnlyWhileItIsHeldOnTheTable()
    {
        const QString where = textRow<1>()[0];
        table().click(0, 0);
        table().click(3, 0);
        if (where.startsWith(u"released"))
            QTest::keyPress(table().operator->(), Qt::Key_Shift);
        if (where.endsWith(u"window")) {
            inAnotherWindow(&window());
        } else if (where.endsWith(u"widget")) {
            box()->setFocus();
            QTest::keyRelease(box(), Qt::Key_Shift);
        } else {
            QLineEdit* const line = table().type(3, 0, QString());
            if (where.startsWith(u"typed"))
                QTest::keyClick(line, Qt::Key_A, Qt::ShiftModifier);
            else
                QTest::keyRelease(line, Qt::Key_Shift);
        }
        QVERIFY(table()->selectionMode() != QAbstractItemView::ContiguousSelection);
        clickButton("m_deleteButton");
        QCOMPARE(state(), QStringLiteral("[ 10, 11, 12, 14 ] 1-4 1"));
    }

    void theAccessBoxJumps()
    {
        m_field->setNum(1'000'000);
        settle();
        box()->selectAll();
        QTest::keyClicks(box(), QStringLiteral("654321"));
        QVERIFY(table()->viewport()->rect().contains(table().cell(654320, 0)));
        // Return repeats the jump to the same number.
        table()->scrollToTop();
        QTest::keyClick(box(), Qt::Key_Return);
        settle();
        QVERIFY(table()->viewport()->rect().contains(table().cell(654320, 0)));
    }

    void keysAreCharactersInAnOpenEditor()
    {
        QLineEdit* const line = table().type(1, 0, QStringLiteral("-5"));
        QTest::keyClick(line, Qt::Key_Home);
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, QStringLiteral("+"));
        QCOMPARE(line->text(), QStringLiteral("+5"));
        // Nor do the parts of a slider that have no use for them pass them on to the rows.
        auto* const scale = table().openEditor()->findChild<QSlider*>();
        scale->setFocus();
        for (const int key : { Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Delete })
            press(key);
        // The number is taken when the focus goes on to the scale.
        QCOMPARE(state(), QStringLiteral("[ 10, 5, 12, 13, 14 ] 1-5 0"));
    }

    void aChangeFromOutsideIsPainted()
    {
        QTRY_VERIFY(!onScreen().isNull());
        const QImage before = onScreen();
        write(m_field, "[ 10, 98765, 12, 13, 14 ]");
        QTRY_VERIFY(onScreen() != before);
        write(m_field, Five);
        QTRY_VERIFY(onScreen() == before);
    }

    void aRowThatGoesIsPaintedOnce()
    {
        table().click(1, 0);
        const auto runEvents = [] {
            while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
                settle();
        };
        runEvents();
        const PaintCount paints(table()->viewport());
        press(Qt::Key_Delete);
        runEvents();
        QCOMPARE(state(), QStringLiteral("[ 10, 12, 13, 14 ] 1-4 1"));
        QCOMPARE(paints.count(), 1);
    }

    void theColumnsShareTheWidthUntilOneIsSized()
    {
        show("MFVec3f", "[ 1 2 3 ]");
        const auto widths = [this] {
            return QList<int>(
                { table()->columnWidth(0), table()->columnWidth(1), table()->columnWidth(2) });
        };
        QCOMPARE(widths(), QList<int>(3, table()->viewport()->width() / 3));
        const int before = widenDock();
        QCOMPARE(widths(), QList<int>(3, before / 3));
        // By the edge between two headers.
        QWidget* const header = table()->horizontalHeader()->viewport();
        const QPoint edge(before / 3 - 1, header->height() / 2);
        QTest::mousePress(header, Qt::LeftButton, {}, edge);
        QTest::mouseMove(header, edge - QPoint(20, 0));
        QTest::mouseRelease(header, Qt::LeftButton, {}, edge - QPoint(20, 0));
        const QList<int> sized = widths();
        QVERIFY(sized[0] < before / 3);
        QVERIFY(widenDock() > before);
        QCOMPARE(widths(), sized);
    }

private:
    QSpinBox* box() const { return child<QSpinBox>("m_accessBox"); }
    QString text() const { return EditorFixture::text(m_field); }
    /// The values, the limits of the access box, which are those of the rows shown, and the count
    /// of commands.
    QString state() const
    {
        if (box()->maximum() != table()->rowCount())
            return QStringLiteral("%1 rows").arg(table()->rowCount());
        return QStringLiteral("%1 %2-%3 %4")
            .arg(text(), QString::number(box()->minimum()), QString::number(box()->maximum()))
            .arg(commands());
    }
    /// The table's width behind it.
    int widenDock()
    {
        auto* const dock = window().findChild<QDockWidget*>(QStringLiteral("Field Editor"));
        window().resize(window().width() + 200, window().height());
        window().resizeDocks({ dock }, { dock->width() + 150 }, Qt::Horizontal);
        settle();
        return table()->viewport()->width();
    }
    /// A digit clicks a row, a capital goes to one with the access box, and the others stand for
    /// the keys and buttons below.
    void take(char step)
    {
        const QHash<char, Qt::Key> keys
            = { { '+', Qt::Key_Plus }, { '-', Qt::Key_Minus }, { 'x', Qt::Key_Delete } };
        const QHash<char, const char*> buttons = { { 'a', "m_addButton" },
            { 'd', "m_deleteButton" }, { 'u', "m_upButton" }, { 'v', "m_downButton" } };
        if (keys.contains(step))
            QTest::keyClick(table().operator->(), keys[step]);
        else if (buttons.contains(step))
            QTest::mouseClick(child<QWidget>(buttons[step]), Qt::LeftButton);
        else if (step == 'z')
            undo();
        else if (step == '!') {
            m_field->set("[ 10, 11 ]"); // the sensors haven't run
            table()->viewport()->repaint();
        } else if (step < 'A')
            table().click(step - '0', 0);
        else
            box()->setValue(step - 'A' + 1);
    }

    /// What the table looks like on the screen, without having it painted anew for the picture.
    QImage onScreen() const
    {
        const QWidget* const window = table()->window();
        const QRect place(
            table()->viewport()->mapTo(window, QPoint()), table()->viewport()->size());
        return window->screen()->grabWindow(window->winId()).copy(place).toImage();
    }

    KnMFInt32* m_field = nullptr; // of the fixture's node
};

QTEST_MAIN(TestRowTable)
#include "test_row_table.moc"
