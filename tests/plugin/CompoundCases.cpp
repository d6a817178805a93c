// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>

namespace {

/// Opens the grid, types into its last line, presses Return, and closes the grid.
void editGrid(EditorFixture& fixture)
{
    auto* const button = fixture.child<QAbstractButton>("m_editButton");
    QTest::mouseClick(button, Qt::LeftButton);
    typeIntoLast(fixture, "m_lineEdits", "9");
    QTest::mouseClick(button, Qt::LeftButton);
}

/// What both the summary and the grid behind it show.
QString popupShown(EditorFixture& fixture)
{
    const QString summary = linesShown(fixture, "lineEdit");
    const QString grid = linesShown(fixture, "m_lineEdits");
    return summary == grid ? grid : summary + QStringLiteral(" over ") + grid;
}

/// One key press up in the second box.
void stepUp(EditorFixture& fixture)
{
    auto* const box = fixture.editor()->getFrame()->findChildren<QSpinBox*>().last();
    QTest::keyClick(box, Qt::Key_Up);
}

QString spinsShown(EditorFixture& fixture) { return linesShown(fixture, "qt_spinbox_lineedit"); }

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

} // namespace

std::vector<EditorCase> compoundCases()
{
    // Return in a line raises two signals, so that an edited line makes two commands.
    // A row is packed, or the table would take a line a field.
    // clang-format off
    return {
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
        { .type = "SFVec2i32", .start = "-2147483648 2147483646", .act = stepUp,
            .edited = "-2147483648 2147483647", .outside = "0 1000000", .read = spinsShown },
        { .type = "SFVec2s", .start = "-32768 32766", .act = stepUp, .edited = "-32768 32767",
            .outside = "0 10000", .read = spinsShown },
        { .type = "SFVec3f", .start = "1 2 3", .line = "SFVec3fLine", .typed = "9.5",
            .edited = "1 2 9.5", .commands = 2, .outside = "0 0.1 -0.1" },
        { .type = "SFVec4f", .start = "1 2 3 4", .line = "SF4fine", .typed = "9.5",
            .edited = "1 2 3 9.5", .commands = 2, .outside = "0 0 0 0" },
    };
    // clang-format on
}
