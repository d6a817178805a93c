// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include <QCheckBox>
#include <QLineEdit>

namespace {

void clickBox(EditorFixture& fixture)
{
    QTest::mouseClick(fixture.child<QCheckBox>("m_box"), Qt::LeftButton);
}

QString boxShown(EditorFixture& fixture)
{
    return fixture.child<QCheckBox>("m_box")->isChecked() ? QStringLiteral("checked")
                                                          : QStringLiteral("clear");
}

/// Types into the one line of that name and presses Return.
void typeLine(EditorFixture& fixture, const char* objectName, const char* text)
{
    typeInto(fixture.child<QLineEdit>(objectName), QString::fromUtf8(text));
}

QString sliderShown(EditorFixture& fixture) { return linesShown(fixture, "m_lineEdit"); }
QString lineShown(EditorFixture& fixture) { return linesShown(fixture, "lineEdit"); }

} // namespace

std::vector<EditorRow> singleValueRows()
{
    return {
        { "SFBool", "WfSFBoolWidget", "FALSE", clickBox, "TRUE", 1, boxShown, "clear", "checked",
            "FALSE", "clear" },
        // Return raises both signals of a slider's line: two commands.
        { "SFDouble", "WfSFDoubleWidget", "0.25",
            [](EditorFixture& fixture) { typeLine(fixture, "m_lineEdit", "-1e-7"); }, "-1e-07", 2,
            sliderShown, "0.25", "-1e-07", "1e+15", "1e+15" },
        { "SFFloat", "WfSFFloatWidget", "0.25",
            [](EditorFixture& fixture) { typeLine(fixture, "m_lineEdit", "12.5"); }, "12.5", 2,
            sliderShown, "0.250000", "12.500000", "0.1234567", "0.123457" },
        { "SFInt32", "WfSFInt32Widget", "7",
            [](EditorFixture& fixture) { typeLine(fixture, "m_lineEdit", "-2147483648"); },
            "-2147483648", 2, sliderShown, "7", "-2147483648", "0x10", "16" },
        { "SFName", "WfSFNameWidget", "\"a\"",
            [](EditorFixture& fixture) { typeLine(fixture, "lineEdit", "say \"b\""); },
            "\"say \\\"b\\\"\"", 1, lineShown, "a", "say \"b\"", "bare", "bare" },
        { "SFShort", "WfSFShortWidget", "7",
            [](EditorFixture& fixture) { typeLine(fixture, "m_lineEdit", "32767"); }, "32767", 2,
            sliderShown, "7", "32767", "-32768", "-32768" },
        { "SFString", "WfSFStringWidget", "\"a\"",
            [](EditorFixture& fixture) { typeLine(fixture, "lineEdit", "say \"b\""); },
            "\"say \\\"b\\\"\"", 1, lineShown, "a", "say \"b\"", "\"\"", "" },
        // No editor of its own: the line takes it, with two commands a keystroke.
        { "SFTime", "WfSFLineWidget", "12.5",
            [](EditorFixture& fixture) { typeLine(fixture, "lineEdit", "37"); }, "37", 4, lineShown,
            "12.5", "37", "1.0", "1" },
        { "SFUInt32", "WfSFUInt32Widget", "0xff",
            [](EditorFixture& fixture) { typeLine(fixture, "m_lineEdit", "fffffffe"); },
            "0xfffffffe", 2, sliderShown, "ff", "fffffffe", "4294967295", "ffffffff" },
        { "SFUShort", "WfSFUShortWidget", "7",
            [](EditorFixture& fixture) { typeLine(fixture, "m_lineEdit", "65535"); }, "65535", 2,
            sliderShown, "7", "65535", "0", "0" },
    };
}
