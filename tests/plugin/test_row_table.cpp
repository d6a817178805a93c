// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"

#include <QRandomGenerator>
#include <QScreen>
#include <QSlider>
#include <QSpinBox>

#include <optional>

namespace {

const char Five[] = "[ 10, 11, 12, 13, 14 ]";

} // namespace

/// Rows that are shown, added, deleted, moved and jumped to, as a person does it.
class TestRowTable : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture.emplace();
        m_field = &m_fixture->node().MFInt32;
        show(Five);
    }
    void cleanup() { m_fixture.reset(); }

    void nothingToDoInAnEmptyTable()
    {
        show("[]");
        QCOMPARE(box()->minimum(), 0);
        QCOMPARE(box()->maximum(), 0);
        for (const char* button : { "m_deleteButton", "m_upButton", "m_downButton" })
            clickButton(button);
        press(table().operator->(), Qt::Key_Delete);
        press(box(), Qt::Key_Return);
        QCOMPARE(stack().count(), 0);

        clickButton("m_addButton");
        QCOMPARE(text(), QStringLiteral("[ 0 ]"));
        QCOMPARE(box()->minimum(), 1);
        QCOMPARE(box()->maximum(), 1);
        clickButton("m_deleteButton");
        QCOMPARE(text(), QStringLiteral("[]"));
        QCOMPARE(stack().count(), 2);
    }

    void addGoesBehindTheCurrentRow()
    {
        clickButton("m_addButton"); // no cell is current yet
        QCOMPARE(text(), QStringLiteral("[ 0, 10, 11, 12, 13, 14 ]"));
        table().click(2, 0);
        press(table().operator->(), Qt::Key_Plus);
        QCOMPARE(text(), QStringLiteral("[ 0, 10, 11, 0, 12, 13, 14 ]"));
        QCOMPARE(table()->currentRow(), 2);
        QCOMPARE(table()->rowCount(), 7);
        QCOMPARE(box()->maximum(), 7);
        m_fixture->undo();
        m_fixture->undo();
        QCOMPARE(text(), QString::fromLatin1(Five));
        QCOMPARE(table()->rowCount(), 5);
    }

    void deleteTakesTheCurrentRow()
    {
        for (const int key : { Qt::Key_Minus, Qt::Key_Delete }) {
            table().click(1, 0);
            press(table().operator->(), key);
            QCOMPARE(text(), QStringLiteral("[ 10, 12, 13, 14 ]"));
            QCOMPARE(box()->maximum(), 4);
            m_fixture->undo();
            QCOMPARE(text(), QString::fromLatin1(Five));
        }
    }

    void theCurrentRowStaysWhenTheAccessBoxIsCut()
    {
        box()->setValue(5);
        table().click(1, 0);
        clickButton("m_deleteButton");
        QCOMPARE(box()->value(), 4);
        QCOMPARE(table()->currentRow(), 0); // next to the deleted one, not the fourth
    }

    void shiftDeletesTheSelectedRows()
    {
        WfMFieldTable* const widget = table().operator->();
        QTest::keyPress(widget, Qt::Key_Shift);
        table()->clearSelection();
        press(widget, Qt::Key_Delete); // nothing is selected
        QCOMPARE(stack().count(), 0);
        table().click(1, 0);
        table().click(3, 0, Qt::ShiftModifier);
        press(widget, Qt::Key_Delete);
        QTest::keyRelease(widget, Qt::Key_Shift);
        QCOMPARE(text(), QStringLiteral("[ 10, 14 ]"));
        QCOMPARE(box()->maximum(), 2);
        QCOMPARE(widget->selectionMode(), QAbstractItemView::NoSelection);
        m_fixture->undo();
        QCOMPARE(text(), QString::fromLatin1(Five));
        m_fixture->redo();
        QCOMPARE(text(), QStringLiteral("[ 10, 14 ]"));
    }

    void upAndDownMoveTheRowOfTheAccessBox()
    {
        clickButton("m_upButton"); // the first row
        QCOMPARE(stack().count(), 0);
        box()->setValue(2);
        table().click(4, 0); // which has no say
        clickButton("m_downButton");
        QCOMPARE(text(), QStringLiteral("[ 10, 12, 11, 13, 14 ]"));
        QCOMPARE(box()->value(), 3);
        QCOMPARE(table()->currentRow(), 2);
        clickButton("m_upButton");
        QCOMPARE(text(), QString::fromLatin1(Five));
        box()->setValue(5);
        clickButton("m_downButton"); // the last row
        QCOMPARE(stack().count(), 2);
    }

    void theAccessBoxJumps()
    {
        m_field->setNum(1'000'000);
        EditorFixture::settle();
        box()->selectAll();
        QTest::keyClicks(box(), QStringLiteral("654321"));
        QCOMPARE(table()->currentRow(), 654320);
        QVERIFY(table()->viewport()->rect().contains(table().cell(654320, 0)));
        // Return repeats the jump to the same number.
        table()->scrollToTop();
        table().click(0, 0);
        press(box(), Qt::Key_Return);
        QCOMPARE(table()->currentRow(), 654320);
        QVERIFY(table()->viewport()->rect().contains(table().cell(654320, 0)));
        table()->showTableRow(0);
        table()->showTableRow(1'000'001);
        QCOMPARE(table()->currentRow(), 654320);
    }

    void keysAreCharactersInAnOpenEditor()
    {
        QLineEdit* const line = table().type(1, 0, QStringLiteral("-5"));
        QCOMPARE(line->text(), QStringLiteral("-5"));
        QTest::keyClick(line, Qt::Key_Home);
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, QStringLiteral("+"));
        QCOMPARE(line->text(), QStringLiteral("+5"));
        // Nor do the parts of a slider that have no use for them pass them on to the rows.
        auto* const scale = table().openEditor()->findChild<QSlider*>();
        scale->setFocus();
        for (const int key : { Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Delete })
            press(scale, key);
        QCOMPARE(table()->rowCount(), 5);
        QCOMPARE(stack().count(), 0);
    }

    void aChangeFromOutsideIsPainted()
    {
        QTRY_VERIFY(!onScreen(1, 0).isNull());
        const QImage before = onScreen(1, 0);
        EditorFixture::write(m_field, "[ 10, 98765, 12, 13, 14 ]");
        QTRY_VERIFY(onScreen(1, 0) != before);
        EditorFixture::write(m_field, Five);
        QTRY_VERIFY(onScreen(1, 0) == before);
    }

    void theCountsDisagreeUntilTheNextRefresh_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("after");
        QTest::newRow("add") << "m_addButton"
                             << "[ 10, 11, 0 ]";
        QTest::newRow("delete") << "m_deleteButton"
                                << "[ 10 ]";
        QTest::newRow("up") << "m_upButton"
                            << "[ 10, 11 ]";
        QTest::newRow("down") << "m_downButton"
                              << "[ 10, 11 ]";
    }
    void theCountsDisagreeUntilTheNextRefresh()
    {
        QFETCH(QString, button);
        QFETCH(QString, after);
        box()->setValue(5);
        m_field->set("[ 10, 11 ]"); // the sensors haven't run
        table()->viewport()->repaint();
        QTest::mouseClick(m_fixture->child<QAbstractButton>(button.toLatin1()), Qt::LeftButton);
        EditorFixture::settle();
        QCOMPARE(text(), after);
        QCOMPARE(table()->rowCount(), m_field->getNum());
        while (stack().canUndo())
            m_fixture->undo();
        QCOMPARE(text(), QStringLiteral("[ 10, 11 ]"));
    }

    void randomRowOperationsGoBackAndForth()
    {
        QRandomGenerator random(4711);
        const char* const buttons[]
            = { "m_addButton", "m_addButton", "m_deleteButton", "m_upButton", "m_downButton" };
        for (int i = 0; i < 300; ++i) {
            if (table()->rowCount() > 0)
                box()->setValue(1 + random.bounded(table()->rowCount()));
            clickButton(buttons[random.bounded(5)]);
            QCOMPARE(table()->rowCount(), m_field->getNum());
        }
        const QString end = text();
        QVERIFY(stack().count() > 200);
        stack().setIndex(0);
        QCOMPARE(text(), QString::fromLatin1(Five));
        stack().setIndex(stack().count());
        QCOMPARE(text(), end);
        EditorFixture::settle();
    }

    void theColumnsShareTheWidthUntilOneIsSized()
    {
        QCOMPARE(table()->columnWidth(0), table()->viewport()->width());
        m_fixture->shell().window().resize(1200, 700);
        EditorFixture::settle();
        table()->setColumnWidth(0, 40);
        m_fixture->shell().window().resize(900, 600);
        EditorFixture::settle();
        QCOMPARE(table()->columnWidth(0), 40);
    }

private:
    void show(const char* values) { m_fixture->show("MFInt32", values); }
    TableInput table() const { return m_fixture->table(); }
    QSpinBox* box() const { return m_fixture->child<QSpinBox>("m_accessBox"); }
    QUndoStack& stack() const { return m_fixture->undoStack(); }
    QString text() const { return EditorFixture::text(m_field); }
    void clickButton(const char* name) { m_fixture->clickButton(name); }
    /// A key with the focus on `widget`.
    void press(QWidget* widget, int key)
    {
        widget->setFocus();
        m_fixture->press(key);
    }

    /// What a cell looks like on the screen, without having it painted anew for the picture.
    QImage onScreen(int row, int column) const
    {
        const QWidget* const window = table()->window();
        const QRect cell = table().cell(row, column);
        return window->screen()
            ->grabWindow(window->winId())
            .copy(QRect(table()->viewport()->mapTo(window, cell.topLeft()), cell.size()))
            .toImage();
    }

    std::optional<ArrayFixture> m_fixture;
    KnMFInt32* m_field = nullptr; // of the fixture's node
};

QTEST_MAIN(TestRowTable)
#include "test_row_table.moc"
