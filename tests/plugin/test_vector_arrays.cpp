// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"

#include <QRandomGenerator>

#include <bit>

namespace {

WfMFieldWidget& editor(const EditorFixture& fixture)
{
    return *static_cast<WfMFieldWidget*>(fixture.editor());
}

/// The text of 50 rows of floats of any bits but those of infinity and of no number.
QByteArray randomArray(int count)
{
    QRandomGenerator random(count);
    QByteArray text;
    for (int i = 0; i < 50 * count; ++i) {
        const float number = std::bit_cast<float>(random.generate());
        text += i % count == 0 ? ", " : " ";
        text += QByteArray::number(std::isfinite(number) ? double(number) : 1.0, 'g', 9);
    }
    return '[' + text.mid(1) + " ]";
}

} // namespace

/// Arrays of vectors, planes, rotations and colours, component by component.
class TestVectorArrays : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void columns()
    {
        ArrayFixture fixture;
        const std::pair<const char*, const char*> types[]
            = { { "MFVec2f", "x y" }, { "MFVec2i32", "x y" }, { "MFVec2s", "x y" },
                  { "MFVec3f", "x y z" }, { "MFVec4f", "x y z w" }, { "MFPlane", "x y z distance" },
                  { "MFRotation", "x y z radians" }, { "MFColor", "Color R G B" },
                  { "MFColorRGBA", "Color R G B A" } };
        for (const auto& [type, headers] : types) {
            static_cast<KnMField*>(fixture.field(type))->setNum(3);
            fixture.select(fixture.field(type));
            QStringList shown;
            for (int column = 0; column < fixture.table()->columnCount(); ++column)
                shown << fixture.table()->horizontalHeaderItem(column)->text();
            QCOMPARE(shown.join(u' '), QLatin1String(headers));

            // Cells that aren't there, or not any more, are left alone.
            const QString before = EditorFixture::text(fixture.field(type));
            const KbVec4f color;
            QString beyond;
            for (const int row : { -1, 3, 1000000 }) {
                editor(fixture).setFieldValue(row, 0, QStringLiteral("1"));
                editor(fixture).setFieldColor(row, &color);
                editor(fixture).swapFieldValues(row, 0);
                editor(fixture).swapFieldValues(0, row);
                beyond += editor(fixture).getCellText(row, 1);
            }
            beyond += editor(fixture).getCellText(0, -1)
                + editor(fixture).getCellText(0, int(shown.size()));
            QCOMPARE(beyond, QString());
            QCOMPARE(EditorFixture::text(fixture.field(type)), before);
            QCOMPARE(fixture.commands(), 0);
        }
    }

    void anEditGoesBackBitForBit()
    {
        ArrayFixture fixture;
        const std::pair<const char*, int> types[]
            = { { "MFVec2f", 2 }, { "MFPlane", 4 }, { "MFRotation", 4 }, { "MFColor", 3 } };
        for (const auto& [type, count] : types) {
            KnField& field = fixture.show(type, randomArray(count));
            const QString before = EditorFixture::text(&field);
            for (int row = 0; row < 50; ++row) {
                editor(fixture).setFieldValue(row, row % count, QStringLiteral("0.25"));
                const QString edited = EditorFixture::text(&field);
                QVERIFY(edited != before);
                fixture.undo();
                QCOMPARE(EditorFixture::text(&field), before);
                fixture.redo();
                QCOMPARE(EditorFixture::text(&field), edited);
                fixture.undo();
            }
            // Rows are exchanged as exactly, and without a command.
            const int commands = fixture.commands();
            editor(fixture).swapFieldValues(0, 1);
            editor(fixture).swapFieldValues(1, 1);
            const QString between = QStringLiteral(", ");
            QStringList rows = before.mid(2).split(between);
            rows.swapItemsAt(0, 1);
            QCOMPARE(EditorFixture::text(&field), before.left(2) + rows.join(between));
            QCOMPARE(fixture.commands(), commands);
        }
    }

    void typing()
    {
        // Into the second column. Return in a line that nobody changed writes the value that is
        // there, of which the line shows six digits.
        const char* const rows[][4] = {
            { "MFVec2f", "[ 8 8 ]", "1234567.8", "[ 8 1234567.8 ]" },
            { "MFVec2f", "[ 8 8 ]", "1,5", "[ 8 15 ]" },
            { "MFVec2f", "[ 8 8 ]", "1e39", "[ 8 8 ]" },
            { "MFVec2i32", "[ 8 8 ]", "1.5", "[ 8 15 ]" },
            { "MFVec2i32", "[ 8 8 ]", "2147483648", "[ 8 8 ]" },
            { "MFVec2s", "[ 8 8 ]", "-32768", "[ 8 -32768 ]" },
            { "MFVec2s", "[ 8 8 ]", "32768", "[ 8 0 ]" },
            { "MFVec2s", "[ 8 8 ]", "word", "[ 8 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "1.5", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "-0.000001", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "0", "[ 0 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "1", "[ 1 0 0 ]" },
        };
        ArrayFixture fixture;
        for (const auto& [type, start, typed, end] : rows) {
            const KnField& field = fixture.show(type, start);
            const int commands = fixture.commands();
            QLineEdit* const line = TableInput::line(fixture.table().open(0, 1));
            if (*typed)
                line->selectAll();
            QTest::keyClicks(line, QLatin1String(typed));
            fixture.press(Qt::Key_Return);
            QCOMPARE(EditorFixture::text(&field), QLatin1String(end));
            QCOMPARE(fixture.commands() - commands, qstrcmp(start, end) != 0 || !*typed ? 1 : 0);
        }
    }
};

QTEST_MAIN(TestVectorArrays)
#include "test_vector_arrays.moc"
