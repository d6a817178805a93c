// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "SliderInput.h"

#include "KnMaterial.h"
#include "StringConversion.h"
#include "WfRealSlider.h"

#include <QCheckBox>

#include <optional>

namespace {

/// Notes the rows that it is asked for.
class ProbeEditor : public WfMFInt32Widget {
public:
    ProbeEditor() { load(); }
    ~ProbeEditor() override { unload(); }

    QString getCellText(int row, int column) override
    {
        m_rowsAsked << row;
        return WfMFInt32Widget::getCellText(row, column);
    }
    WfMFieldTable* table() { return m_table; }

    QSet<int> m_rowsAsked;
};

} // namespace

/// Cell editors, from their opening to their end.
class TestArrayEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture.emplace();
    }
    void cleanup() { m_fixture.reset(); }

    void openingWritesNothing()
    {
        const char* const rows[][2] = {
            { "MFUInt32", "[ 0x0, 0xa, 0xb, 0xffffffff ]" },
            { "MFUShort", "[ 0, 10, 11, 65535 ]" },
            { "MFInt32", "[ 0, -2147483648, 2147483647, 11 ]" },
            { "MFShort", "[ 0, -32768, 32767, 11 ]" },
            { "MFFloat", "[ 0.12345678, inf, 1e+30, nan ]" },
            { "MFDouble", "[ 0.12345678901234568, inf, 1e+300, nan ]" },
            { "MFString", "[ \"\", \"a\\nb\", \"\\\"\", \"x\" ]" },
        };
        for (const auto& [type, values] : rows) {
            const KnField& field = m_fixture->show(type, values);
            for (int row = 0; row < 4; ++row) {
                m_fixture->table().open(row, 0);
                EditorFixture::settle();
                m_fixture->press(row % 2 == 0 ? Qt::Key_Return : Qt::Key_Escape);
                QVERIFY(!m_fixture->table().openEditor());
            }
            QCOMPARE(EditorFixture::text(&field), QLatin1String(values));
        }
        QCOMPARE(m_fixture->commands(), 0);
    }

    void whatWasTypedIsWrittenOnLeaving()
    {
        const struct {
            const char* name;
            int written;
            void (*leave)(ArrayFixture& fixture, const char* type);
        } ways[] = {
            { "Return", 78, [](ArrayFixture& f, const char*) { f.press(Qt::Key_Return); } },
            { "Tab", 78, [](ArrayFixture& f, const char*) { f.press(Qt::Key_Tab); } },
            { "Escape", 1, [](ArrayFixture& f, const char*) { f.press(Qt::Key_Escape); } },
            { "click", 78, [](ArrayFixture& f, const char*) { f.table().click(2, 0); } },
            { "button", 78, [](ArrayFixture& f, const char*) { f.clickButton("m_upButton"); } },
            { "no field", 78, [](ArrayFixture& f, const char*) { f.select(nullptr); } },
            { "editor", 78, [](ArrayFixture& f, const char*) { f.select(f.field("MFFloat")); } },
            { "field", 78, [](ArrayFixture& f, const char* t) { f.select(f.otherField(t)); } },
        };
        for (const auto& [name, written, leave] : ways) {
            // A slider without commands, a line with commands.
            for (const char* type : { "MFInt32", "MFString" }) {
                m_fixture.emplace();
                KnField* const other = m_fixture->otherField(type);
                other->set("[ 1, 2 ]");
                const KnField& field = m_fixture->show(type, "[ 1, 2, 3 ]");
                const QString before = EditorFixture::text(&field) + QLatin1String(name);
                m_fixture->table().type(0, 0, QStringLiteral("78"));
                const QPointer<QWidget> editor = m_fixture->table().openEditor();
                leave(*m_fixture, type);
                QTRY_VERIFY(!editor);
                QCOMPARE(EditorFixture::text(&field) + QLatin1String(name),
                    QString(before).replace(u'1', QString::number(written)));
                QVERIFY(!EditorFixture::text(other).contains(u'7'));
                QCOMPARE(m_fixture->commands(), written == 78 && qstrcmp(type, "MFString") == 0);
            }
        }
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
        // What is being typed stays, also when rows come behind it.
        QTest::keyClicks(TableInput::line(editor), QStringLiteral("55"));
        EditorFixture::write(&field, "[ 1, 7, 3, 4, 5 ]");
        QCOMPARE(TableInput::line(editor)->text(), QStringLiteral("55"));
        // Rows have moved: it would hit another value.
        EditorFixture::write(&field, "[ 7, 3, 4, 5 ]");
        QTRY_VERIFY(!editor);
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ 7, 3, 4, 5 ]"));
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

    void kindsFixTheEditor()
    {
        // A text that a line takes, and one that it refuses, by kind.
        const char* const texts[][2] = { { "anything", "" }, { "-32767", "-32768" },
            { "65535", "-1" }, { "2147483647", "2147483648" }, { "4294967295", "4294967296" },
            { "-2147483647", "-2147483648" }, { "4294967295", "4294967296" }, { "3.4e38", "0,5" },
            { "1.7e308", "0,5" } };
        ProbeEditor probe;
        probe.table()->setRowCount(1);
        const auto makeEditor = [&probe](int columns) {
            probe.table()->setColumnCount(columns);
            return std::unique_ptr<QWidget>(probe.table()->itemDelegate()->createEditor(
                nullptr, QStyleOptionViewItem(), probe.table()->model()->index(0, 0)));
        };
        QString sliders;
        QString taken;
        for (int kind = 0; kind < 9; ++kind) {
            probe.table()->setEditorKind(kind);
            if (qobject_cast<WfSlider*>(makeEditor(1).get()))
                sliders += QString::number(kind);
            const auto editor = makeEditor(2);
            QLineEdit* const line = TableInput::line(editor.get());
            for (const char* text : texts[kind]) {
                line->setText(QLatin1String(text));
                taken += line->hasAcceptableInput() ? u'+' : u'-';
            }
        }
        QCOMPARE(sliders + taken, QStringLiteral("12567++") + QStringLiteral("+-").repeated(8));
    }

private:
    std::optional<ArrayFixture> m_fixture;
};

QTEST_MAIN(TestArrayEditors)
#include "test_array_editors.moc"
