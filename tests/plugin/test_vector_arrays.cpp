// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "TextRows.h"

#include <QRandomGenerator>

#include <bit>

namespace {

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

    void anEditGoesBackBitForBit_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("MFVec2f") << 2;
        QTest::newRow("MFPlane") << 4;
        QTest::newRow("MFRotation") << 4;
        QTest::newRow("MFColor") << 3;
    }

    void anEditGoesBackBitForBit()
    {
        QFETCH(int, count);
        ArrayFixture fixture;
        KnField& field = fixture.show(QTest::currentDataTag(), randomArray(count));
        auto* const editor = static_cast<WfMFieldWidget*>(fixture.editor());
        const QString before = EditorFixture::text(&field);
        for (int row = 0; row < 50; ++row) {
            editor->setFieldValue(row, row % count, QStringLiteral("0.25"));
            const QString edited = EditorFixture::text(&field);
            QVERIFY(edited != before);
            fixture.undo();
            QCOMPARE(EditorFixture::text(&field), before);
            fixture.redo();
            QCOMPARE(EditorFixture::text(&field), edited);
            fixture.undo();
        }
        const int commands = fixture.commands();
        // Rows are exchanged as exactly, and without a command.
        editor->swapFieldValues(0, 1);
        const QString between = QStringLiteral(", ");
        QStringList rows = before.mid(2).split(between);
        rows.swapItemsAt(0, 1);
        QCOMPARE(EditorFixture::text(&field), before.left(2) + rows.join(between));
        QCOMPARE(fixture.commands(), commands);
    }

    void typing_data()
    {
        // Into the second column. Return in a line that nobody changed writes the value that is
        // there, of which the line shows six digits; so does typing these digits.
        addTextRows({
            { "MFVec2f", "[ 8 8 ]", "1234567.8", "[ 8 1234567.8 ]" },
            { "MFVec2f", "[ 8 8 ]", "1,5", "[ 8 15 ]" },
            { "MFVec2f", "[ 8 8 ]", "1e39", "[ 8 8 ]" },
            { "MFVec2i32", "[ 8 8 ]", "1.5", "[ 8 15 ]" },
            { "MFVec2i32", "[ 8 8 ]", "2147483648", "[ 8 8 ]" },
            { "MFVec2s", "[ 8 8 ]", "-32768", "[ 8 -32768 ]" },
            { "MFVec2s", "[ 8 8 ]", "32768", "[ 8 0 ]" },
            { "MFVec2s", "[ 8 8 ]", "word", "[ 8 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "0.123457", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "-0.000001", "[ 0.12345679 0 0 ]" },
            { "MFColor", "[ 0.12345679 0 0 ]", "1", "[ 1 0 0 ]" },
        });
    }

    void typing()
    {
        const auto [type, start, typed, end] = textRow<4>();
        ArrayFixture fixture;
        const KnField& field = fixture.show(type, start);
        QLineEdit* const line = TableInput::line(fixture.table().open(0, 1));
        if (!typed.isEmpty())
            line->selectAll();
        QTest::keyClicks(line, typed);
        fixture.press(Qt::Key_Return);
        QCOMPARE(EditorFixture::text(&field), end);
        const bool isShown = typed.isEmpty() || typed == u"0.123457";
        QCOMPARE(fixture.commands(), start != end || isShown ? 1 : 0);
    }
};

QTEST_MAIN(TestVectorArrays)
#include "test_vector_arrays.moc"
