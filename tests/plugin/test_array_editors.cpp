// SPDX-License-Identifier: BSD-3-Clause
#include "CrvStrings.h"
#include "EditorFixture.h"
#include "SliderInput.h"
#include "TextRows.h"

#include "KnMaterial.h"
#include "WfRealSlider.h"

#include <QCheckBox>
#include <QSpinBox>

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

/// What cell editors show and write, and the arrays that they belong to.
class TestArrayEditors : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void openingWritesNothing_data()
    {
        addTextRows({
            { "MFUInt32", "[ 0x0, 0xa, 0xb, 0xffffffff ]" },
            { "MFUShort", "[ 0, 10, 11, 65535 ]" },
            { "MFInt32", "[ 0, -2147483648, 2147483647, 11 ]" },
            { "MFShort", "[ 0, -32768, 32767, 11 ]" },
            { "MFFloat", "[ 0.12345678, inf, 1e+30, nan ]" },
            { "MFDouble", "[ 0.12345678901234568, inf, 1e+300, nan ]" },
            { "MFString", "[ \"\", \"a\\nb\", \"\\\"\", \"x\" ]" },
        });
    }

    void openingWritesNothing()
    {
        const auto [type, values] = textRow<2>();
        const KnField& field = show(type, values);
        for (int row = 0; row < 4; ++row) {
            table().open(row, 0);
            settle();
            press(row % 2 == 0 ? Qt::Key_Return : Qt::Key_Escape);
            QVERIFY(!table().openEditor());
        }
        QCOMPARE(text(&field), values);
        QCOMPARE(commands(), 0);
    }

    void aDragWritesTheCell()
    {
        show("MFFloat", "[ 0, 0 ]");
        const KnMFFloat& field = node().MFFloat;
        QWidget* const editor = table().open(1, 0);
        SliderInput scale(editor->findChild<QSlider*>());
        scale.press();
        scale.moveBy(30);
        settle();
        const float moved = field[1];
        QVERIFY(moved > 0);
        QCOMPARE(table().openEditor(), editor);

        // With the check box clear the field waits for the release; a selection in the midst of
        // the drag counts as one.
        editor->findChild<QCheckBox*>()->setChecked(false);
        scale.moveBy(10);
        QCOMPARE(field[1], moved);
        const QString shown = TableInput::line(editor)->text();
        select(&otherNode().MFFloat);
        QVERIFY(field[1] > moved);
        QCOMPARE(QString::number(static_cast<double>(field[1]), 'f', 6), shown);
        QCOMPARE(otherNode().MFFloat.getNum(), 0);
        QCOMPARE(commands(), 0);
    }

    void ratiosStayRatiosInACell()
    {
        auto* const material = new KnMaterial;
        material->ref();
        material->shininess.set("[ 0.25, 0.5 ]");
        select(&material->shininess);
        table().type(0, 0, QStringLiteral("7"));
        table().click(1, 0);
        QCOMPARE(text(&material->shininess), QStringLiteral("[ 0.25, 0.5 ]"));
        const auto* slider = static_cast<WfRealSlider*>(table().open(0, 0));
        QVERIFY(slider->isBounded() && slider->getMaximum() == 1.0);
        select(nullptr);
        material->unref();

        // The same editor object, for a field of any other node.
        KnField& field = show("MFFloat", "[ 0.25 ]");
        slider = static_cast<WfRealSlider*>(table().open(0, 0));
        QVERIFY(!slider->isBounded() && slider->getMaximum() == 10.0);
        table().typeInto(0, 0, QStringLiteral("25"));
        QCOMPARE(text(&field), QStringLiteral("[ 25 ]"));
    }

    void anOpenEditorFollowsTheField()
    {
        KnField& field = show("MFInt32", "[ 1, 2, 3 ]");
        const QPointer<QWidget> editor = table().open(1, 0);
        write(&field, "[ 1, 8, 4 ]");
        QCOMPARE(TableInput::line(editor)->text(), QStringLiteral("8"));
        write(&field, "[ 7, 8, 4, 5 ]");
        QTRY_VERIFY(!editor);
    }

    void everythingThatUnicodeHoldsSurvives()
    {
        const KnMFString& field = node().MFString;
        show("MFString", "[ \"a\\n\\\"\", \"b\" ]");
        const QString text = QString::fromUtf8("\xF0\x9F\x98\x80 e\xCC\x81 \xD7\xA9 \xE2\x82\xAC");
        table().type(1, 0, QString())->setText(text);
        press(Qt::Key_Period);
        press(Qt::Key_Return);
        undo();
        QCOMPARE(toQString(field[1]), QStringLiteral("b"));
        redo();
        QCOMPARE(toQString(field[1]), text + u'.');
        // The empty text is a value as any other.
        table().open(0, 0);
        press(Qt::Key_Backspace);
        press(Qt::Key_Return);
        QCOMPARE(toQString(field[0]), QString());
        undo();
        QCOMPARE(toQString(field[0]), QStringLiteral("a\n\""));
    }

    void anEditGoesBackBitForBit_data()
    {
        addTextRows({
            { "MFVec2f", "[ 0.1 1e-40, -0 3.4028235e+38, 16777217 1.1754944e-38 ]" },
            { "MFRotation", "[ 0.1 0.2 0.3 0.4, 1 2 3 4.5, 0.70710677 0 0.3 6.2831855 ]" },
            { "MFPlane", "[ 0.1 0.2 0.3 0.4, 1 2 3 4.5, 0.70710677 0 0.3 1e-40 ]" },
            { "MFColor", "[ 0.1 0.2 0.3, 1e-40 0.70710677 1, 0.12345679 0 2.5 ]" },
        });
    }

    void anEditGoesBackBitForBit()
    {
        const auto [type, values] = textRow<2>();
        KnField& field = show(type, values);
        const QString before = text(&field);
        for (const char* button : { "", "m_addButton", "m_deleteButton", "m_upButton" }) {
            table()->setCurrentCell(2, 1);
            child<QSpinBox>("m_accessBox")->setValue(3);
            if (*button)
                clickButton(button);
            else
                table().typeInto(1, 1, QStringLiteral("0.25"));
            const QString edited = text(&field);
            QVERIFY(edited != before);
            undo();
            QCOMPARE(text(&field), before);
            redo();
            QCOMPARE(text(&field), edited);
            undo();
        }
    }

    void typing_data()
    {
        // Into the second column. Return in a line that nobody changed writes the value that is
        // there, of which the line shows six digits; so does typing these digits.
        addTextRows({
            { "MFVec2f", "[ 8 8 ]", "1234567.8", "[ 8 1234567.8 ]" },
            { "MFVec2f", "[ 8 8 ]", "1,5", "[ 8 15 ]" },
            { "MFVec2f", "[ 8 8 ]", "1e39", "[ 8 8 ]" },
            { "MFVec2i32", "[ 8 8 ]", "1.5", "[ 8 15 ]" },
            { "MFVec2i32", "[ 8 8 ]", "2147483648", "[ 8 8 ]" },
            { "MFVec2s", "[ 8 8 ]", "-32768", "[ 8 -32768 ]" },
            { "MFVec2s", "[ 8 8 ]", "32768", "[ 8 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "0.123457", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "-0.000001", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "1", "[ 1 0 0 ]" },
            { "MFColorRGBA", "[ 0 0 0 1 ]", "1.5", "[ 0 0 0 1 ]" },
        });
    }

    void typing()
    {
        const auto [type, start, typed, end] = textRow<4>();
        const KnField& field = show(type, start);
        QLineEdit* const line = TableInput::line(table().open(0, 1));
        if (!typed.isEmpty())
            line->selectAll();
        QTest::keyClicks(line, typed);
        press(Qt::Key_Return);
        QCOMPARE(text(&field), end);
        const bool isShown = typed.isEmpty() || typed == u"0.123457";
        QCOMPARE(commands(), start != end || isShown ? 1 : 0);
    }

    void noMoreRowsAreAskedForThanShown()
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
};

QTEST_MAIN(TestArrayEditors)
#include "test_array_editors.moc"
