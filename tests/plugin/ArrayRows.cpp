// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include "TableInput.h"

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

/// Types into the second row's first cell.
template <const char* text>
void typeIntoRow1(EditorFixture& fixture)
{
    TableInput(fixture).typeInto(1, 0, QLatin1String(text));
}

constexpr char Seven[] = "7";
constexpr char Word[] = "word";
constexpr char Half[] = "0.5";

} // namespace

std::vector<EditorRow> arrayRows()
{
    return {
        { "MFDouble", "WfMFDoubleWidget", "[ 1.5, 2 ]", typeIntoRow1<Half>, "[ 1.5, 0.5 ]", 0,
            cellsShown, "1.5 2", "1.5 0.5", "[ 3 ]", "3" },
        { "MFFloat", "WfMFFloatWidget", "[ 1.5, 2 ]", typeIntoRow1<Half>, "[ 1.5, 0.5 ]", 0,
            cellsShown, "1.5 2", "1.5 0.5", "[ 3 ]", "3" },
        { "MFInt32", "WfMFInt32Widget", "[ -1, 2 ]", typeIntoRow1<Seven>, "[ -1, 7 ]", 0,
            cellsShown, "-1 2", "-1 7", "[ 3 ]", "3" },
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
    };
}
