// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

#include "TableInput.h"

#include <QAbstractButton>
#include <QSpinBox>

namespace {

/// What the table's cells show, written as the text of a field is.
QString cellsShown(EditorFixture& fixture)
{
    auto* const editor = static_cast<WfMFieldWidget*>(fixture.editor());
    const TableInput table(fixture);
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column)
            cells << editor->getCellText(row, column);
        rows << cells.join(u' ');
    }
    return rows.isEmpty() ? QStringLiteral("[]")
                          : QStringLiteral("[ %1 ]").arg(rows.join(QStringLiteral(", ")));
}

/// Types into a cell of the second row.
template <const char* text, int column = 0>
void typeIntoRow1(EditorFixture& fixture)
{
    TableInput(fixture).typeInto(1, column, QLatin1String(text));
}

/// Goes to the first row, opens the popup, types into its last line, and closes the popup.
void editMatrix(EditorFixture& fixture)
{
    QTest::keyClick(fixture.child<QSpinBox>("m_accessBox"), Qt::Key_Return);
    auto* const button = fixture.child<QAbstractButton>("m_editButton");
    QTest::mouseClick(button, Qt::LeftButton);
    typeIntoLast(fixture, "m_lineEdits", "9");
    QTest::mouseClick(button, Qt::LeftButton);
}

constexpr char Seven[] = "7";
constexpr char Word[] = "word";
constexpr char Half[] = "0.5";

} // namespace

std::vector<EditorCase> arrayCases()
{
    // A row is packed, or the table would take a line a field.
    // clang-format off
    std::vector<EditorCase> cases {
        { .type = "MFColor", .start = "[ 0 0.5 1, 0.12345679 2 0 ]", .act = typeIntoRow1<Half, 3>,
            .edited = "[ 0 0.5 1, 0.12345679 2 0.5 ]", .outside = "[ 2 0 0.1234567 ]",
            .shownAtStart = "[ Color 0 0.5 1, Color 0.123457 2 0 ]",
            .shownEdited = "[ Color 0 0.5 1, Color 0.123457 2 0.5 ]",
            .shownOutside = "[ Color 2 0 0.123457 ]" },
        { .type = "MFColorRGBA", .start = "[ 0 0 0 1, 1 0 0 0 ]", .act = typeIntoRow1<Half, 4>,
            .edited = "[ 0 0 0 1, 1 0 0 0.5 ]", .outside = "[ 0 0 0 0 ]",
            .shownAtStart = "[ Color 0 0 0 1, Color 1 0 0 0 ]",
            .shownEdited = "[ Color 0 0 0 1, Color 1 0 0 0.5 ]",
            .shownOutside = "[ Color 0 0 0 0 ]" },
        { .type = "MFDouble", .start = "[ 1.5, 2 ]", .act = typeIntoRow1<Half>,
            .edited = "[ 1.5, 0.5 ]", .commands = 0, .outside = "[ 3 ]" },
        { .type = "MFFloat", .start = "[ 1.5, 2 ]", .act = typeIntoRow1<Half>,
            .edited = "[ 1.5, 0.5 ]", .commands = 0, .outside = "[ 3 ]" },
        { .type = "MFInt32", .start = "[ -1, 2 ]", .act = typeIntoRow1<Seven>,
            .edited = "[ -1, 7 ]", .commands = 0, .outside = "[ 3 ]" },
        // The one cell shows the whole text.
        { .type = "MFMatrix", .start = "[ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1 ]", .act = editMatrix,
            .edited = "[ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9 ]", .outside = "[ \"\" ]",
            .shownAtStart = "[ [ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1 ] ]",
            .shownEdited = "[ [ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9 ] ]",
            .shownOutside = "[ [ 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1 ] ]" },
        { .type = "MFPlane", .start = "[ 0 0 1 2, 1 2 3 4 ]", .act = typeIntoRow1<Half, 3>,
            .edited = "[ 0 0 1 2, 1 2 3 0.5 ]", .outside = "[ 1 0 0 0.1234567 ]",
            .shownOutside = "[ 1 0 0 0.123457 ]" },
        // The cells hold quaternions, the texts axes and angles.
        { .type = "MFRotation", .start = "[ 0 0 1 1, 0 1 0 0 ]", .act = typeIntoRow1<Half, 0>,
            .edited = "[ 0 0 1 1, 1 0 0 0.9272952 ]", .outside = "[ 2 0 0 1 ]",
            .shownAtStart = "[ 0 0 0.479426 0.877583, 0 0 0 1 ]",
            .shownEdited = "[ 0 0 0.479426 0.877583, 0.447214 0 0 0.894427 ]",
            .shownOutside = "[ 0.479426 0 0 0.877583 ]" },
        { .type = "MFShort", .start = "[ -1, 2 ]", .act = typeIntoRow1<Seven>,
            .edited = "[ -1, 7 ]", .commands = 0, .outside = "[ 3 ]" },
        { .type = "MFString", .start = "[ \"a b\", \"c\" ]", .act = typeIntoRow1<Word>,
            .edited = "[ \"a b\", \"word\" ]", .outside = "[ \"d\" ]", .shownAtStart = "[ a b, c ]",
            .shownEdited = "[ a b, word ]", .shownOutside = "[ d ]" },
        { .type = "MFTime", .editor = "WfMFDefaultFieldWidget", .start = "[ 1.5, 2 ]",
            .act = typeIntoRow1<Half>, .edited = "[ 1.5, 0.5 ]", .outside = "[ 3 ]" },
        { .type = "MFUInt32", .start = "[ 0x1, 0xfffffffe ]", .act = typeIntoRow1<Seven>,
            .edited = "[ 0x1, 0x7 ]", .commands = 0, .outside = "[ 0x3 ]" },
        { .type = "MFUShort", .start = "[ 1, 65535 ]", .act = typeIntoRow1<Seven>,
            .edited = "[ 1, 7 ]", .commands = 0, .outside = "[ 3 ]" },
        { .type = "MFVec2f", .start = "[ 1 2, 3 4 ]", .act = typeIntoRow1<Half, 1>,
            .edited = "[ 1 2, 3 0.5 ]", .outside = "[ 1e-20 1234567 ]",
            .shownOutside = "[ 1e-20 1.23457e+06 ]" },
        { .type = "MFVec2i32", .start = "[ 1 2, 3 4 ]", .act = typeIntoRow1<Seven, 1>,
            .edited = "[ 1 2, 3 7 ]", .outside = "[ -2147483648 1234567 ]" },
        { .type = "MFVec2s", .start = "[ 1 2, 3 4 ]", .act = typeIntoRow1<Word, 1>,
            .edited = "[ 1 2, 3 0 ]", .outside = "[ -32768 32767 ]" },
        { .type = "MFVec3f", .start = "[ 1 2 3, 4 5 6 ]", .act = typeIntoRow1<Half, 2>,
            .edited = "[ 1 2 3, 4 5 0.5 ]", .outside = "[ 0.1 0 -0.1234567 ]",
            .shownOutside = "[ 0.1 0 -0.123457 ]" },
        { .type = "MFVec4f", .start = "[ 1 2 3 4, 5 6 7 8 ]", .act = typeIntoRow1<Half, 3>,
            .edited = "[ 1 2 3 4, 5 6 7 0.5 ]", .outside = "[]" },
    };
    // clang-format on
    for (EditorCase& each : cases)
        each.read = cellsShown;
    return cases;
}
