// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "SliderInput.h"

#include "KnMaterial.h"
#include "StringConversion.h"
#include "WfRealSlider.h"

#include <QCheckBox>
#include <QValidator>

#include <functional>
#include <optional>

namespace {

/// An owner whose table can be given any kind; it notes the rows that it is asked for.
class ProbeEditor : public WfMFieldWidget {
public:
    ProbeEditor()
        : WfMFieldWidget("ProbeEditor")
    {
        setLabel(QStringLiteral("Probe"));
        load();
        m_table->setColumnCount(1);
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

using Leave = std::function<void(ArrayFixture&)>;

} // namespace

Q_DECLARE_METATYPE(Leave)

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

    void openingWritesNothing_data()
    {
        QTest::addColumn<QByteArray>("values");
        QTest::newRow("MFUInt32") << QByteArray("[ 0x0, 0xa, 0xb, 0xffffffff ]");
        QTest::newRow("MFUShort") << QByteArray("[ 0, 10, 11, 65535 ]");
        QTest::newRow("MFInt32") << QByteArray("[ 0, -2147483648, 2147483647, 11 ]");
        QTest::newRow("MFShort") << QByteArray("[ 0, -32768, 32767, 11 ]");
        QTest::newRow("MFFloat") << QByteArray("[ 0.12345678, inf, 1e+30, nan ]");
        QTest::newRow("MFDouble") << QByteArray("[ 0.12345678901234568, inf, 1e+300, nan ]");
        QTest::newRow("MFString") << QByteArray("[ \"\", \"a\\nb\", \"\\\"\", \"x\" ]");
    }
    void openingWritesNothing()
    {
        QFETCH(QByteArray, values);
        KnField& field = m_fixture->show(QTest::currentDataTag(), values);
        for (int row = 0; row < 4; ++row) {
            m_fixture->table().open(row, 0);
            EditorFixture::settle();
            m_fixture->press(row % 2 == 0 ? Qt::Key_Return : Qt::Key_Escape);
            QVERIFY(!m_fixture->table().openEditor());
        }
        QCOMPARE(EditorFixture::text(&field), QString::fromLatin1(values));
        QCOMPARE(m_fixture->commands(), 0);
    }

    void whatWasTypedIsWrittenOnLeaving_data()
    {
        QTest::addColumn<Leave>("leave");
        QTest::addColumn<int>("written");
        const auto add = [](const char* name, const Leave& leave, int written = 78) {
            QTest::newRow(name) << leave << written;
        };
        add("Return", [](ArrayFixture& fixture) { fixture.press(Qt::Key_Return); });
        add("Tab", [](ArrayFixture& fixture) { fixture.press(Qt::Key_Tab); });
        add(
            "Escape", [](ArrayFixture& fixture) { fixture.press(Qt::Key_Escape); }, 1);
        add("click", [](ArrayFixture& fixture) { fixture.table().click(2, 0); });
        add("row button", [](ArrayFixture& fixture) { fixture.clickButton("m_upButton"); });
        add("no field", [](ArrayFixture& fixture) { fixture.select(nullptr); });
        add("another editor",
            [](ArrayFixture& fixture) { fixture.select(&fixture.otherNode().MFFloat); });
        add("the same editor", [](ArrayFixture& fixture) {
            const bool isString = fixture.editor()->getEditedObject() == &fixture.node().MFString;
            fixture.select(fixture.otherField(isString ? "MFString" : "MFInt32"));
        });
    }
    void whatWasTypedIsWrittenOnLeaving()
    {
        QFETCH(Leave, leave);
        QFETCH(int, written);
        // A slider without commands, a line with commands.
        for (const char* type : { "MFInt32", "MFString" }) {
            KnField& other = *m_fixture->otherField(type);
            other.set("[ 1, 2 ]");
            const QString before = EditorFixture::text(&other);
            const QString after = QString(before).replace(u'1', QString::number(written));
            KnField& field = m_fixture->show(type, "[ 1, 2, 3 ]");
            m_fixture->table().type(0, 0, QStringLiteral("78"));
            const QPointer<QWidget> editor = m_fixture->table().openEditor();
            leave(*m_fixture);
            QTRY_VERIFY(!editor);
            QVERIFY(EditorFixture::text(&field).startsWith(after.chopped(2)));
            QCOMPARE(EditorFixture::text(&other), before);
            QCOMPARE(m_fixture->commands(), written == 78 && qstrcmp(type, "MFString") == 0);
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
        for (KnMFInt32* field : { &first, &second })
            field->set("[ 1, 2, 3 ]");
        WfMFInt32Widget editor;
        editor.load();
        const TableInput cells(editor.getFrame()->findChild<WfMFieldTable*>());
        editor.setEditedObject(&first);
        editor.activate();
        QVERIFY(QTest::qWaitForWindowExposed(editor.getFrame()));
        const auto typeUnfocused = [this, &cells](int row, const char* text) {
            QMainWindow& otherWindow = m_fixture->shell().window();
            otherWindow.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&otherWindow));
            cells->edit(cells->model()->index(row, 0));
            QTest::keyClicks(TableInput::line(cells.openEditor()), QLatin1String(text));
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

    void anArrayWithoutANodeHasNoDefault()
    {
        KnMFFloat alone;
        alone.set("[ 1 ]");
        m_fixture->select(&alone);
        m_fixture->clickButton("m_defaultButton");
        QCOMPARE(EditorFixture::text(&alone), QStringLiteral("[ 1 ]"));
        QCOMPARE(m_fixture->commands(), 0);
        m_fixture->select(nullptr);
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
        probe.table().showTableRow(500'000);
        probe.updateFromField();
        QTRY_VERIFY(probe.m_rowsAsked.contains(499'999));
        QVERIFY(probe.m_rowsAsked.size() < 100);
        probe.deactivate();
    }

    void kindsFixTheEditor_data()
    {
        QTest::addColumn<bool>("isSlider");
        QTest::addColumn<QString>("accepted");
        QTest::addColumn<QString>("refused"); // null: there is no validator
        QTest::newRow("0") << false << "anything" << QString();
        QTest::newRow("1") << true << "-32767"
                           << "-32768";
        QTest::newRow("2") << true << "65535"
                           << "-1";
        QTest::newRow("3") << false << "2147483647"
                           << "2147483648";
        QTest::newRow("4") << false << "4294967295"
                           << "4294967296";
        QTest::newRow("5") << true << "-2147483647"
                           << "-2147483648";
        QTest::newRow("6") << true << "4294967295"
                           << "4294967296";
        QTest::newRow("7") << true << "3.4e38"
                           << "0,5";
        QTest::newRow("8") << false << "1.7e308"
                           << "0,5";
    }
    void kindsFixTheEditor()
    {
        QFETCH(bool, isSlider);
        QFETCH(QString, accepted);
        QFETCH(QString, refused);
        ProbeEditor probe;
        probe.table().setEditorKind(QByteArray(QTest::currentDataTag()).toInt());
        probe.table().setRowCount(1);
        const auto makeEditor = [&probe] {
            return std::unique_ptr<QWidget>(probe.table().itemDelegate()->createEditor(
                nullptr, QStyleOptionViewItem(), probe.table().model()->index(0, 0)));
        };
        QCOMPARE(qobject_cast<WfSlider*>(makeEditor().get()) != nullptr, isSlider);
        probe.table().setColumnCount(2);
        const auto editor = makeEditor();
        const QValidator* const validator = TableInput::line(editor.get())->validator();
        QCOMPARE(validator == nullptr, refused.isNull());
        int at = 0;
        if (validator) {
            QCOMPARE(validator->validate(accepted, at), QValidator::Acceptable);
            QVERIFY(validator->validate(refused, at) != QValidator::Acceptable);
        }
    }

private:
    std::optional<ArrayFixture> m_fixture;
};

QTEST_MAIN(TestArrayEditors)
#include "test_array_editors.moc"
