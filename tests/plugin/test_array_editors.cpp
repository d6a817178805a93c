// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "SliderInput.h"
#include "WindowInput.h"

#include "KnMaterial.h"
#include "StringConversion.h"
#include "WfRealSlider.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMenuBar>
#include <QShortcut>
#include <QSpinBox>

#include <optional>

namespace {

/// Notes the rows that it is asked for, and what it is to write.
class ProbeEditor : public WfMFInt32Widget {
public:
    ProbeEditor() { load(); }
    ~ProbeEditor() override { unload(); }

    QString getCellText(int row, int column) override
    {
        m_rowsAsked << row;
        return WfMFInt32Widget::getCellText(row, column);
    }
    void setFieldValue(int row, int column, QString text) override
    {
        m_written << text;
        WfMFInt32Widget::setFieldValue(row, column, text);
    }
    WfMFieldTable* table() { return m_table; }

    QSet<int> m_rowsAsked;
    QStringList m_written;
};

} // namespace

/// Cell editors, from their opening to their end.
class TestArrayEditors : public QObject {
    Q_OBJECT
    using Leave = void (*)(ArrayFixture& fixture, const char* type);

private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture.emplace();
    }
    void cleanup() { m_fixture.reset(); }

    void openingWritesNothing_data()
    {
        QTest::addColumn<QString>("values");
        QTest::newRow("MFUInt32") << "[ 0x0, 0xa, 0xb, 0xffffffff ]";
        QTest::newRow("MFUShort") << "[ 0, 10, 11, 65535 ]";
        QTest::newRow("MFInt32") << "[ 0, -2147483648, 2147483647, 11 ]";
        QTest::newRow("MFShort") << "[ 0, -32768, 32767, 11 ]";
        QTest::newRow("MFFloat") << "[ 0.12345678, inf, 1e+30, nan ]";
        QTest::newRow("MFDouble") << "[ 0.12345678901234568, inf, 1e+300, nan ]";
        QTest::newRow("MFString") << "[ \"\", \"a\\nb\", \"\\\"\", \"x\" ]";
    }

    void openingWritesNothing()
    {
        QFETCH(QString, values);
        const KnField& field = m_fixture->show(QLatin1String(QTest::currentDataTag()), values);
        for (int row = 0; row < 4; ++row) {
            m_fixture->table().open(row, 0);
            EditorFixture::settle();
            m_fixture->press(row % 2 == 0 ? Qt::Key_Return : Qt::Key_Escape);
            QVERIFY(!m_fixture->table().openEditor());
        }
        QCOMPARE(EditorFixture::text(&field), values);
        QCOMPARE(m_fixture->commands(), 0);
    }

    void leavingACell_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("isWritten");
        QTest::addColumn<Leave>("leave");
        // A slider without commands, a line with commands.
        for (const char* type : { "MFInt32", "MFString" }) {
            const auto row = [type](const char* name, bool isWritten, Leave leave) {
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
        QFETCH(Leave, leave);
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
        QTest::addColumn<Leave>("leave");
        QTest::addColumn<int>("commands");
        const auto row = [](const char* name, Leave leave, int commands) {
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
        QFETCH(Leave, leave);
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
        QTest::addColumn<Leave>("pass");
        for (const char* type : { "MFInt32", "MFString", "MFColor" }) {
            QTest::addRow("%s, context menu", type)
                << type << Leave([](ArrayFixture&, const char*) {
                       QWidget* const line = QApplication::focusWidget();
                       QContextMenuEvent event(
                           QContextMenuEvent::Keyboard, QPoint(), line->mapToGlobal(QPoint(1, 1)));
                       QCoreApplication::sendEvent(line, &event);
                       QVERIFY(QApplication::activePopupWidget());
                       QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
                   });
            QTest::addRow("%s, menu", type) << type << Leave([](ArrayFixture& f, const char*) {
                QMenu menu(&f.shell().window());
                menu.popup(QPoint());
                QTest::keyClick(&menu, Qt::Key_Escape);
            });
            QTest::addRow("%s, menu bar", type) << type << Leave([](ArrayFixture& f, const char*) {
                QMenuBar bar(&f.shell().window());
                QWidget* const line = QApplication::focusWidget();
                bar.show();
                bar.setFocus(Qt::MenuBarFocusReason);
                QVERIFY(bar.hasFocus());
                line->setFocus(Qt::MenuBarFocusReason);
            });
            QTest::addRow("%s, window", type) << type << Leave([](ArrayFixture& f, const char*) {
                inAnotherWindow(&f.shell().window());
            });
        }
    }

    void menusAndOtherWindowsEndNoEdit()
    {
        QFETCH(QString, type);
        QFETCH(Leave, pass);
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

    void returnInASliderWritesOnceASignal()
    {
        ProbeEditor probe;
        KnMFInt32 field;
        field.setNum(2);
        probe.setEditedObject(&field);
        probe.activate();
        probe.getFrame()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(probe.getFrame()));
        const TableInput table(probe.table());
        // The line has two signals for it.
        table.typeInto(0, 0, QStringLiteral("7"));
        QCOMPARE(probe.m_written, QStringList({ QStringLiteral("7"), QStringLiteral("7") }));
        probe.m_written.clear();
        QTest::keyClick(table.type(0, 0, QStringLiteral("8")), Qt::Key_Tab);
        QCOMPARE(probe.m_written, QStringList(QStringLiteral("8")));
        probe.deactivate();
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

    void aDragWritesTheCell()
    {
        m_fixture->show("MFFloat", "[ 0, 0 ]");
        const KnMFFloat& field = m_fixture->node().MFFloat;
        QWidget* const editor = m_fixture->table().open(1, 0);
        SliderInput scale(editor->findChild<QSlider*>());
        scale.press();
        scale.moveBy(30);
        EditorFixture::settle();
        const float moved = field[1];
        QVERIFY(moved > 0);
        QCOMPARE(m_fixture->table().openEditor(), editor);

        // With the check box clear the field waits for the release; a selection in the midst of
        // the drag counts as one.
        editor->findChild<QCheckBox*>()->setChecked(false);
        scale.moveBy(10);
        QCOMPARE(field[1], moved);
        const QString shown = TableInput::line(editor)->text();
        m_fixture->select(&m_fixture->otherNode().MFFloat);
        QVERIFY(field[1] > moved);
        QCOMPARE(QString::number(static_cast<double>(field[1]), 'f', 6), shown);
        QCOMPARE(m_fixture->otherNode().MFFloat.getNum(), 0);
        QCOMPARE(m_fixture->commands(), 0);
    }

    void ratiosStayRatiosInACell()
    {
        auto* const material = new KnMaterial;
        material->ref();
        material->shininess.set("[ 0.25, 0.5 ]");
        m_fixture->select(&material->shininess);
        m_fixture->table().type(0, 0, QStringLiteral("7"));
        m_fixture->table().click(1, 0);
        QCOMPARE(EditorFixture::text(&material->shininess), QStringLiteral("[ 0.25, 0.5 ]"));
        const auto* slider = static_cast<WfRealSlider*>(m_fixture->table().open(0, 0));
        QVERIFY(slider->isBounded() && slider->getMaximum() == 1.0);
        m_fixture->select(nullptr);
        material->unref();

        // The same editor object, for a field of any other node.
        KnField& field = m_fixture->show("MFFloat", "[ 0.25 ]");
        slider = static_cast<WfRealSlider*>(m_fixture->table().open(0, 0));
        QVERIFY(!slider->isBounded() && slider->getMaximum() == 10.0);
        m_fixture->table().typeInto(0, 0, QStringLiteral("25"));
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ 25 ]"));
    }

    void anOpenEditorFollowsTheField()
    {
        KnField& field = m_fixture->show("MFInt32", "[ 1, 2, 3 ]");
        const QPointer<QWidget> editor = m_fixture->table().open(1, 0);
        EditorFixture::write(&field, "[ 1, 7, 3 ]");
        QCOMPARE(TableInput::line(editor)->text(), QStringLiteral("7"));
        EditorFixture::write(&field, "[ 1, 8, 4 ]");
        QCOMPARE(TableInput::line(editor)->text(), QStringLiteral("8"));
        EditorFixture::write(&field, "[ 7, 8, 4, 5 ]");
        QTRY_VERIFY(!editor);
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
        }
        QVERIFY(editor && editor->isVisible());
        scale.release();
    }

    void aRowThatIsLostTakesItsEditorAlong()
    {
        for (const char* type : { "MFFloat", "MFString", "MFTime" }) {
            KnField& field = m_fixture->show(type, "[ 1, 2 ]");
            const QString before = EditorFixture::text(&field);
            m_fixture->table().click(1, 0);
            m_fixture->clickButton("m_addButton");
            QPointer<QWidget> editor = m_fixture->table().type(2, 0, QStringLiteral("5"));
            m_fixture->undoStack().undo(); // the refresh comes later
            m_fixture->press(Qt::Key_Return);
            QTRY_VERIFY(!editor);
            QCOMPARE(EditorFixture::text(&field), before);

            editor = m_fixture->table().type(1, 0, QStringLiteral("5"));
            EditorFixture::write(&field, "[ 1 ]");
            QTRY_VERIFY(!editor);
            QVERIFY(!EditorFixture::text(&field).contains(u'5'));
        }
    }

    void anEditorThatNeverHadTheFocusEndsToo()
    {
        KnMFInt32 first;
        KnMFInt32 second;
        first.set("[ 1, 2, 3 ]");
        second.set("[ 1, 2, 3 ]");
        ProbeEditor editor;
        const TableInput cells(editor.table());
        const auto typeUnfocused = [&](int row, const char* text) {
            editor.activate();
            QVERIFY(QTest::qWaitForWindowExposed(editor.getFrame()));
            m_fixture->shell().window().activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&m_fixture->shell().window()));
            cells->edit(cells->model()->index(row, 0));
            QTest::keyClicks(TableInput::line(cells.openEditor()), QLatin1String(text));
        };
        editor.setEditedObject(&first);
        typeUnfocused(0, "7");
        editor.deactivate();
        QCOMPARE(first[0], 7);
        // A field that comes without a word to the one before is not written for it.
        typeUnfocused(1, "8");
        editor.setEditedObject(&second);
        editor.activate();
        QVERIFY(!cells.openEditor());
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(&first), QStringLiteral("[ 7, 2, 3 ]"));
        QCOMPARE(EditorFixture::text(&second), QStringLiteral("[ 1, 2, 3 ]"));
        editor.deactivate();
    }

    void everythingThatUnicodeHoldsSurvives()
    {
        KnField& field = m_fixture->show("MFString", "[ \"a\", \"b\" ]");
        const QString text = QString::fromUtf8("\xF0\x9F\x98\x80 e\xCC\x81 \xD7\xA9 \xE2\x82\xAC");
        m_fixture->table().type(1, 0, QString())->setText(text);
        m_fixture->press(Qt::Key_Period);
        m_fixture->press(Qt::Key_Return);
        m_fixture->undo();
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ \"a\", \"b\" ]"));
        m_fixture->redo();
        QCOMPARE(toQString(m_fixture->node().MFString[1]), text + u'.');
        // The empty text is a value as any other.
        m_fixture->table().open(0, 0);
        m_fixture->press(Qt::Key_Backspace);
        m_fixture->press(Qt::Key_Return);
        QCOMPARE(toQString(m_fixture->node().MFString[0]), QString());
    }

    void onlyWhatIsSeenIsAsked()
    {
        ProbeEditor probe;
        KnMFInt32 field;
        field.setNum(1'000'000);
        probe.setEditedObject(&field);
        probe.activate();
        QVERIFY(QTest::qWaitForWindowExposed(probe.getFrame()));
        probe.m_rowsAsked.clear();
        probe.table()->showTableRow(500'000);
        probe.updateFromField();
        QTRY_VERIFY(probe.m_rowsAsked.contains(499'999));
        QVERIFY(probe.m_rowsAsked.size() < 100);
        probe.deactivate();
    }

private:
    std::optional<ArrayFixture> m_fixture;
};

QTEST_MAIN(TestArrayEditors)
#include "test_array_editors.moc"
