// SPDX-License-Identifier: BSD-3-Clause
#include "CrvStrings.h"
#include "EditorFixture.h"
#include "KnMField.h"
#include "LayoutDump.h"
#include "Pixmaps.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

const QString flat = u"frameShape=Box lineWidth=0"_s;
const QString raised = u"frameShape=StyledPanel frameShadow=Raised"_s;
const QString title
    = u"Label m_label \"<p align=\"center\">%1</p>\" 10pt scaledContents=true "_s + flat;
const QString iconButton = u"PushButton m_%1Button w<=20 h<=20 icon=%1"_s;

QString button(const char* motif, const char* tip, const char* more = "")
{
    return iconButton.arg(QLatin1String(motif)) + QLatin1String(more)
        + u" toolTip=%1 focusPolicy=NoFocus"_s.arg(QLatin1String(tip));
}

const QString defaultAndIgnore = button("default", "Set to default") + u", "_s
    + button("ignore", "Ignore this field", " checkable=true");

// Single values: what stands in the edition frame.

const QString floats = u"DoubleValidator(-3.4028234663852886e+38 3.4028234663852886e+38 6 "
                       "ScientificNotation)"_s;
const QString doubles = u"DoubleValidator(-1.7976931348623157e+308 1.7976931348623157e+308 15 "
                        "ScientificNotation)"_s;
const QString int32 = u"IntValidator(-2147483648 2147483647)"_s;
const QString int16 = u"IntValidator(-32768 32767)"_s;
const QString left = u" alignment=AlignLeft|AlignLeading"_s; // two names of one flag
const QString lineAlone = u"LineEdit lineEdit"_s + left + u" maxLength=2147483647"_s;

QString plain(const QString& inputs, int margin = 0, int spacing = 0, const char* policy = "")
{
    return u"Frame m_editionFrame "_s + flat
        + u"%4 HBox editLayout m%2 s%3 [%1]"_s.arg(inputs).arg(margin).arg(spacing).arg(
            QLatin1String(policy));
}

/// The scale and the validator of a slider; `gaps` are the frame's margin and spacing.
QString slider(const char* scale, const QString& validator, const char* gaps = "m2 s4")
{
    return u"HBox corvaneslider %1 [CheckBox m_notifyCheckBox checked=true, Slider m_slider %2,"
           " LineEdit m_lineEdit%3]"_s.arg(QLatin1String(gaps), QLatin1String(scale),
               validator.isEmpty() ? QString() : u' ' + validator);
}

// They follow the order in which the slider makes its parts.
const QString sliderTabs = u" tabs m_lineEdit m_slider m_notifyCheckBox"_s;

QString numeric(const char* scale, const QString& validator)
{
    return u"WfSlider WfSliderFrame "_s + slider(scale, validator);
}

/// Columns of label over input; `layout` and `label` are names, `input` is the whole widget.
QString columns(
    int spacing, const char* layout, const char* label, const QString& input, const char* labels)
{
    QStringList each;
    for (const QString& text : QString(QLatin1String(labels)).split(u' '))
        each << u"VBox %1 m0 s4 min [Label %2 h14 \"<p>%3</p>\", %4]"_s.arg(
            QLatin1String(layout), QLatin1String(label), text, input);
    return plain(each.join(u", "_s), 2, spacing, " Preferred/Maximum");
}

QString spins(const char* range)
{
    return columns(
        25, "SF2BoxLayout", "SF4flabel", u"SpinBox SF2Box h16 "_s + QLatin1String(range), "x y");
}

QString fourLines(const char* labels)
{
    return columns(
        4, "SF4FvLayout", "SF4flabel", u"LineEdit SF4fine h16 "_s + floats + left, labels);
}

QString channels(const QString& name, int spacing, const char* letters)
{
    QString text = u"PushButton m_colorDisp w20 h18 icon=20x18"_s;
    for (const char* letter = letters; *letter; ++letter)
        text += u", HBox %1Layout m0 s%2 min [Label %1Label h18 \"<p align=\"right\">%3</p>\","
                " LineEdit %1Line h18]"_s.arg(name)
                    .arg(spacing)
                    .arg(QLatin1Char(*letter));
    return plain(text, 0, 6);
}

QString checks(const char* names)
{
    QStringList each;
    for (const QString& name : QString(QLatin1String(names)).split(u' '))
        each << u"CheckBox m_checkBoxes \"%1\""_s.arg(name);
    return plain(
        u"VBox m_checkBoxLayout m0 s0 [%1]"_s.arg(each.join(u", "_s)), 0, 0, " Preferred/Maximum");
}

const QString popupLine = u"LineEdit m_lineEdits "_s;

QString grid(int rows, int columns, const QString& line)
{
    QStringList each;
    for (int i = 0; i < rows * columns; ++i)
        each << u"%1 @%2,%3"_s.arg(line).arg(i / columns).arg(i % columns);
    return u" popup Frame m_popupFrame "_s + raised
        + u" 260x100 Grid m_popupFrameLayout m6 s8 [%1]"_s.arg(each.join(u", "_s));
}

struct Single {
    const char* name; // of the extension
    QString edit;
    QString behind = {}; // the panel: tab stops out of order, a popup
    bool spread = false; // free space on both sides of the edition frame
};

const auto& singles()
{
    static const Single all[] = {
        { "SFBitMask", checks("A B C"), {}, true },
        { "SFBool", plain(u"CheckBox m_box w16 h18"_s), {}, true },
        { "SFBox2f", plain(lineAlone + u" enabled=false *1"_s), grid(2, 2, popupLine + floats) },
        { "SFBox3s", plain(lineAlone + u" enabled=false *1"_s), grid(2, 3, popupLine + int16) },
        { "SFColor", channels(u"SFColor"_s, 2, "RGB") },
        { "SFColorRGBA", channels(u"SFColorRGBA"_s, 0, "RGBA") },
        { "SFDouble", numeric("maximum=100", doubles), sliderTabs },
        { "SFEnum", plain(u"ComboBox comboBox *1"_s) },
        { "SFFilePathString",
            plain(lineAlone + u" *1, PushButton openFileButton \"...\" Maximum/Fixed *2"_s) },
        { "SFFloat", numeric("maximum=100", floats), sliderTabs },
        { "SFImage", plain(u"Label m_imageBox w16 h16 tracked scaledContents=true"_s),
            u" popup Label pixmapLabel w0 h0 scaledContents=true "_s + raised },
        { "SFInt32", numeric("maximum=100", int32), sliderTabs },
        { "SFMatrix", plain(lineAlone + u" enabled=false *1"_s), grid(4, 4, popupLine + floats) },
        { "SFName", plain(lineAlone + u" *1"_s) },
        { "SFPlane", fourLines("x y z distance") },
        { "SFRotation", fourLines("x y z radians") },
        { "SFShort", numeric("maximum=100", int16), sliderTabs },
        { "SFString", plain(lineAlone + u" *1"_s) },
        { "SFUInt32", numeric("minimum=-2147483648 maximum=-2147483548", {}), sliderTabs },
        { "SFUShort", numeric("minimum=-2147483648 maximum=-2147483548", {}), sliderTabs },
        { "SFVec2f",
            columns(25, "SFVec2fLayout", "SFVec2fLabel", u"LineEdit SFVec2fBox h16 "_s + floats,
                "x y") },
        { "SFVec2i32", spins("minimum=-2147483648 maximum=2147483647") },
        { "SFVec2s", spins("minimum=-32768 maximum=32767") },
        { "SFVec3f",
            columns(20, "SFVec3fLayout", "SFVec3fLabel",
                u"LineEdit SFVec3fLine h16 "_s + floats + left, "x y z") },
        { "SFVec4f", fourLines("x y z w") },
        { "SField", plain(lineAlone + u" *1"_s) },
    };
    return all;
}

QString panelOf(const Single& row)
{
    const QString gap = row.spread ? u"gap 0x0 Expanding/Minimum"_s : u"gap 0x0 Minimum/Minimum"_s;
    const QString buttons = row.behind.contains(u"Grid"_s)
        ? iconButton.arg(u"edit"_s) + u", "_s + defaultAndIgnore
        : defaultAndIgnore;
    return u"Frame "_s + flat
        + u" HBox SFieldLayout m4 s6 [%1, %2, HBox SFieldEditionAreaLayout m0 s2 min [%3, %2, HBox"
          " SFieldLayout m2 s0 [%4]]]%5"_s.arg(
              title.arg(QLatin1String(row.name)), gap, row.edit, buttons, row.behind);
}

// Arrays: the columns, and what edits the last cell of a row.

QString numberCell(const QString& validator)
{
    return u"LineEdit qt_lineeditor%1 maxLength=2147483647 frame=false"_s.arg(validator);
}

QString textCell() { return numberCell({}); }

QString floatCell() { return numberCell(u' ' + floats); }

QString sliderCell(const char* scale, const QString& validator)
{
    return u"WfSlider WfSliderFrame focusPolicy=StrongFocus "_s + slider(scale, validator, "m0 s3");
}

struct Array {
    const char* name; // of the extension
    const char* columns;
    QString cell;
};

const auto& arrays()
{
    static const Array all[] = {
        { "MFColor", "Color R G B", floatCell() },
        { "MFColorRGBA", "Color R G B A", floatCell() },
        { "MFDouble", "-", numberCell(u" DoubleValidator(-inf inf -1 ScientificNotation)"_s) },
        { "MFFloat", "-", sliderCell("maximum=100", floats) },
        { "MFInt32", "-", sliderCell("maximum=10", int32) },
        { "MFMatrix", "-", textCell() + u" enabled=false"_s },
        { "MFPlane", "x y z distance", floatCell() },
        { "MFRotation", "x y z radians", floatCell() },
        { "MFShort", "-", sliderCell("maximum=10", int16) },
        { "MFString", "-", textCell() },
        { "MFUInt32", "-", sliderCell("minimum=-2147483648 maximum=-2147483638", {}) },
        { "MFUShort", "-", sliderCell("minimum=-2147483648 maximum=-2147483638", {}) },
        { "MFVec2f", "x y", floatCell() },
        { "MFVec2i32", "x y", numberCell(u" IntValidator(-2147483647 2147483647)"_s) },
        { "MFVec2s", "x y", textCell() },
        { "MFVec3f", "x y z", floatCell() },
        { "MFVec4f", "x y z w", floatCell() },
        { "MField", "-", textCell() },
    };
    return all;
}

QString panelOf(const Array& row)
{
    const bool isColor = row.columns[0] == 'C';
    const bool hasPopup = qstrcmp(row.name, "MFMatrix") == 0;
    const auto pair = [](const char* name, const QString& buttons) {
        return u"HBox %1 m0 s0 [%2]"_s.arg(QLatin1String(name), buttons);
    };
    const QStringList buttons { pair("m_manageButtonsLayout",
                                    button("add", "Add a row") + u", "_s
                                        + button("delete", "Delete current row")),
        u"gap 0x0 Expanding/Minimum"_s,
        u"AccessButtonPrivate m_accessBox w<=60 h<=20 minimum=1 maximum=1"
        " toolTip=Quick access to rows"_s,
        hasPopup ? u"gap -20x0 Expanding/Minimum, "_s + iconButton.arg(u"edit"_s)
                + u" focusPolicy=NoFocus"_s
                 : u"gap 0x0 Expanding/Minimum"_s,
        u"gap 0x4 Minimum/Minimum"_s,
        u"Label m_labelNumElement \"<p align=\"center\">1 elements</p>\""_s,
        pair("movementButtonLayout",
            button("up", "Bring up current row") + u", "_s
                + button("down", "Bring down current row")),
        pair("movementButtonLayout", defaultAndIgnore) };
    return u"Frame "_s + flat
        + u" Grid m_globalLayout m6 s2 [%1 @0,0, gap 0x4 Minimum/Minimum @1,0, gap 6x0"
          " Minimum/Minimum @0,1, HBox m_buttonsLayout m0 s5 [%2] @0,2, %3 m_table [%4] h>=43"
          " verticalScrollBarPolicy=ScrollBarAlwaysOn "
          "horizontalScrollBarPolicy=ScrollBarAlwaysOff%5"
          " @2,2] tabs m_table m_accessBox%6 cell %7"_s.arg(title.arg(QLatin1String(row.name)),
              buttons.join(u", "_s), isColor ? u"WfMFColorTable"_s : u"WfMFieldTable"_s,
              QLatin1String(row.columns), hasPopup ? u" enabled=false"_s : QString(),
              hasPopup ? grid(4, 4, u"WfTablePopup"_s + popupLine + floats + left) : QString(),
              row.cell);
}

} // namespace

/// What stands on the screen, of all editors.
class TestEditorLayout : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QFont font;
        font.setPointSize(13); // another one than that of the titles
        QApplication::setFont(font);
    }

    void panel_data()
    {
        QTest::addColumn<QString>("expected");
        for (const Single& row : singles())
            QTest::newRow(row.name) << panelOf(row);
        for (const Array& row : arrays())
            QTest::newRow(row.name) << panelOf(row);
    }
    void panel()
    {
        QFETCH(QString, expected);
        const QByteArray name = QTest::currentDataTag();
        const bool isArray = name.startsWith('M');
        const bool isFallback = name.endsWith("Field") || name == "SField";
        KnField* const field = this->field(isFallback ? name.left(name.size() - 4) + "Time" : name);
        if (isArray)
            static_cast<KnMField*>(field)->insertValues(0, 1);
        select(field);
        CrvFieldEditors* const editor = this->editor();
        QVERIFY(editor);
        QCOMPARE(editor->objectName(),
            name == "SField" ? u"WfSFLineWidget"_s
                             : u"Wf%1Widget"_s.arg(QLatin1String(
                                 name == "MField" ? QByteArray("MFDefaultField") : name)));
        QCOMPARE(toQString(editor->getName()), QLatin1String(name));
        QCOMPARE(toQString(editor->getHandledType().getName()), QLatin1String(name));

        LayoutDump dump;
        QString actual = dump.panel(editor->getFrame());
        if (isArray)
            actual += u" cell "_s + dump.widget(cellEditor().get());
        // By pieces, so that a failure shows the one that differs.
        QCOMPARE(actual.split(u", "_s), expected.split(u", "_s));
    }

    void upAndDownAreNoOtherWayRound() { QVERIFY(upperHalf(upPixmap()) < upperHalf(downPixmap())); }

private:
    /// Of the upper half the number of pixels that aren't transparent.
    static int upperHalf(const QPixmap& pixmap)
    {
        const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        int count = 0;
        for (int i = 0; i < 128; ++i)
            count += qAlpha(image.pixel(i % 16, i / 16)) != 0;
        return count;
    }
    /// What edits the last cell of the table's first row.
    std::unique_ptr<QWidget> cellEditor() const
    {
        const TableInput table = this->table();
        return std::unique_ptr<QWidget>(table->itemDelegate()->createEditor(
            table->viewport(), {}, table->model()->index(0, table->columnCount() - 1)));
    }
};

QTEST_MAIN(TestEditorLayout)
#include "test_editor_layout.moc"
