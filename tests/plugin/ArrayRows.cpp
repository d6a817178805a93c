// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include "TableInput.h"

#include <QAbstractButton>
#include <QSpinBox>

namespace {

/// What the table's cells show, from left to right and from top to bottom.
QString cellsShown(EditorFixture& fixture)
{
    auto* const editor = static_cast<WfMFieldWidget*>(fixture.editor());
    const TableInput table(fixture);
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            texts << editor->getCellText(row, column);
    }
    return texts.join(u' ');
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
    typeInto(fixture.child<QWidget>("m_popupFrame")->findChildren<QLineEdit*>().last(),
        QStringLiteral("9"));
    QTest::mouseClick(button, Qt::LeftButton);
}

constexpr char Seven[] = "7";
constexpr char Word[] = "word";
constexpr char Half[] = "0.5";

} // namespace

std::vector<EditorRow> arrayRows()
{
    return {
        { "MFColor", "WfMFColorWidget", "[ 0 0.5 1, 0.12345679 2 0 ]", typeIntoRow1<Half, 3>,
            "[ 0 0.5 1, 0.12345679 2 0.5 ]", 1, cellsShown, "Color 0 0.5 1 Color 0.123457 2 0",
            "Color 0 0.5 1 Color 0.123457 2 0.5", "[ 2 0 0.1234567 ]", "Color 2 0 0.123457" },
        { "MFColorRGBA", "WfMFColorRGBAWidget", "[ 0 0 0 1, 1 0 0 0 ]", typeIntoRow1<Half, 4>,
            "[ 0 0 0 1, 1 0 0 0.5 ]", 1, cellsShown, "Color 0 0 0 1 Color 1 0 0 0",
            "Color 0 0 0 1 Color 1 0 0 0.5", "[ 0 0 0 0 ]", "Color 0 0 0 0" },
        { "MFDouble", "WfMFDoubleWidget", "[ 1.5, 2 ]", typeIntoRow1<Half>, "[ 1.5, 0.5 ]", 0,
            cellsShown, "1.5 2", "1.5 0.5", "[ 3 ]", "3" },
        { "MFFloat", "WfMFFloatWidget", "[ 1.5, 2 ]", typeIntoRow1<Half>, "[ 1.5, 0.5 ]", 0,
            cellsShown, "1.5 2", "1.5 0.5", "[ 3 ]", "3" },
        { "MFInt32", "WfMFInt32Widget", "[ -1, 2 ]", typeIntoRow1<Seven>, "[ -1, 7 ]", 0,
            cellsShown, "-1 2", "-1 7", "[ 3 ]", "3" },
        { "MFMatrix", "WfMFMatrixWidget", "[ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1 ]", editMatrix,
            "[ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9 ]", 1, cellsShown,
            "[ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1 ]", "[ 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9 ]",
            "[ \"\" ]", "[ 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1 ]" },
        { "MFPlane", "WfMFPlaneWidget", "[ 0 0 1 2, 1 2 0.12345679 4 ]", typeIntoRow1<Half, 3>,
            "[ 0 0 1 2, 1 2 0.12345679 0.5 ]", 1, cellsShown, "0 0 1 2 1 2 0.123457 4",
            "0 0 1 2 1 2 0.123457 0.5", "[ 1 0 0 0.1234567 ]", "1 0 0 0.123457" },
        // The cells hold quaternions, the texts axes and angles.
        { "MFRotation", "WfMFRotationWidget", "[ 0 0 1 1, 0 1 0 0 ]", typeIntoRow1<Half, 0>,
            "[ 0 0 1 1, 1 0 0 0.9272952 ]", 1, cellsShown, "0 0 0.479426 0.877583 0 0 0 1",
            "0 0 0.479426 0.877583 0.447214 0 0 0.894427", "[ 2 0 0 1 ]", "0.479426 0 0 0.877583" },
        { "MFShort", "WfMFShortWidget", "[ -1, 2 ]", typeIntoRow1<Seven>, "[ -1, 7 ]", 0,
            cellsShown, "-1 2", "-1 7", "[ 3 ]", "3" },
        { "MFString", "WfMFStringWidget", "[ \"a b\", \"c\" ]", typeIntoRow1<Word>,
            "[ \"a b\", \"word\" ]", 1, cellsShown, "a b c", "a b word", "[ \"d\" ]", "d" },
        { "MFTime", "WfMFDefaultFieldWidget", "[ 1.5, 2 ]", typeIntoRow1<Half>, "[ 1.5, 0.5 ]", 1,
            cellsShown, "1.5 2", "1.5 0.5", "[ 3 ]", "3" },
        { "MFUInt32", "WfMFUInt32Widget", "[ 0x1, 0xfffffffe ]", typeIntoRow1<Seven>,
            "[ 0x1, 0x7 ]", 0, cellsShown, "0x1 0xfffffffe", "0x1 0x7", "[ 0x3 ]", "0x3" },
        { "MFUShort", "WfMFUShortWidget", "[ 1, 65535 ]", typeIntoRow1<Seven>, "[ 1, 7 ]", 0,
            cellsShown, "1 65535", "1 7", "[ 3 ]", "3" },
        { "MFVec2f", "WfMFVec2fWidget", "[ 1 2, 3 4 ]", typeIntoRow1<Half, 1>, "[ 1 2, 3 0.5 ]", 1,
            cellsShown, "1 2 3 4", "1 2 3 0.5", "[ 1e-20 1234567 ]", "1e-20 1.23457e+06" },
        { "MFVec2i32", "WfMFVec2i32Widget", "[ 1 2, 3 4 ]", typeIntoRow1<Seven, 1>, "[ 1 2, 3 7 ]",
            1, cellsShown, "1 2 3 4", "1 2 3 7", "[ -2147483648 1234567 ]", "-2147483648 1234567" },
        { "MFVec2s", "WfMFVec2sWidget", "[ 1 2, 3 4 ]", typeIntoRow1<Word, 1>, "[ 1 2, 3 0 ]", 1,
            cellsShown, "1 2 3 4", "1 2 3 0", "[ -32768 32767 ]", "-32768 32767" },
        { "MFVec3f", "WfMFVec3fWidget", "[ 1 2 3, 0.12345679 5 6 ]", typeIntoRow1<Half, 2>,
            "[ 1 2 3, 0.12345679 5 0.5 ]", 1, cellsShown, "1 2 3 0.123457 5 6",
            "1 2 3 0.123457 5 0.5", "[ 0.1 0 -0.1 ]", "0.1 0 -0.1" },
        { "MFVec4f", "WfMFVec4fWidget", "[ 1 2 3 4, 5 6 7 8 ]", typeIntoRow1<Half, 3>,
            "[ 1 2 3 4, 5 6 7 0.5 ]", 1, cellsShown, "1 2 3 4 5 6 7 8", "1 2 3 4 5 6 7 0.5", "[]",
            "" },
    };
}
