// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

#include <QCheckBox>

namespace {

void clickBox(EditorFixture& fixture)
{
    QTest::mouseClick(fixture.child<QCheckBox>("m_box"), Qt::LeftButton);
}

QString boxShown(EditorFixture& fixture)
{
    const bool isChecked = fixture.child<QCheckBox>("m_box")->isChecked();
    return isChecked ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
}

} // namespace

std::vector<EditorCase> singleValueCases()
{
    // A row is packed, or the table would take a line a field.
    // clang-format off
    return {
        { .type = "SFBool", .start = "FALSE", .act = clickBox, .edited = "TRUE", .outside = "FALSE",
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
        { .type = "SFTime", .editor = "WfSFLineWidget", .start = "12.5", .line = "lineEdit",
            .typed = "37", .edited = "37", .commands = 4, .outside = "1.0", .shownOutside = "1" },
        { .type = "SFUInt32", .start = "0xff", .line = "m_lineEdit", .typed = "fffffffe",
            .edited = "0xfffffffe", .commands = 2, .outside = "4294967295", .shownAtStart = "ff",
            .shownEdited = "fffffffe", .shownOutside = "ffffffff" },
        { .type = "SFUShort", .start = "7", .line = "m_lineEdit", .typed = "65535",
            .edited = "65535", .commands = 2, .outside = "0" },
    };
    // clang-format on
}
