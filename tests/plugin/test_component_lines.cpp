// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"
#include "TextRows.h"

#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QUndoStack>

namespace {

/// What a person does with one line of an editor that has a line a component.
struct LineEditing {
    const char* type;
    const char* start; ///< text of the field
    int line;
    const char* typed; ///< in place of what the line holds; null leaves it
    Qt::Key key; ///< that ends the typing
    const char* after; ///< text of the field; null if it stays
    int commands;
};

const LineEditing editings[] = {
    // Leaving an untouched line writes nothing.
    { "SFBox2f", "0.12345678 0 1 1", 0, nullptr, Qt::Key_Tab, nullptr, 0 },
    // Leaving an edited one writes what all lines show.
    { "SFBox2f", "0.12345678 0 1 1234567", 2, "2", Qt::Key_Tab, "0.123457 0 2 1234570", 1 },
    { "SFColor", "0.12345678 1 2", 1, "0.25", Qt::Key_Tab, "0.123457 0.25 2", 1 },
    // A rotation is written by Return alone.
    { "SFRotation", "0 0 1 2", 0, "1", Qt::Key_Tab, nullptr, 0 },
    { "SFRotation", "0 0 1 2", 0, "1", Qt::Key_Return, "1 0 1 2", 1 },
    // Return applies an untouched line, too, but no unfinished one.
    { "SFBox2f", "0 0 1 1", 3, nullptr, Qt::Key_Return, nullptr, 1 },
    { "SFBox2f", "5 0 1 1", 0, "-", Qt::Key_Return, nullptr, 0 },
    { "SFVec2f", "5 6", 1, "-", Qt::Key_Tab, nullptr, 0 },
    // A colour takes any text.
    { "SFColor", "1 1 0", 1, "1,5", Qt::Key_Return, "1 0 0", 2 },
};

/// What holds the lines of the editor shown: the popup, which it opens, or the editor's frame.
QWidget* openGrid(EditorFixture& fixture)
{
    auto* const button
        = fixture.editor()->getFrame()->findChild<QPushButton*>(QStringLiteral("m_editButton"));
    if (!button)
        return fixture.editor()->getFrame();
    QTest::mouseClick(button, Qt::LeftButton);
    return fixture.child<QWidget>("m_popupFrame");
}

} // namespace

Q_DECLARE_METATYPE(LineEditing)

class TestComponentLines : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void editing_data()
    {
        QTest::addColumn<LineEditing>("row");
        for (const LineEditing& row : editings)
            QTest::addRow("%s %s %d", row.type, row.start, row.line) << row;
    }
    void editing()
    {
        QFETCH(LineEditing, row);
        EditorFixture fixture;
        KnField* const field = fixture.field(row.type);
        EditorFixture::write(field, row.start);
        const QString start = EditorFixture::text(field);
        fixture.select(field);
        QLineEdit* const line = openGrid(fixture)->findChildren<QLineEdit*>()[row.line];
        QTest::mouseClick(line, Qt::LeftButton);
        line->selectAll();
        if (row.typed)
            QTest::keyClicks(line, QLatin1String(row.typed));
        QCOMPARE(EditorFixture::text(field), start);
        QTest::keyClick(line, row.key);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), row.after ? QString::fromLatin1(row.after) : start);
        QCOMPARE(fixture.undoStack().count(), row.commands);
        if (row.typed && row.commands == 0)
            QCOMPARE(line->text(), QString::fromLatin1(row.typed));

        // What wasn't applied doesn't outlive a refresh.
        EditorFixture::write(field, row.start);
        QVERIFY(!static_cast<WfSFieldWidget*>(fixture.editor())->edited());
        QVERIFY(row.typed == nullptr || line->text() != QLatin1String(row.typed));
    }

    void escDropsWhatIsTyped_data()
    {
        addTextRows({ { "SFInt32" }, { "SFFloat" }, { "SFString" }, { "SFFilePathString" },
            { "SFVec2f" }, { "SFRotation" }, { "SFColorRGBA" }, { "SFBox2f" }, { "SFMatrix" } });
    }
    void escDropsWhatIsTyped()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field(QTest::currentDataTag());
        const QString start = EditorFixture::text(field);
        fixture.select(field);
        // A host may have a use for the key.
        int escapes = 0;
        QShortcut shortcut(Qt::Key_Escape, &fixture.shell().window());
        connect(&shortcut, &QShortcut::activated, this, [&escapes] { ++escapes; });
        const QWidget* const frame = openGrid(fixture);
        const bool isPopup = frame->isWindow();

        QLineEdit* const line = frame->findChildren<QLineEdit*>().last();
        const QString shown = line->text();
        line->setFocus();
        if (!isPopup)
            QTest::keyClick(line, Qt::Key_Escape);
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("777"));
        QTest::keyClick(line, Qt::Key_Escape);
        QCOMPARE(line->text(), shown);
        QCOMPARE(escapes, isPopup ? 0 : 1);
        QCOMPARE(frame->isVisible(), !isPopup);
        QCOMPARE(fixture.undoStack().count(), 0);
        QTest::keyClick(line, Qt::Key_Tab);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), start);
    }

    /// The refresh that follows each line leaves the next one ready to be typed over.
    void tabbingThroughTheLines_data()
    {
        addTextRows({ { "SFVec3f", "7 8 7" }, { "SFBox2f", "7 8 7 1" } });
    }
    void tabbingThroughTheLines()
    {
        const auto [type, text] = textRow<2>();
        EditorFixture fixture;
        KnField* const field = fixture.field(qPrintable(type));
        field->set(QByteArray("1 1 1 1").left(text.size()).constData());
        fixture.select(field);
        const auto lines = openGrid(fixture)->findChildren<QLineEdit*>();
        lines[0]->setFocus(Qt::TabFocusReason);
        for (const Qt::Key key : { Qt::Key_7, Qt::Key_8, Qt::Key_7 }) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            EditorFixture::settle();
        }
        QCOMPARE(EditorFixture::text(field), text);
        QCOMPARE(fixture.undoStack().count(), 3);
        QCOMPARE(lines[0]->cursorPosition(), 0);
    }

    void anUnfinishedLineCountsAsZero()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFVec2f");
        EditorFixture::write(field, "5 6");
        fixture.select(field);
        typeInto(fixture.child<QLineEdit>("SFVec2fBox"), QStringLiteral("-"));
        // A comma is no part of a number, wherever the program runs, nor is a seventh decimal.
        typeIntoLast(fixture, "SFVec2fBox", "1,5.1234567");
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0 15.123456"));
    }

    void spinBoxesStopAtTheEndsOfTheirType_data()
    {
        addTextRows({ { "SFVec2s", "-327689", "-32768" },
            { "SFVec2i32", "21474836479", "2147483647" }, { "SFVec2i32", "1,000", "1000" } });
    }
    void spinBoxesStopAtTheEndsOfTheirType()
    {
        const auto [type, typed, shown] = textRow<3>();
        EditorFixture fixture;
        KnField* const field = fixture.field(qPrintable(type));
        fixture.select(field);
        auto* const box = fixture.child<QSpinBox>("SF2Box");
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, typed);
        EditorFixture::settle();
        QCOMPARE(box->text(), shown);
        // Every change of value was written while the person typed.
        QCOMPARE(EditorFixture::text(field), shown + QStringLiteral(" 0"));
        QVERIFY(fixture.undoStack().count() > 1);
    }
};

QTEST_MAIN(TestComponentLines)
#include "test_component_lines.moc"
