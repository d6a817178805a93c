// SPDX-License-Identifier: BSD-3-Clause
#include "TableInput.h"

#include <QRandomGenerator>
#include <QUndoStack>

#include <bit>

namespace {

WfMFieldWidget& editor(const EditorFixture& fixture)
{
    return *static_cast<WfMFieldWidget*>(fixture.editor());
}

/// So many floats of any bits but those of infinity and of no number.
QString randomRow(QRandomGenerator& random, int count)
{
    QStringList numbers;
    while (numbers.size() < count) {
        const float number = std::bit_cast<float>(random.generate());
        if (std::isfinite(number))
            numbers << QString::number(double(number), 'g', 9);
    }
    return numbers.join(u' ');
}

} // namespace

/// Arrays of vectors, planes, rotations and colours, component by component.
class TestVectorArrays : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void columns_data()
    {
        QTest::addColumn<QString>("headers");
        QTest::newRow("MFVec2f") << QStringLiteral("x y");
        QTest::newRow("MFVec2i32") << QStringLiteral("x y");
        QTest::newRow("MFVec2s") << QStringLiteral("x y");
        QTest::newRow("MFVec3f") << QStringLiteral("x y z");
        QTest::newRow("MFVec4f") << QStringLiteral("x y z w");
        QTest::newRow("MFPlane") << QStringLiteral("x y z distance");
        QTest::newRow("MFRotation") << QStringLiteral("x y z radians");
        QTest::newRow("MFColor") << QStringLiteral("Color R G B");
        QTest::newRow("MFColorRGBA") << QStringLiteral("Color R G B A");
    }
    void columns()
    {
        QFETCH(QString, headers);
        EditorFixture fixture;
        auto* const field = static_cast<KnMField*>(fixture.field(QTest::currentDataTag()));
        field->setNum(3);
        fixture.select(field);
        const TableInput table(fixture);
        QStringList shown;
        for (int column = 0; column < table->columnCount(); ++column)
            shown << table->horizontalHeaderItem(column)->text();
        QCOMPARE(shown.join(u' '), headers);

        // Cells that aren't there, or not any more, are left alone.
        const QString before = EditorFixture::text(field);
        const KbVec4f color;
        WfMFieldWidget& widget = editor(fixture);
        for (const int row : { -1, 3, 1000000 }) {
            widget.setFieldValue(row, 0, QStringLiteral("1"));
            widget.setFieldColor(row, &color);
            widget.swapFieldValues(row, 0);
            widget.swapFieldValues(0, row);
            QCOMPARE(widget.getCellText(row, 1), QString());
        }
        QCOMPARE(widget.getCellText(0, -1), QString());
        QCOMPARE(widget.getCellText(0, int(shown.size())), QString());
        QCOMPARE(EditorFixture::text(field), before);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void anEditGoesBackBitForBit_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("MFVec2f") << 2;
        QTest::newRow("MFPlane") << 4;
        QTest::newRow("MFRotation") << 4;
    }
    void anEditGoesBackBitForBit()
    {
        QFETCH(int, count);
        EditorFixture fixture;
        KnField* const field = fixture.field(QTest::currentDataTag());
        QRandomGenerator random(count);
        QStringList rows;
        for (int row = 0; row < 50; ++row)
            rows << randomRow(random, count);
        const QString text = QStringLiteral("[ %1 ]").arg(rows.join(QStringLiteral(", ")));
        EditorFixture::write(field, text.toLatin1().constData());
        fixture.select(field);
        const QString before = EditorFixture::text(field);
        for (int row = 0; row < rows.size(); ++row) {
            editor(fixture).setFieldValue(row, row % count, QStringLiteral("0.25"));
            const QString edited = EditorFixture::text(field);
            QVERIFY(edited != before);
            fixture.undo();
            QCOMPARE(EditorFixture::text(field), before);
            fixture.redo();
            QCOMPARE(EditorFixture::text(field), edited);
            fixture.undo();
        }
    }

    void typing_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown"); // in a cell that held 8
        const auto row = [](const char* type, const char* typed, const char* shown) {
            QTest::addRow("%s: %s", type, typed)
                << QString::fromLatin1(typed) << QString::fromLatin1(shown);
        };
        row("MFVec2f", "1234567.8", "1.23457e+06");
        row("MFVec2f", "1,5", "15");
        row("MFVec2f", "1e39", "8");
        row("MFVec2i32", "1.5", "15");
        row("MFVec2i32", "2147483648", "8");
        row("MFVec2s", "-32768", "-32768");
        row("MFVec2s", "32768", "0");
    }
    void typing()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        EditorFixture fixture;
        KnField* const field
            = fixture.field(QByteArray(QTest::currentDataTag()).split(':').first().constData());
        EditorFixture::write(field, "[ 8 8 ]");
        fixture.select(field);
        TableInput(fixture).typeInto(0, 1, typed);
        QCOMPARE(editor(fixture).getCellText(0, 1), shown);
        QCOMPARE(fixture.undoStack().count(), shown == QLatin1String("8") ? 0 : 1);
    }

    void rowsAreExchangedWithoutACommand_data()
    {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QByteArray>("second");
        // Neither normal nor axis has the length 1.
        QTest::newRow("MFPlane") << QByteArray("1 2 3 4") << QByteArray("0 0 0.1 6");
        QTest::newRow("MFRotation") << QByteArray("1 2 3 4") << QByteArray("0 0 0.1 6");
        QTest::newRow("MFColor") << QByteArray("1 2 3") << QByteArray("4 5 6");
        QTest::newRow("MFMatrix") << QByteArray("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16")
                                  << QByteArray("1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1");
    }
    void rowsAreExchangedWithoutACommand()
    {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, second);
        EditorFixture fixture;
        KnField* const field = fixture.field(QTest::currentDataTag());
        EditorFixture::write(field, ("[ " + first + ", " + second + " ]").constData());
        fixture.select(field);
        editor(fixture).swapFieldValues(0, 1);
        editor(fixture).swapFieldValues(1, 1);
        QCOMPARE(
            EditorFixture::text(field), QString::fromLatin1("[ " + second + ", " + first + " ]"));
        QCOMPARE(fixture.undoStack().count(), 0);
    }
};

QTEST_MAIN(TestVectorArrays)
#include "test_vector_arrays.moc"
