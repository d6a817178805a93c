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
    using Act = void (*)(ArrayFixture& fixture, const char* type);

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
        QTest::addColumn<bool>("isWritten");
        QTest::addColumn<Act>("leave");
        // A slider without commands, a line with commands.
        for (const char* type : { "MFInt32", "MFString" }) {
            const auto row = [type](const char* name, bool isWritten, Act leave) {
                QTest::addRow("%s, %s", type, name) << type << isWritten << leave;
            };
            row("Return", true, [](ArrayFixture& f, const char*) { f.press(Qt::Key_Return); });
            row("Tab", true, [](ArrayFixture& f, const char*) { f.press(Qt::Key_Tab); });
            row("Escape", false, [](ArrayFixture& f, const char*) { f.press(Qt::Key_Escape); });
            row("click", true, [](ArrayFixture& f, const char*) { f.table().click(2, 0); });
            row("box", true,
                [](ArrayFixture& f, const char*) { f.child<QWidget>("m_accessBox")->setFocus(); });
            row("button", true, [](ArrayFixture& f, const char*) { f.clickButton("m_upButton"); });
            row("no field", true, [](ArrayFixture& f, const char*) { f.select(nullptr); });
            row("editor", true, [](ArrayFixture& f, const char*) { f.select(f.field("MFFloat")); });
            row("field", true, [](ArrayFixture& f, const char* t) { f.select(f.otherField(t)); });
        }
    }

    void leavingACell()
    {
        QFETCH(QString, type);
        QFETCH(bool, isWritten);
        QFETCH(Act, leave);
        KnField* const other = m_fixture->otherField(type.toLatin1());
        other->set("[ 1, 2 ]");
        const KnField& field = m_fixture->show(type, QStringLiteral("[ 1, 2, 3 ]"));
        QString expected = EditorFixture::text(&field);
        if (isWritten)
            expected.replace(u'1', QStringLiteral("78"));
        m_fixture->table().type(0, 0, QStringLiteral("78"));
        const QPointer<QWidget> editor = m_fixture->table().openEditor();
        leave(*m_fixture, type.toLatin1());
        QTRY_VERIFY(!editor);
        QCOMPARE(EditorFixture::text(&field), expected);
        QVERIFY(!EditorFixture::text(other).contains(u'7'));
        QCOMPARE(m_fixture->commands(), isWritten && type == u"MFString");
    }

    void anUntouchedEditorJustCloses_data()
    {
        QTest::addColumn<Act>("leave");
        QTest::addColumn<int>("commands");
        const auto row = [](const char* name, Act leave, int commands) {
            QTest::newRow(name) << leave << commands;
        };
        row(
            "add", [](ArrayFixture& f, const char*) { f.clickButton("m_addButton"); }, 1);
        row(
            "delete", [](ArrayFixture& f, const char*) { f.clickButton("m_deleteButton"); }, 1);
        row(
            "down", [](ArrayFixture& f, const char*) { f.clickButton("m_downButton"); }, 1);
        row(
            "selection", [](ArrayFixture& f, const char*) { f.select(f.field("SFBool")); }, 0);
        // Here a person ends the edit, which writes a colour in any case.
        row(
            "click", [](ArrayFixture& f, const char*) { f.table().click(1, 2); }, 1);
    }

    void anUntouchedEditorJustCloses()
    {
        QFETCH(Act, leave);
        QFETCH(int, commands);
        m_fixture->show("MFColor", "[ 0 0 0, 1 1 1 ]");
        m_fixture->child<QSpinBox>("m_accessBox")->setValue(1);
        const QPointer<QWidget> editor = m_fixture->table().open(0, 1);
        leave(*m_fixture, nullptr);
        QTRY_VERIFY(!editor);
        QCOMPARE(m_fixture->commands(), commands);
    }

    void menusAndOtherWindowsEndNoEdit_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<Act>("pass");
        for (const char* type : { "MFInt32", "MFString", "MFColor" }) {
            QTest::addRow("%s, context menu", type) << type << Act([](ArrayFixture&, const char*) {
                QWidget* const line = QApplication::focusWidget();
                QContextMenuEvent event(
                    QContextMenuEvent::Keyboard, QPoint(), line->mapToGlobal(QPoint(1, 1)));
                QCoreApplication::sendEvent(line, &event);
                QVERIFY(QApplication::activePopupWidget());
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            });
            QTest::addRow("%s, menu", type) << type << Act([](ArrayFixture& f, const char*) {
                QMenu menu(&f.shell().window());
                menu.popup(QPoint());
                QTest::keyClick(&menu, Qt::Key_Escape);
            });
            QTest::addRow("%s, menu bar", type) << type << Act([](ArrayFixture& f, const char*) {
                QMenuBar bar(&f.shell().window());
                QWidget* const line = QApplication::focusWidget();
                bar.show();
                bar.setFocus(Qt::MenuBarFocusReason);
                QVERIFY(bar.hasFocus());
                line->setFocus(Qt::MenuBarFocusReason);
            });
            QTest::addRow("%s, window", type)
                << type
                << Act([](ArrayFixture& f, const char*) { inAnotherWindow(&f.shell().window()); });
        }
    }

    void menusAndOtherWindowsEndNoEdit()
    {
        QFETCH(QString, type);
        QFETCH(Act, pass);
        const KnField& field = m_fixture->show(
            type, type == u"MFColor" ? QStringLiteral("[ 0 1 0 ]") : QStringLiteral("[ 2, 2 ]"));
        const QString before = EditorFixture::text(&field);
        const QPointer<QLineEdit> line = m_fixture->table().type(
            0, m_fixture->table()->columnCount() > 1 ? 1 : 0, QStringLiteral("1"));
        pass(*m_fixture, nullptr);
        EditorFixture::settle();
        QWidget& window = m_fixture->shell().window();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(line && line->hasFocus());
        QCOMPARE(line->text(), QStringLiteral("1"));
        m_fixture->press(Qt::Key_Escape);
        QTRY_VERIFY(!line);
        QCOMPARE(EditorFixture::text(&field), before);
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

    void tabOpensTheNextRow()
    {
        for (const char* type : { "MFFloat", "MFDouble" }) {
            KnField& field = m_fixture->show(type, "[ 1, 2, 3 ]");
            m_fixture->table().type(0, 0, QStringLiteral("5"));
            for (const int key : { Qt::Key_6, Qt::Key_7 }) {
                m_fixture->press(Qt::Key_Tab);
                m_fixture->press(key);
            }
            m_fixture->press(Qt::Key_Return);
            QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ 5, 6, 7 ]"));
            // The table takes the keys again.
            m_fixture->press(Qt::Key_Up);
            QCOMPARE(m_fixture->table()->currentRow(), 1);
        }
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

    void farDownARowIsKnownByItsValueAlone()
    {
        const QString start = QStringLiteral("[ 5") + QStringLiteral(", 5").repeated(99);
        KnField& field = m_fixture->show("MFInt32", QString(start + u']').toLatin1().constData());
        const auto type = [this] {
            m_fixture->table()->showTableRow(80);
            return QPointer<QWidget>(m_fixture->table().type(79, 0, QStringLiteral("55")));
        };
        QPointer<QWidget> line = type();
        field.set(QString(start + u']').replace(2, 1, u'6').toLatin1().constData());
        EditorFixture::settle();
        QVERIFY(line);
        m_fixture->press(Qt::Key_Return);
        QCOMPARE(m_fixture->node().MFInt32[79], 55);
        line = type();
        EditorFixture::write(
            &field, QString(start + QStringLiteral(", 5 ]")).toLatin1().constData());
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
    std::optional<ArrayFixture> m_fixture;
};

QTEST_MAIN(TestCellEdits)
#include "test_cell_edits.moc"
