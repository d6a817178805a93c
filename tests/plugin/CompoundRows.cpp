// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include "WfSFImageLabel.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

namespace {

/// Types into the last of the lines of that name and presses Return.
void typeLast(EditorFixture& fixture, const char* objectName, const char* text)
{
    typeInto(
        fixture.editor()->getFrame()->findChildren<QLineEdit*>(QLatin1String(objectName)).last(),
        QString::fromUtf8(text));
}

template <const char* objectName>
QString lines(EditorFixture& fixture)
{
    return linesShown(fixture, objectName);
}

/// Opens the grid, types into its last line, presses Return, and closes the grid.
template <const char* text>
void editGrid(EditorFixture& fixture)
{
    auto* const button = fixture.child<QAbstractButton>("m_editButton");
    QTest::mouseClick(button, Qt::LeftButton);
    typeLast(fixture, "m_lineEdits", text);
    QTest::mouseClick(button, Qt::LeftButton);
}

/// The summary, and the grid behind it.
QString popupShown(EditorFixture& fixture)
{
    return linesShown(fixture, "lineEdit") + QStringLiteral(": ")
        + linesShown(fixture, "m_lineEdits");
}

QString spinsShown(EditorFixture& fixture) { return linesShown(fixture, "qt_spinbox_lineedit"); }

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
    const QImage image
        = static_cast<QLabel*>(fixture.child<QWidget>("m_imageBox"))->pixmap().toImage();
    return image.isNull() ? QString() : QColor(image.pixel(0, 0)).name();
}

void typePath(EditorFixture& fixture)
{
    typeInto(fixture.child<QLineEdit>("lineEdit"), QStringLiteral("/a b/\"x\".png"));
}

constexpr char colorLine[] = "SFColorLine";
constexpr char colorRgbaLine[] = "SFColorRGBALine";
constexpr char fourLine[] = "SF4fine";
constexpr char vec2Line[] = "SFVec2fBox";
constexpr char vec3Line[] = "SFVec3fLine";
constexpr char pathLine[] = "lineEdit";
constexpr char nine[] = "9";
constexpr char half[] = "9.5";

} // namespace

std::vector<EditorRow> compoundRows()
{
    // Return in a line raises two signals, so that an edited line makes two commands.
    return {
        // The boxes show the mask as it was attached, and a click can't be undone.
        { "SFBitMask", "WfSFBitMaskWidget", "(A)", clickLastBox, "(A | C)", 0, boxesShown, "A",
            "A C", "(B)", "A C" },
        { "SFBox2f", "WfSFBox2fWidget", "0 0 1 1", editGrid<half>, "0 0 1 9.5", 2, popupShown,
            "0 0 1 1: 0 0 1 1", "0 0 1 9.5: 0 0 1 9.5", "-1 0 0.1 1e+20",
            "-1 0 0.1 1e+20: -1 0 0.1 1e+20" },
        { "SFBox3s", "WfSFBox3sWidget", "0 0 0 1 1 1", editGrid<nine>, "0 0 0 1 1 9", 2, popupShown,
            "0 0 0 1 1 1: 0 0 0 1 1 1", "0 0 0 1 1 9: 0 0 0 1 1 9", "-32768 0 0 1 1 32767",
            "-32768 0 0 1 1 32767: -32768 0 0 1 1 32767" },
        { "SFColor", "WfSFColorWidget", "0 0.5 1",
            [](EditorFixture& fixture) { typeLast(fixture, colorLine, "1.01"); }, "0 0.5 1.01", 2,
            lines<colorLine>, "0 0.5 1", "0 0.5 1.01", "1 0 0", "1 0 0" },
        { "SFColorRGBA", "WfSFColorRGBAWidget", "0 0.5 1 1",
            [](EditorFixture& fixture) { typeLast(fixture, colorRgbaLine, "0.25"); },
            "0 0.5 1 0.25", 2, lines<colorRgbaLine>, "0 0.5 1 1", "0 0.5 1 0.25", "1 0 0 0",
            "1 0 0 0" },
        { "SFEnum", "WfSFEnumWidget", "FIRST", chooseNext, "SECOND", 1, choiceShown, "FIRST",
            "SECOND", "3",
            "\xC3\x9C"
            "BER" },
        { "SFFilePathString", "WfSFFilePathStringWidget", "\"a b\"", typePath,
            "\"/a b/\\\"x\\\".png\"", 1, lines<pathLine>, "a b", "/a b/\"x\".png", "\"\"", "" },
        // Nothing to edit here.
        { "SFImage", "WfSFImageWidget", "1 1 3 0xff0000", [](EditorFixture&) {}, "1 1 3 0xff0000",
            0, thumbnailShown, "#ff0000", "#ff0000", "1 1 1 0x80", "#808080" },
        { "SFMatrix", "WfSFMatrixWidget", "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1", editGrid<half>,
            "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9.5", 2, popupShown,
            "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1: 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1",
            "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9.5: 1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 9.5", "\"\"",
            "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1: 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1" },
        { "SFPlane", "WfSFPlaneWidget", "0 0 1 2",
            [](EditorFixture& fixture) { typeLast(fixture, fourLine, "9.5"); }, "0 0 1 9.5", 2,
            lines<fourLine>, "0 0 1 2", "0 0 1 9.5", "1 0 0 0.1234567", "1 0 0 0.123457" },
        // Only Return applies, once.
        { "SFRotation", "WfSFRotationWidget", "0 0 1 2",
            [](EditorFixture& fixture) { typeLast(fixture, fourLine, "9.5"); }, "0 0 1 9.5", 1,
            lines<fourLine>, "0 0 1 2", "0 0 1 9.5", "1 0 0 0", "1 0 0 0" },
        { "SFVec2f", "WfSFVec2fWidget", "1 2",
            [](EditorFixture& fixture) { typeLast(fixture, vec2Line, "-9.5"); }, "1 -9.5", 2,
            lines<vec2Line>, "1 2", "1 -9.5", "1e-20 1234567", "1e-20 1.23457e+06" },
        { "SFVec2i32", "WfSFVec2i32Widget", "-2147483648 2147483646", stepUp,
            "-2147483648 2147483647", 1, spinsShown, "-2147483648 2147483646",
            "-2147483648 2147483647", "0 1000000", "0 1000000" },
        { "SFVec2s", "WfSFVec2sWidget", "-32768 32766", stepUp, "-32768 32767", 1, spinsShown,
            "-32768 32766", "-32768 32767", "0 10000", "0 10000" },
        { "SFVec3f", "WfSFVec3fWidget", "1 2 3",
            [](EditorFixture& fixture) { typeLast(fixture, vec3Line, "9.5"); }, "1 2 9.5", 2,
            lines<vec3Line>, "1 2 3", "1 2 9.5", "0 0.1 -0.1", "0 0.1 -0.1" },
        { "SFVec4f", "WfSFVec4fWidget", "1 2 3 4",
            [](EditorFixture& fixture) { typeLast(fixture, fourLine, "9.5"); }, "1 2 3 9.5", 2,
            lines<fourLine>, "1 2 3 4", "1 2 3 9.5", "0 0 0 0", "0 0 0 0" },
    };
}
