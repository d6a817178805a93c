// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"
#include "TextRows.h"
#include "WindowInput.h"

#include <QContextMenuEvent>
#include <QMenuBar>
#include <QShortcut>
#include <QSpinBox>

/// What ends the edit of a cell and what doesn't, and where the typed text goes.
class TestCellEdits : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void leavingACell_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("commands");
        // A slider without commands, a line with commands.
        for (const char* way : { "Return", "Tab", "Escape", "click", "box", "m_upButton",
                 "no field", "editor", "field" }) {
            QTest::addRow("slider, %s", way) << "MFInt32" << way << 0;
            QTest::addRow("line, %s", way) << "MFString" << way << (*way == 'E' ? 0 : 1);
        }
        // With nothing typed an operation is one command, and a selection none. The line of a
        // colour is written in any case where a person ends the edit.
        for (const char* way : { "m_addButton", "m_deleteButton", "m_downButton", "no field",
                 "editor", "Return", "click" })
            QTest::addRow("untouched, %s", way)
                << "MFColor" << way << (qstrcmp(way, "no field") && qstrcmp(way, "editor") ? 1 : 0);
    }

    void leavingACell()
    {
        QFETCH(QString, type);
        QFETCH(QString, way);
        const bool isTyped = type != u"MFColor";
        KnField* const other = otherField(type.toLatin1());
        other->set("[ 1, 2 ]");
        const KnField& field = show(type,
            isTyped ? QStringLiteral("[ 1, 2, 3 ]") : QStringLiteral("[ 0 0 0, 1 1 1, 1 1 1 ]"));
        child<QSpinBox>("m_accessBox")->setValue(1);
        const TableInput table = this->table();
        QString expected = text(&field);
        if (isTyped && way != u"Escape")
            expected.replace(u'1', QStringLiteral("78"));
        const QPointer<QWidget> line
            = isTyped ? table.type(0, 0, QStringLiteral("78")) : TableInput::line(table.open(0, 1));
        leaveCell(way, type);
        QTRY_VERIFY(!line);
        if (isTyped)
            QCOMPARE(text(&field), expected);
        QVERIFY(!text(other).contains(u'7'));
        QTEST(commands(), "commands");
    }

    void menusAndOtherWindowsEndNoEdit_data()
    {
        addTextRows({
            { "MFInt32", "[ 2, 2 ]", "context menu" }, // of a slider
            { "MFVec2f", "[ 2 2 ]", "context menu" },
            { "MFColor", "[ 0 0 0 ]", "context menu" },
            { "MFInt32", "[ 2, 2 ]", "menu bar" },
            { "MFInt32", "[ 2, 2 ]", "window" },
            { "MFVec2f", "[ 2 2 ]", "window" },
        });
    }

    void menusAndOtherWindowsEndNoEdit()
    {
        const auto [type, values, passing] = textRow<3>();
        const KnField& field = show(type, values);
        const QPointer<QLineEdit> line
            = table().type(0, table()->columnCount() > 1 ? 1 : 0, QStringLiteral("1"));
        if (passing == u"context menu") {
            QContextMenuEvent event(
                QContextMenuEvent::Keyboard, QPoint(), line->mapToGlobal(QPoint(1, 1)));
            QCoreApplication::sendEvent(line, &event);
            QVERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        } else if (passing == u"menu bar") {
            QMenuBar bar(&window());
            bar.show();
            bar.setFocus(Qt::MenuBarFocusReason);
            line->setFocus(Qt::MenuBarFocusReason);
        } else {
            inAnotherWindow(&window());
        }
        settle();
        window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        QVERIFY(line && line->hasFocus());
        QCOMPARE(line->text(), QStringLiteral("1"));
        press(Qt::Key_Escape);
        QTRY_VERIFY(!line);
        QCOMPARE(text(&field), values);
        QCOMPARE(commands(), 0);
    }

    void escapeDropsWhatWasTyped_data()
    {
        addTextRows({
            { "MFFloat", "[ 0.5, 1 ]" },
            { "MFUShort", "[ 5, 1 ]" },
            { "MFDouble", "[ 0.5, 1 ]" },
            { "MFVec2s", "[ 5 1, 2 3 ]" },
            { "MFColorRGBA", "[ 0.5 1 0 1, 0 0 0 0 ]" },
        });
    }

    void escapeDropsWhatWasTyped()
    {
        const auto [type, values] = textRow<2>();
        const KnField& field = show(type, values);
        const TableInput table = this->table();
        int shortcuts = 0;
        const QShortcut shortcut(Qt::Key_Escape, &window(), [&shortcuts] { ++shortcuts; });
        const int column = table->columnCount() > 1 ? 1 : 0;
        // With the focus on any part of the editor, and also where a text can't be accepted.
        for (const char* part : { "", "m_slider", "m_notifyCheckBox" }) {
            QLineEdit* const line = table.type(0, column, QStringLiteral("-"));
            auto* const other = line->parentWidget()->findChild<QWidget*>(QLatin1String(part));
            if (*part && other)
                other->setFocus();
            press(Qt::Key_Escape);
            QVERIFY(!table.openEditor());
            QVERIFY(table->hasFocus());
            QCOMPARE(table->currentIndex(), table->model()->index(0, column));
        }
        QCOMPARE(text(&field), values);
        QCOMPARE(commands() + shortcuts, 0);
    }

    void tabOpensTheNextRow_data()
    {
        addTextRows({ { "MFFloat" }, { "MFDouble" } }); // a slider and a line
    }

    void tabOpensTheNextRow()
    {
        const QString type = textRow<1>()[0];
        KnField& field = show(type, QStringLiteral("[ 1, 2, 3 ]"));
        table().type(0, 0, QStringLiteral("5"));
        for (const int key : { Qt::Key_Tab, Qt::Key_6, Qt::Key_Tab, Qt::Key_7, Qt::Key_Backtab,
                 Qt::Key_8, Qt::Key_Return })
            press(key);
        QCOMPARE(text(&field), QStringLiteral("[ 5, 8, 7 ]"));
        // The table takes the keys again.
        press(Qt::Key_Up);
        QCOMPARE(table()->currentRow(), 0);
    }

    void whatIsTypedReachesItsRowOrNone_data()
    {
        // 55 is typed into the second row, with a refresh before Return and without.
        addTextRows({
            { "[ 1, 2, 3 ]", "[ 1, 8, 3 ]", "[ 1, 55, 3 ]" }, // written in place
            { "[ 1, 2, 3 ]", "[ 9, 2, 7 ]", "[ 9, 55, 7 ]" }, // others written
            { "[ 1, 2, 3 ]", "[ 1, 2, 3, 4 ]", "[ 1, 55, 3, 4 ]" }, // added behind
            { "[ 1, 2, 3 ]", "[ 1, 2 ]", "[ 1, 55 ]" }, // gone behind
            { "[ 1, 2, 3 ]", "[ 0, 1, 2, 3 ]", "[ 0, 1, 2, 3 ]" }, // added above
            { "[ 1, 2, 3 ]", "[ 2, 3 ]", "[ 2, 3 ]" }, // gone above
            { "[ 1, 2, 3 ]", "[ 1, 3 ]", "[ 1, 3 ]" }, // gone
            { "[ 5, 5, 5 ]", "[ 0, 5, 5, 5 ]", "[ 0, 5, 5, 5 ]" }, // added above equal ones
            { "[ 4, 5, 5, 5 ]", "[ 5, 5, 5 ]", "[ 5, 5, 5 ]" }, // gone above equal ones
            { "[ 1, 2, 3 ]", "[ 2, 3, 4 ]", "[ 2, 3, 4 ]" }, // one gone, one come
            { "[ 1, 2, 3 ]", "[ 1, 3, 4 ]", "[ 1, 3, 4 ]" }, // gone, one come
            { "[ 1, 2, 3 ]", "[]", "[]" },
            // Equal rows that come and go.
            { "[ 0, 0, 0 ]", "+0", "[ 0, 0, 0, 0 ]" },
            { "[ 0, 0, 0 ]", "+2", "[ 0, 55, 0, 0 ]" },
            { "[ 0, 0, 0 ]", "-0", "[ 0, 0 ]" },
            { "[ 0, 0, 0 ]", "-1", "[ 0, 0 ]" },
            { "[ 0, 0, 0 ]", "-2", "[ 0, 55 ]" },
        });
    }

    void whatIsTypedReachesItsRowOrNone()
    {
        const auto [start, outside, end] = textRow<3>();
        QStringList ends;
        for (const char* type : { "MFInt32", "MFDouble" }) { // a slider and a line
            for (const bool isRefreshed : { true, false }) {
                KnField& field = show(QLatin1String(type), start);
                const QPointer<QWidget> line = table().type(1, 0, QStringLiteral("55"));
                change(field, outside);
                if (isRefreshed)
                    settle();
                // Also without a refresh the end of the edit has to look at the rows.
                press(Qt::Key_Return);
                QTRY_VERIFY(!line);
                ends << text(&field);
            }
        }
        QCOMPARE(ends, QStringList(4, end));
    }

private:
    void leaveCell(const QString& way, const QString& type)
    {
        if (way.startsWith(u"m_"))
            clickButton(way.toLatin1());
        else if (way == u"click")
            table().click(2, type == u"MFColor" ? 2 : 0);
        else if (way == u"box")
            child<QWidget>("m_accessBox")->setFocus();
        else if (way == u"no field")
            select(nullptr);
        else if (way == u"editor")
            select(field("MFFloat"));
        else if (way == u"field")
            select(otherField(type.toLatin1()));
        else
            press(QKeySequence(way)[0].key());
        settle();
    }
};

QTEST_MAIN(TestCellEdits)
#include "test_cell_edits.moc"
