// SPDX-License-Identifier: BSD-3-Clause
#include "SliderInput.h"
#include "TableInput.h"

#include "KnMaterial.h"
#include "StringConversion.h"
#include "WfRealSlider.h"

#include <QCheckBox>
#include <QDoubleValidator>
#include <QUndoStack>

#include <functional>

namespace {

/// An owner whose table can be given any kind; it says what it is asked.
class ProbeEditor : public WfMFieldWidget {
public:
    ProbeEditor()
        : WfMFieldWidget("ProbeEditor")
    {
        setLabel(QStringLiteral("Probe"));
        load();
    }
    ~ProbeEditor() override { unload(); }

    QString getCellText(int row, int) override
    {
        m_rowsAsked << row;
        return QStringLiteral("1");
    }
    bool acceptsField(KnField*) override { return true; }

    WfMFieldTable& table() { return *m_table; }

    QSet<int> m_rowsAsked;
};

using Leave = std::function<void(EditorFixture&)>;

void pressInEditor(int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }

} // namespace

Q_DECLARE_METATYPE(Leave)

/// Cell editors, from their opening to their end.
class TestArrayEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture = std::make_unique<EditorFixture>();
    }
    void cleanup() { m_fixture.reset(); }

    void openingWritesNothing_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("values");
        const char* const rows[][2] = { { "MFUInt32", "[ 0x0, 0xa, 0xb, 0xffffffff ]" },
            { "MFUShort", "[ 0, 10, 11, 65535 ]" },
            { "MFInt32", "[ 0, -2147483648, 2147483647, 11 ]" },
            { "MFShort", "[ 0, -32768, 32767, 11 ]" },
            { "MFFloat", "[ 0.12345678, inf, 1e+30, nan ]" },
            { "MFDouble", "[ 0.12345678901234568, inf, 1e+300, nan ]" },
            { "MFTime", "[ 0, 1, 2, 3 ]" },
            { "MFString", "[ \"\", \"a\\nb\", \"\\\"\", \"x\" ]" } };
        for (const auto& row : rows)
            QTest::newRow(row[0]) << row[0] << row[1];
    }
    void openingWritesNothing()
    {
        QFETCH(QString, type);
        QFETCH(QString, values);
        KnField* const field = m_fixture->field(type.toLatin1());
        QVERIFY(field->set(toKbString(values)));
        const QString before = EditorFixture::text(field);
        m_fixture->select(field);
        for (int row = 0; row < 4; ++row) {
            table().open(row, 0);
            EditorFixture::settle();
            QCOMPARE(EditorFixture::text(field), before);
            pressInEditor(row % 2 == 0 ? Qt::Key_Return : Qt::Key_Escape);
            EditorFixture::settle();
            QVERIFY(!table().openEditor());
        }
        QCOMPARE(EditorFixture::text(field), before);
        QCOMPARE(stack().count(), 0);
    }

    void whatWasTypedIsWrittenOnLeaving_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<Leave>("leave");
        QTest::addColumn<bool>("isWritten");
        const QPair<const char*, Leave> ways[] = {
            { "Return", [](EditorFixture&) { pressInEditor(Qt::Key_Return); } },
            { "Tab", [](EditorFixture&) { pressInEditor(Qt::Key_Tab); } },
            { "click", [](EditorFixture& fixture) { TableInput(fixture).click(2, 0); } },
            { "focus",
                [](EditorFixture& fixture) { fixture.child<QWidget>("m_accessBox")->setFocus(); } },
            { "row button",
                [](EditorFixture& fixture) {
                    auto* const up = fixture.child<QAbstractButton>("m_upButton");
                    QTest::mouseClick(up, Qt::LeftButton);
                } },
            { "other field",
                [](EditorFixture& fixture) { fixture.select(&fixture.otherNode().MFFloat); } },
            { "other field of the type",
                [](EditorFixture& fixture) {
                    fixture.select(fixture.editor()->getEditedObject() == &fixture.node().MFString
                            ? static_cast<KnField*>(&fixture.otherNode().MFString)
                            : &fixture.otherNode().MFInt32);
                } },
            { "no field", [](EditorFixture& fixture) { fixture.select(nullptr); } },
            { "Escape", [](EditorFixture&) { pressInEditor(Qt::Key_Escape); } },
        };
        for (const char* type : { "MFInt32", "MFString" }) {
            for (const auto& [name, leave] : ways)
                QTest::addRow("%s, %s", type, name)
                    << type << leave << (qstrcmp(name, "Escape") != 0);
        }
    }
    void whatWasTypedIsWrittenOnLeaving()
    {
        QFETCH(QString, type);
        QFETCH(Leave, leave);
        QFETCH(bool, isWritten);
        KnField* const field = m_fixture->field(type.toLatin1());
        KnField* const other = m_fixture->otherField(type.toLatin1());
        for (KnField* each : { field, other })
            QVERIFY(each->set("[ 1, 2, 3 ]"));
        const QString before = EditorFixture::text(other);
        m_fixture->select(field);
        table().type(0, 0, QStringLiteral("78"));
        const QPointer<QWidget> editor = table().openEditor();
        leave(*m_fixture);
        EditorFixture::settle();
        QTRY_VERIFY(!editor);
        QCOMPARE(EditorFixture::text(field),
            isWritten ? QString(before).replace(u'1', QStringLiteral("78")) : before);
        QCOMPARE(EditorFixture::text(other), before);
        QCOMPARE(stack().count(), isWritten && type == QStringLiteral("MFString") ? 1 : 0);
    }

    void tabOpensTheNextRow()
    {
        for (const char* type : { "MFFloat", "MFDouble" }) {
            KnField* const field = m_fixture->field(type);
            field->set("[ 1, 2, 3 ]");
            m_fixture->select(field);
            table().type(0, 0, QStringLiteral("5"));
            for (const char* text : { "6", "7" }) {
                pressInEditor(Qt::Key_Tab);
                EditorFixture::settle();
                QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
            }
            pressInEditor(Qt::Key_Return);
            EditorFixture::settle();
            QCOMPARE(EditorFixture::text(field), QStringLiteral("[ 5, 6, 7 ]"));
            QVERIFY(table()->hasFocus());
            // The table takes keys for itself again.
            pressInEditor(Qt::Key_Up);
            QCOMPARE(table()->currentRow(), 1);
        }
    }

    void aDragWritesTheCell()
    {
        KnMFFloat& field = m_fixture->node().MFFloat;
        field.set("[ 0, 0 ]");
        m_fixture->select(&field);
        QWidget* const editor = table().open(1, 0);
        SliderInput scale(editor->findChild<QSlider*>());
        scale.press();
        scale.moveBy(30);
        EditorFixture::settle();
        const float moved = field[1];
        QVERIFY(moved > 0);
        QCOMPARE(table().openEditor(), editor);

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
        QCOMPARE(stack().count(), 0);
    }

    void ratiosStayRatiosInACell()
    {
        auto* const material = new KnMaterial;
        material->ref();
        KnMFFloat& ratios = material->shininess;
        ratios.set("[ 0.25, 0.5 ]");
        m_fixture->select(&ratios);
        auto* slider = static_cast<WfRealSlider*>(table().open(0, 0));
        QCOMPARE(slider->getMaximum(), 1.0);
        QVERIFY(slider->isBounded());
        TableInput::line(slider)->selectAll();
        QTest::keyClicks(slider->m_lineEdit, QStringLiteral("7"));
        table().click(1, 0);
        QCOMPARE(EditorFixture::text(&ratios), QStringLiteral("[ 0.25, 0.5 ]"));
        m_fixture->select(nullptr);
        stack().clear();
        material->unref();

        // The same editor object, for a field of any other node.
        m_fixture->node().MFFloat.set("[ 0.25 ]");
        m_fixture->select(&m_fixture->node().MFFloat);
        slider = static_cast<WfRealSlider*>(table().open(0, 0));
        QCOMPARE(slider->getMaximum(), 10.0);
        QVERIFY(!slider->isBounded());
        table().typeInto(0, 0, QStringLiteral("25"));
        QCOMPARE(m_fixture->node().MFFloat[0], 25.0F);
    }

    void anOpenEditorFollowsTheField()
    {
        KnMFInt32& field = m_fixture->node().MFInt32;
        field.set("[ 1, 2, 3 ]");
        m_fixture->select(&field);
        QPointer<QWidget> editor = table().open(1, 0);
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

    void aRowThatIsLostTakesItsEditorAlong_data()
    {
        QTest::addColumn<QString>("type");
        for (const char* type : { "MFFloat", "MFString", "MFTime" })
            QTest::newRow(type) << type;
    }
    void aRowThatIsLostTakesItsEditorAlong()
    {
        QFETCH(QString, type);
        KnField* const field = m_fixture->field(type.toLatin1());
        QVERIFY(field->set("[ 1, 2 ]"));
        const QString before = EditorFixture::text(field);
        m_fixture->select(field);
        table().click(1, 0);
        QTest::keyClick(table().operator->(), Qt::Key_Plus);
        EditorFixture::settle();
        QPointer<QWidget> editor = table().type(2, 0, QStringLiteral("5"));
        stack().undo(); // the refresh comes later
        QTest::keyClick(editor, Qt::Key_Return);
        EditorFixture::settle();
        QTRY_VERIFY(!editor);
        QCOMPARE(EditorFixture::text(field), before);

        editor = table().type(1, 0, QStringLiteral("5"));
        EditorFixture::write(field, "[ 1 ]");
        QTRY_VERIFY(!editor);
        QCOMPARE(table()->rowCount(), 1);
        QVERIFY(!EditorFixture::text(field).contains(u'5'));
    }

    void anEditorThatNeverHadTheFocusEndsToo()
    {
        KnMFInt32 first;
        KnMFInt32 second;
        for (KnMFInt32* field : { &first, &second })
            field->set("[ 1, 2, 3 ]");
        WfMFInt32Widget editor;
        editor.load();
        editor.getFrame()->setAttribute(Qt::WA_ShowWithoutActivating);
        const TableInput cells(editor.getFrame()->findChild<WfMFieldTable*>());
        editor.setEditedObject(&first);
        editor.activate();
        QVERIFY(QTest::qWaitForWindowExposed(editor.getFrame()));
        const auto typeUnfocused = [&cells](int row, const char* text) {
            cells->edit(cells->model()->index(row, 0));
            QLineEdit* const line = TableInput::line(cells.openEditor());
            QVERIFY(!line->hasFocus());
            QTest::keyClicks(line, QLatin1String(text));
        };
        typeUnfocused(0, "7");
        editor.deactivate();
        QCOMPARE(first[0], 7);
        // A field that comes without a word to the one before is not written for it.
        editor.activate();
        typeUnfocused(1, "8");
        editor.setEditedObject(&second);
        editor.activate();
        QVERIFY(!cells.openEditor());
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(&first), QStringLiteral("[ 7, 2, 3 ]"));
        QCOMPARE(EditorFixture::text(&second), QStringLiteral("[ 1, 2, 3 ]"));
        editor.deactivate();
        editor.unload();
    }

    void everythingThatUnicodeHoldsSurvives()
    {
        KnMFString& field = m_fixture->node().MFString;
        field.set("[ \"a\", \"b\" ]");
        m_fixture->select(&field);
        const QString text
            = QString::fromUtf8("\xF0\x9F\x98\x80 e\xCC\x81 \xD7\xA9 \" \\ \xE2\x82\xAC");
        table().type(1, 0, QString())->setText(text);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("."));
        pressInEditor(Qt::Key_Return);
        EditorFixture::settle();
        m_fixture->undo();
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ \"a\", \"b\" ]"));
        m_fixture->redo();
        QCOMPARE(toQString(field[1]), text + u'.');
        // The empty text is a value as any other.
        table().type(0, 0, QStringLiteral(" "))->clear();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        pressInEditor(Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(toQString(field[0]), QString());
    }

    void aRowOfAnArrayWithoutANodeHasNoDefault()
    {
        KnMFFloat alone;
        alone.set("[ 1 ]");
        m_fixture->select(&alone);
        QTest::mouseClick(m_fixture->child<QAbstractButton>("m_defaultButton"), Qt::LeftButton);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(&alone), QStringLiteral("[ 1 ]"));
        QCOMPARE(stack().count(), 0);
        m_fixture->select(nullptr);
    }

    void onlyWhatIsSeenIsAsked()
    {
        ProbeEditor probe;
        KnMFInt32 field;
        field.setNum(1'000'000);
        probe.table().setColumnCount(1);
        probe.setEditedObject(&field);
        probe.activate();
        QVERIFY(QTest::qWaitForWindowExposed(probe.getFrame()));
        probe.m_rowsAsked.clear();
        probe.table().showTableRow(500'000);
        probe.updateFromField();
        QTRY_VERIFY(probe.m_rowsAsked.contains(499'999));
        QVERIFY(probe.m_rowsAsked.size() < 100);
        const QSet<int> seen = probe.m_rowsAsked;
        QVERIFY(*std::min_element(seen.begin(), seen.end()) > 499'000);
        probe.deactivate();
    }

    void kindsFixTheEditor_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("slider");
        QTest::addColumn<QString>("accepted");
        QTest::addColumn<QString>("refused");
        const auto row
            = [](int kind, const char* slider, const char* accepted, const char* refused) {
                  QTest::addRow("%d", kind) << kind << slider << accepted << refused;
              };
        row(0, "", "anything", "");
        row(1, "signed", "-32767", "-32768");
        row(2, "unsigned", "65535", "-1");
        row(3, "", "2147483647", "2147483648");
        row(4, "", "4294967295", "4294967296");
        row(5, "signed", "-2147483647", "-2147483648");
        row(6, "unsigned", "4294967295", "4294967296");
        row(7, "real", "3.4e38", "0,5");
        row(8, "", "1.7e308", "0,5");
    }
    void kindsFixTheEditor()
    {
        QFETCH(int, kind);
        QFETCH(QString, slider);
        QFETCH(QString, accepted);
        QFETCH(QString, refused);
        ProbeEditor probe;
        probe.table().setEditorKind(kind);
        const QAbstractItemDelegate* const delegate = probe.table().itemDelegate();
        for (const int columns : { 1, 2 }) {
            probe.table().setColumnCount(columns);
            probe.table().setRowCount(1);
            const std::unique_ptr<QWidget> editor(delegate->createEditor(
                nullptr, QStyleOptionViewItem(), probe.table().model()->index(0, 0)));
            const auto* const line = qobject_cast<QLineEdit*>(editor.get());
            QCOMPARE(line == nullptr, columns == 1 && !slider.isEmpty());
            if (!line)
                continue;
            QCOMPARE(line->objectName(), QStringLiteral("qt_lineeditor"));
            int at = 0;
            if (line->validator()) {
                QCOMPARE(line->validator()->validate(accepted, at), QValidator::Acceptable);
                QVERIFY(line->validator()->validate(refused, at) != QValidator::Acceptable);
            } else {
                QCOMPARE(kind, 0);
            }
        }
    }

private:
    TableInput table() const { return TableInput(*m_fixture); }
    QUndoStack& stack() const { return m_fixture->undoStack(); }

    std::unique_ptr<EditorFixture> m_fixture;
};

QTEST_MAIN(TestArrayEditors)
#include "test_array_editors.moc"
