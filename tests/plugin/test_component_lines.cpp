// SPDX-License-Identifier: BSD-3-Clause
#include "ComponentValidator.h"
#include "EditorRow.h"

#include <QLineEdit>
#include <QPushButton>
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
    { "SFVec3f", "0.12345678 1 2", 0, nullptr, Qt::Key_Tab, nullptr, 0 },
    { "SFColor", "0.12345678 1 2", 0, nullptr, Qt::Key_Tab, nullptr, 0 },
    // Leaving an edited one, or closing the popup, writes what all lines show.
    { "SFBox2f", "0.12345678 0 1 1234567", 2, "2", Qt::Key_Tab, "0.123457 0 2 1234570", 1 },
    { "SFBox2f", "0 0 0 0", 1, "7", Qt::Key_Escape, "0 7 0 0", 1 },
    { "SFBox3s", "0 0 0 0 0 0", 0, "-327689", Qt::Key_Tab, "-32768 0 0 0 0 0", 1 },
    { "SFPlane", "0.12345678 0 1 1", 3, "-1.5e3", Qt::Key_Tab, "0.123457 0 1 -1500", 1 },
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
        QWidget* frame = fixture.editor()->getFrame();
        if (auto* button = frame->findChild<QPushButton*>(QStringLiteral("m_editButton"))) {
            QTest::mouseClick(button, Qt::LeftButton);
            frame = fixture.child<QWidget>("m_popupFrame");
        }

        QLineEdit* const line = frame->findChildren<QLineEdit*>()[row.line];
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

    void anUnfinishedLineCountsAsZero()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFVec2f");
        EditorFixture::write(field, "5 6");
        fixture.select(field);
        const auto lines
            = fixture.editor()->getFrame()->findChildren<QLineEdit*>(QStringLiteral("SFVec2fBox"));
        typeInto(lines[0], QStringLiteral("-"));
        typeInto(lines[1], QStringLiteral("1,5.1234567"));
        EditorFixture::settle();
        // A comma is no part of a number, wherever the program runs, nor is a seventh decimal.
        QCOMPARE(EditorFixture::text(field), QStringLiteral("0 15.123456"));
    }

    void validators()
    {
        const std::tuple<int, const char*, const char*> rows[] = {
            { 1, "-32768", "-32768" },
            { 1, "327678", "32767" },
            { 2, "-2147483648", "-2147483648" },
            { 2, "2147483647.8", "2147483647" },
            { 3, "-1.2345678e3", "-1.234567e3" },
            { 4, "0,123456789012", "0123456789012" },
        };
        for (const auto& [kind, typed, taken] : rows) {
            QLineEdit line;
            setComponentValidator(kind, &line);
            QTest::keyClicks(&line, QLatin1String(typed));
            QCOMPARE(line.text(), QLatin1String(taken));
            // An unknown kind leaves the validator, 0 takes it away.
            const QValidator* const validator = line.validator();
            setComponentValidator(9, &line);
            QCOMPARE(line.validator(), validator);
            setComponentValidator(0, &line);
            QVERIFY(!line.validator());
        }
    }
};

QTEST_MAIN(TestComponentLines)
#include "test_component_lines.moc"
