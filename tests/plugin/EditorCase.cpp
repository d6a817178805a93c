// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>

namespace {

QString boxShown(EditorFixture& fixture)
{
    const bool isChecked = fixture.child<QCheckBox>("m_box")->isChecked();
    return isChecked ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
}

/// Opens the grid, types into its last line, presses Return, and closes the grid.
void editGrid(EditorFixture& fixture)
{
    fixture.clickButton("m_editButton");
    fixture.typeIntoLast("m_lineEdits", "9");
    fixture.clickButton("m_editButton");
}

/// What both the summary and the grid behind it show.
QString popupShown(EditorFixture& fixture)
{
    const QString summary = fixture.linesShown("lineEdit");
    const QString grid = fixture.linesShown("m_lineEdits");
    return summary == grid ? grid : summary + QStringLiteral(" over ") + grid;
}

/// One key press up in the second box.
void stepUp(EditorFixture& fixture)
{
    auto* const box = fixture.editor()->getFrame()->findChildren<QSpinBox*>().last();
    QTest::keyClick(box, Qt::Key_Up);
}

void chooseNext(EditorFixture& fixture)
{
    QTest::keyClick(fixture.child<QComboBox>("comboBox"), Qt::Key_Down);
}

QString choiceShown(EditorFixture& fixture)
{
    return fixture.child<QComboBox>("comboBox")->currentText();
}

void clickLastBox(EditorFixture& fixture)
{
    auto* const box = fixture.editor()->getFrame()->findChildren<QCheckBox*>().last();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

QString boxesShown(EditorFixture& fixture)
{
    QStringList checked;
    for (const QCheckBox* box : fixture.editor()->getFrame()->findChildren<QCheckBox*>()) {
        if (box->isChecked())
            checked << box->text();
    }
    return checked.join(u' ');
}

QString thumbnailShown(EditorFixture& fixture)
{
    const QImage image = fixture.child<QLabel>("m_imageBox")->pixmap().toImage();
    return image.isNull() ? QString() : QColor(image.pixel(0, 0)).name();
}

/// What the table's cells show, written as the text of a field is.
QString cellsShown(EditorFixture& fixture)
{
    auto* const editor = static_cast<WfMFieldWidget*>(fixture.editor());
    const TableInput table = fixture.table();
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
    fixture.table().typeInto(1, column, QLatin1String(text));
}

/// Goes to the first row, opens the popup, types into its last line, and closes the popup.
void editMatrix(EditorFixture& fixture)
{
    QTest::keyClick(fixture.child<QSpinBox>("m_accessBox"), Qt::Key_Return);
    editGrid(fixture);
}

constexpr char Seven[] = "7";
constexpr char Word[] = "word";
constexpr char Half[] = "0.5";

// Return in a line raises two signals, so that an edited line makes two commands.
// A row is packed, or the table would take a line a field.
// clang-format off
const EditorCase singleCases[] {
    { .type = "SFBool", .start = "FALSE", .act = clickLastBox, .edited = "TRUE", .outside = "FALSE",
        .read = boxShown },
    // Return raises both signals of a slider's line: two commands.
    { .type = "SFDouble", .start = "0.25", .line = "m_lineEdit", .typed = "-1e-7",
        .edited = "-1e-07", .commands = 2, .outside = "1e+15" },
    { .type = "SFFloat", .start = "0.25", .line = "m_lineEdit", .typed = "12.5",
        .edited = "12.5", .commands = 2, .outside = "0.1234567", .shownAtStart = "0.250000",
        .shownEdited = "12.500000", .shownOutside = "0.123457" },
    { .type = "SFInt32", .start = "7", .line = "m_lineEdit", .typed = "-2147483648",
        .edited = "-2147483648", .commands = 2, .outside = "0x10", .shownOutside = "16" },
    { .type = "SFName", .start = "\"a\"", .line = "lineEdit", .typed = "say \"b\"",
        .edited = "\"say \\\"b\\\"\"", .outside = "bare", .shownAtStart = "a",
        .shownEdited = "say \"b\"" },
    { .type = "SFShort", .start = "7", .line = "m_lineEdit", .typed = "32767",
        .edited = "32767", .commands = 2, .outside = "-32768" },
    { .type = "SFString", .start = "\"a\"", .line = "lineEdit", .typed = "say \"b\"",
        .edited = "\"say \\\"b\\\"\"", .outside = "\"\"", .shownAtStart = "a",
        .shownEdited = "say \"b\"", .shownOutside = "" },
    // No editor of its own: the line takes it, with two commands a keystroke.
    { .type = "SFTime", .start = "12.5", .line = "lineEdit",
        .typed = "37", .edited = "37", .commands = 4, .outside = "1.0", .shownOutside = "1" },
    { .type = "SFUInt32", .start = "0xff", .line = "m_lineEdit", .typed = "fffffffe",
        .edited = "0xfffffffe", .commands = 2, .outside = "4294967295", .shownAtStart = "ff",
        .shownEdited = "fffffffe", .shownOutside = "ffffffff" },
    { .type = "SFUShort", .start = "7", .line = "m_lineEdit", .typed = "65535",
        .edited = "65535", .commands = 2, .outside = "0" },
    // The boxes show the mask as it was attached, and a click can't be undone.
    { .type = "SFBitMask", .start = "(A)", .act = clickLastBox, .edited = "(A | C)",
        .commands = 0, .outside = "(B)", .read = boxesShown, .shownAtStart = "A",
        .shownEdited = "A C", .shownOutside = "A C" },
    { .type = "SFBox2f", .start = "0 0 1 1", .act = editGrid, .edited = "0 0 1 9",
        .commands = 2, .outside = "-1 0 0.1 1e+20", .read = popupShown },
    { .type = "SFBox3s", .start = "0 0 0 1 1 1", .act = editGrid, .edited = "0 0 0 1 1 9",
        .commands = 2, .outside = "-32768 0 0 1 1 32767", .read = popupShown },
    { .type = "SFColor", .start = "0 0.5 1", .line = "SFColorLine", .typed = "1.01",
        .edited = "0 0.5 1.01", .commands = 2, .outside = "1 0 0" },
    { .type = "SFColorRGBA", .start = "0 0.5 1 1", .line = "SFColorRGBALine", .typed = "0.25",
        .edited = "0 0.5 1 0.25", .commands = 2, .outside = "1 0 0 0" },
    { .type = "SFEnum", .start = "FIRST", .act = chooseNext, .edited = "SECOND", .outside = "3",
        .read = choiceShown, .shownOutside = "\xC3\x9C" "BER" },
    { .type = "SFFilePathString", .start = "\"a b\"", .line = "lineEdit",
        .typed = "/a b/\"x\".png", .edited = "\"/a b/\\\"x\\\".png\"", .outside = "\"\"",
        .shownAtStart = "a b", .shownEdited = "/a b/\"x\".png", .shownOutside = "" },
    // Nothing to edit here.
    { .type = "SFImage", .start = "1 1 3 0xff0000", .act = [](EditorFixture&) {},
        .edited = "1 1 3 0xff0000", .commands = 0, .outside = "1 1 1 0x80", .read = thumbnailShown,
        .shownAtStart = "#ff0000", .shownEdited = "#ff0000", .shownOutside = "#808080" },
    { .type = "SFMatrix", .start = "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1", .act = editGrid,
        .edited = "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9", .commands = 2, .outside = "\"\"",
        .read = popupShown, .shownOutside = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1" },
    { .type = "SFPlane", .start = "0 0 1 2", .line = "SF4fine", .typed = "9.5",
        .edited = "0 0 1 9.5", .commands = 2, .outside = "1 0 0 0.1234567",
        .shownOutside = "1 0 0 0.123457" },
    // Only Return applies, once.
    { .type = "SFRotation", .start = "0 0 1 2", .line = "SF4fine", .typed = "9.5",
        .edited = "0 0 1 9.5", .outside = "1 0 0 0" },
    { .type = "SFVec2f", .start = "1 2", .line = "SFVec2fBox", .typed = "-9.5",
        .edited = "1 -9.5", .commands = 2, .outside = "1e-20 1234567",
        .shownOutside = "1e-20 1.23457e+06" },
    { .type = "SFVec2i32", .start = "-2147483648 2147483646", .line = "qt_spinbox_lineedit",
        .act = stepUp, .edited = "-2147483648 2147483647", .outside = "0 1000000" },
    { .type = "SFVec2s", .start = "-32768 32766", .line = "qt_spinbox_lineedit",
        .act = stepUp, .edited = "-32768 32767", .outside = "0 10000" },
    { .type = "SFVec3f", .start = "1 2 3", .line = "SFVec3fLine", .typed = "9.5",
        .edited = "1 2 9.5", .commands = 2, .outside = "0 0.1 -0.1" },
    { .type = "SFVec4f", .start = "1 2 3 4", .line = "SF4fine", .typed = "9.5",
        .edited = "1 2 3 9.5", .commands = 2, .outside = "0 0 0 0" },
};

const EditorCase arrayCases[] {
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
    { .type = "MFTime", .start = "[ 1.5, 2 ]",
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

} // namespace

void EditorCase::edit(EditorFixture& fixture) const
{
    if (act)
        act(fixture);
    else
        fixture.typeIntoLast(line, typed);
}

QString EditorCase::shown(EditorFixture& fixture) const
{
    if (type[0] == 'M')
        return cellsShown(fixture);
    return read ? read(fixture) : fixture.linesShown(line);
}

void addEditorRows(bool withArrays)
{
    QTest::addColumn<EditorCase>("row");
    for (const EditorCase& row : singleCases)
        QTest::newRow(row.type) << row;
    for (const EditorCase& row : arrayCases) {
        if (withArrays)
            QTest::newRow(row.type) << row;
    }
}
