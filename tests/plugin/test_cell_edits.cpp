// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "SliderInput.h"
#include "WindowInput.h"

#include <QContextMenuEvent>
#include <QMenuBar>
#include <QShortcut>
#include <QSpinBox>

#include <optional>

/// What ends the edit of a cell and what doesn't, and where the typed text goes.
class TestCellEdits : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture.emplace();
    }
    void cleanup() { m_fixture.reset(); }

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
        QFETCH(int, commands);
        const bool isTyped = type != u"MFColor";
        KnField* const other = m_fixture->otherField(type.toLatin1());
        other->set("[ 1, 2 ]");
        const KnField& field = m_fixture->show(type,
            isTyped ? QStringLiteral("[ 1, 2, 3 ]") : QStringLiteral("[ 0 0 0, 1 1 1, 1 1 1 ]"));
        m_fixture->child<QSpinBox>("m_accessBox")->setValue(1);
        const TableInput table = m_fixture->table();
        QString expected = EditorFixture::text(&field);
        if (isTyped && way != u"Escape")
            expected.replace(u'1', QStringLiteral("78"));
        const QPointer<QWidget> line
            = isTyped ? table.type(0, 0, QStringLiteral("78")) : TableInput::line(table.open(0, 1));
        leaveCell(way, type);
        QTRY_VERIFY(!line);
        if (isTyped)
            QCOMPARE(EditorFixture::text(&field), expected);
        QVERIFY(!EditorFixture::text(other).contains(u'7'));
        QCOMPARE(m_fixture->commands(), commands);
    }

    void menusAndOtherWindowsEndNoEdit_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("passing");
        for (const char* passing : { "context menu", "menu", "menu bar", "window" }) {
            QTest::addRow("slider, %s", passing) << "MFInt32"
                                                 << "[ 2, 2 ]" << passing;
            QTest::addRow("line, %s", passing) << "MFVec2f"
                                               << "[ 2 2 ]" << passing;
            QTest::addRow("colour, %s", passing) << "MFColor"
                                                 << "[ 0 0 0 ]" << passing;
        }
    }

    void menusAndOtherWindowsEndNoEdit()
    {
        QFETCH(QString, type);
        QFETCH(QString, values);
        QFETCH(QString, passing);
        const KnField& field = m_fixture->show(type, values);
        const QPointer<QLineEdit> line = m_fixture->table().type(
            0, m_fixture->table()->columnCount() > 1 ? 1 : 0, QStringLiteral("1"));
        QWidget& window = m_fixture->shell().window();
        if (passing == u"context menu") {
            QContextMenuEvent event(
                QContextMenuEvent::Keyboard, QPoint(), line->mapToGlobal(QPoint(1, 1)));
            QCoreApplication::sendEvent(line, &event);
            QVERIFY(QApplication::activePopupWidget());
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        } else if (passing == u"menu") {
            QMenu menu(&window);
            menu.popup(QPoint());
            QTest::keyClick(&menu, Qt::Key_Escape);
        } else if (passing == u"menu bar") {
            QMenuBar bar(&window);
            bar.show();
            bar.setFocus(Qt::MenuBarFocusReason);
            QVERIFY(bar.hasFocus());
            line->setFocus(Qt::MenuBarFocusReason);
        } else {
            inAnotherWindow(&window);
        }
        EditorFixture::settle();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(line && line->hasFocus());
        QCOMPARE(line->text(), QStringLiteral("1"));
        m_fixture->press(Qt::Key_Escape);
        QTRY_VERIFY(!line);
        QCOMPARE(EditorFixture::text(&field), values);
        QCOMPARE(m_fixture->commands(), 0);
    }

    void escapeDropsWhatWasTyped_data()
    {
        QTest::addColumn<QString>("values");
        QTest::newRow("MFFloat") << "[ 0.5, 1 ]";
        QTest::newRow("MFUShort") << "[ 5, 1 ]";
        QTest::newRow("MFDouble") << "[ 0.5, 1 ]";
        QTest::newRow("MFTime") << "[ 0.5, 1 ]";
        QTest::newRow("MFVec2s") << "[ 5 1, 2 3 ]";
        QTest::newRow("MFColorRGBA") << "[ 0.5 1 0 1, 0 0 0 0 ]";
    }

    void escapeDropsWhatWasTyped()
    {
        QFETCH(QString, values);
        const KnField& field = m_fixture->show(QLatin1String(QTest::currentDataTag()), values);
        const TableInput table = m_fixture->table();
        int shortcuts = 0;
        const QShortcut shortcut(
            Qt::Key_Escape, &m_fixture->shell().window(), [&shortcuts] { ++shortcuts; });
        const int column = table->columnCount() > 1 ? 1 : 0;
        // With the focus on any part of the editor, and also where a text can't be accepted.
        for (const char* part : { "", "m_slider", "m_notifyCheckBox" }) {
            QLineEdit* const line = table.type(0, column, QStringLiteral("-"));
            auto* const other = line->parentWidget()->findChild<QWidget*>(QLatin1String(part));
            if (*part && other)
                other->setFocus();
            m_fixture->press(Qt::Key_Escape);
            QVERIFY(!table.openEditor());
            QVERIFY(table->hasFocus());
            QCOMPARE(table->currentIndex(), table->model()->index(0, column));
        }
        QCOMPARE(EditorFixture::text(&field), values);
        QCOMPARE(m_fixture->commands() + shortcuts, 0);
    }

    void tabOpensTheNextRow_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("slider") << "MFFloat";
        QTest::newRow("line") << "MFDouble";
    }

    void tabOpensTheNextRow()
    {
        QFETCH(QString, type);
        KnField& field = m_fixture->show(type, QStringLiteral("[ 1, 2, 3 ]"));
        m_fixture->table().type(0, 0, QStringLiteral("5"));
        for (const int key : { Qt::Key_Tab, Qt::Key_6, Qt::Key_Tab, Qt::Key_7, Qt::Key_Backtab,
                 Qt::Key_8, Qt::Key_Return })
            m_fixture->press(key);
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ 5, 8, 7 ]"));
        // The table takes the keys again.
        m_fixture->press(Qt::Key_Up);
        QCOMPARE(m_fixture->table()->currentRow(), 0);
    }

    void whatIsTypedReachesItsRowOrNone_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("isRefreshed"); // before the end of the edit
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("outside");
        QTest::addColumn<QString>("end");
        // A slider and a line; the second row is edited.
        for (const char* type : { "MFInt32", "MFDouble" }) {
            for (const bool isRefreshed : { true, false }) {
                const auto row = [&](const char* name, const char* start, const char* outside,
                                     const char* end) {
                    QTest::addRow("%s, %s%s", type, name, isRefreshed ? "" : ", no refresh yet")
                        << type << isRefreshed << start << outside << end;
                };
                row("written in place", "[ 1, 2, 3 ]", "[ 1, 8, 3 ]", "[ 1, 55, 3 ]");
                row("others written", "[ 1, 2, 3 ]", "[ 9, 2, 7 ]", "[ 9, 55, 7 ]");
                row("added behind", "[ 1, 2, 3 ]", "[ 1, 2, 3, 4 ]", "[ 1, 55, 3, 4 ]");
                row("gone behind", "[ 1, 2, 3 ]", "[ 1, 2 ]", "[ 1, 55 ]");
                row("added above", "[ 1, 2, 3 ]", "[ 0, 1, 2, 3 ]", "[ 0, 1, 2, 3 ]");
                row("gone above", "[ 1, 2, 3 ]", "[ 2, 3 ]", "[ 2, 3 ]");
                row("gone", "[ 1, 2, 3 ]", "[ 1, 3 ]", "[ 1, 3 ]");
                row("added above equal ones", "[ 5, 5, 5 ]", "[ 0, 5, 5, 5 ]", "[ 0, 5, 5, 5 ]");
                row("gone above equal ones", "[ 4, 5, 5, 5 ]", "[ 5, 5, 5 ]", "[ 5, 5, 5 ]");
                row("one gone, one come", "[ 1, 2, 3 ]", "[ 2, 3, 4 ]", "[ 2, 3, 4 ]");
                row("gone, one come", "[ 1, 2, 3 ]", "[ 1, 3, 4 ]", "[ 1, 3, 4 ]");
                row("all gone", "[ 1, 2, 3 ]", "[]", "[]");
            }
        }
    }

    void whatIsTypedReachesItsRowOrNone()
    {
        QFETCH(QString, type);
        QFETCH(bool, isRefreshed);
        QFETCH(QString, start);
        QFETCH(QString, outside);
        QFETCH(QString, end);
        KnField& field = m_fixture->show(type, start);
        const QPointer<QWidget> line = m_fixture->table().type(1, 0, QStringLiteral("55"));
        field.set(outside.toLatin1().constData());
        if (isRefreshed)
            EditorFixture::settle();
        // Also without a refresh the end of the edit has to look at the rows.
        m_fixture->press(Qt::Key_Return);
        QTRY_VERIFY(!line);
        QCOMPARE(EditorFixture::text(&field), end);
    }

    void farDownRowsThatComeEndTheEdit()
    {
        const QByteArray values = QByteArray("[ 5") + QByteArray(", 5").repeated(99);
        KnField& field = m_fixture->show("MFInt32", QByteArray(values + " ]").constData());
        m_fixture->table()->showTableRow(80);
        const QPointer<QWidget> line = m_fixture->table().type(79, 0, QStringLiteral("55"));
        EditorFixture::write(&field, QByteArray(values + ", 5 ]").constData());
        QTRY_VERIFY(!line);
        QVERIFY(!EditorFixture::text(&field).contains(QStringLiteral("55")));
        // A drag writes the row itself, again and again.
        m_fixture->table()->showTableRow(80);
        const QPointer<QWidget> editor = m_fixture->table().open(79, 0);
        SliderInput scale(editor->findChild<QSlider*>());
        scale.press();
        for (int i = 0; i < 3; ++i) {
            scale.moveBy(10);
            EditorFixture::settle();
            QVERIFY(editor && editor->isVisible());
        }
        scale.release();
    }

private:
    void leaveCell(const QString& way, const QString& type)
    {
        if (way.startsWith(u"m_"))
            m_fixture->clickButton(way.toLatin1());
        else if (way == u"click")
            m_fixture->table().click(2, type == u"MFColor" ? 2 : 0);
        else if (way == u"box")
            m_fixture->child<QWidget>("m_accessBox")->setFocus();
        else if (way == u"no field")
            m_fixture->select(nullptr);
        else if (way == u"editor")
            m_fixture->select(m_fixture->field("MFFloat"));
        else if (way == u"field")
            m_fixture->select(m_fixture->otherField(type.toLatin1()));
        else
            m_fixture->press(QKeySequence(way)[0].key());
        EditorFixture::settle();
    }

    std::optional<ArrayFixture> m_fixture;
};

QTEST_MAIN(TestCellEdits)
#include "test_cell_edits.moc"
