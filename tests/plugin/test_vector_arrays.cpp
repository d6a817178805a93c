// SPDX-License-Identifier: BSD-3-Clause
#include "TableInput.h"

#include <QHeaderView>
#include <QRandomGenerator>
#include <QUndoStack>

#include <bit>

namespace {

WfMFieldWidget& editor(const EditorFixture& fixture)
{
    return *static_cast<WfMFieldWidget*>(fixture.editor());
}

/// A text of a row of 3 or 4 floats of any bits but those of infinity and of no number.
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

/// Arrays of vectors, planes and rotations.
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
        fixture.select(fixture.field(QTest::currentDataTag()));
        const TableInput table(fixture);
        QStringList shown;
        for (int column = 0; column < table->columnCount(); ++column) {
            shown << table->horizontalHeaderItem(column)->text();
            QCOMPARE(
                table->horizontalHeader()->sectionResizeMode(column), QHeaderView::Interactive);
        }
        QCOMPARE(shown.join(u' '), headers);
        QCOMPARE(editor(fixture).getCellAlignment(), int(Qt::AlignLeft));
    }

    void anEditGoesBackBitForBit_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("MFVec2f") << 2;
        QTest::newRow("MFVec3f") << 3;
        QTest::newRow("MFVec4f") << 4;
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
        for (int row = 0; row < 60; ++row)
            rows << randomRow(random, count);
        const QString text = QStringLiteral("[ %1 ]").arg(rows.join(QStringLiteral(", ")));
        EditorFixture::write(field, text.toLatin1().constData());
        fixture.select(field);
        const QString before = EditorFixture::text(field);
        for (int row = 0; row < rows.size(); ++row) {
            const int column = row % count;
            const QString shown = editor(fixture).getCellText(row, column);
            editor(fixture).setFieldValue(row, column, QStringLiteral("0.25"));
            const QString edited = EditorFixture::text(field);
            QCOMPARE(fixture.undoStack().count(), 1);
            fixture.undo();
            QCOMPARE(EditorFixture::text(field), before);
            QCOMPARE(editor(fixture).getCellText(row, column), shown);
            fixture.redo();
            QCOMPARE(EditorFixture::text(field), edited);
            fixture.undo();
        }
    }

    void oneComponentIsWrittenAndTheOthersKeepTheirBits_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("edited"); // with 0.5 there
        const auto row = [](const char* type, const char* start, int column, const char* edited) {
            QTest::newRow(type) << QString::fromLatin1(start) << column
                                << QString::fromLatin1(edited);
        };
        row("MFVec2f", "[ 0.12345679 1, 7 7 ]", 1, "[ 0.12345679 0.5, 7 7 ]");
        row("MFVec3f", "[ 0.12345679 1 1e-20, 7 7 7 ]", 1, "[ 0.12345679 0.5 1e-20, 7 7 7 ]");
        row("MFPlane", "[ 3 4 0 0.12345679, 0 0 1 0 ]", 1, "[ 3 0.5 0 0.12345679, 0 0 1 0 ]");
        row("MFColor", "[ 0.12345679 1 2, 1 1 1 ]", 2, "[ 0.12345679 0.5 2, 1 1 1 ]");
        row("MFColorRGBA", "[ 0.12345679 1 2 3, 0 0 0 0 ]", 4, "[ 0.12345679 1 2 0.5, 0 0 0 0 ]");
    }
    void oneComponentIsWrittenAndTheOthersKeepTheirBits()
    {
        QFETCH(QString, start);
        QFETCH(int, column);
        QFETCH(QString, edited);
        EditorFixture fixture;
        KnField* const field = fixture.field(QTest::currentDataTag());
        EditorFixture::write(field, start.toLatin1().constData());
        fixture.select(field);
        TableInput(fixture).typeInto(0, column, QStringLiteral("0.5"));
        QCOMPARE(EditorFixture::text(field), edited);
        fixture.undo();
        QCOMPARE(EditorFixture::text(field), start);
    }

    void typing_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown"); // in a cell that held 8
        const auto row = [](const char* type, const char* typed, const char* shown) {
            QTest::addRow("%s: %s", type, typed)
                << QString::fromLatin1(typed) << QString::fromLatin1(shown);
        };
        row("MFVec3f", "0.1", "0.1");
        row("MFVec3f", "1234567.8", "1.23457e+06");
        row("MFVec3f", "1,5", "15");
        row("MFVec3f", "-", "8");
        row("MFVec3f", "1e39", "8");
        row("MFVec2i32", "1.5", "15");
        row("MFVec2i32", "-2147483647", "-2147483647");
        row("MFVec2i32", "2147483648", "8");
        row("MFVec2s", "-32768", "-32768");
        row("MFVec2s", "32768", "0");
        row("MFVec2s", "0x10", "0");
    }
    void typing()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        EditorFixture fixture;
        const QByteArray type = QByteArray(QTest::currentDataTag()).split(':').first();
        KnField* const field = fixture.field(type.constData());
        EditorFixture::write(field, type == "MFVec3f" ? "[ 8 8 8 ]" : "[ 8 8 ]");
        fixture.select(field);
        TableInput(fixture).typeInto(0, 1, typed);
        QCOMPARE(editor(fixture).getCellText(0, 1), shown);
        QCOMPARE(fixture.undoStack().count(), shown == QLatin1String("8") ? 0 : 1);
    }

    void cellsThatAreNotThereAreLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("type");
        for (const char* type : { "MFVec2f", "MFVec2i32", "MFVec2s", "MFVec3f", "MFVec4f",
                 "MFPlane", "MFRotation", "MFColor", "MFColorRGBA", "MFMatrix" })
            QTest::newRow(type) << QByteArray(type);
    }
    void cellsThatAreNotThereAreLeftAlone()
    {
        QFETCH(QByteArray, type);
        EditorFixture fixture;
        auto* const field = static_cast<KnMField*>(fixture.field(type.constData()));
        field->setNum(3);
        fixture.select(field);
        const QString before = EditorFixture::text(field);
        WfMFieldWidget& widget = editor(fixture);
        // Whose cells show the whole field.
        const bool isMatrix = widget.objectName() == QLatin1String("WfMFMatrixWidget");
        const KbVec4f color;
        for (const int row : { -1, 3, 1000000 }) {
            widget.setFieldValue(row, 0, QStringLiteral("1"));
            widget.setFieldColor(row, &color);
            widget.swapFieldValues(row, 0);
            widget.swapFieldValues(0, row);
            QVERIFY(widget.getCellText(row, 1).isEmpty() || isMatrix);
        }
        QVERIFY(widget.getCellText(0, -1).isEmpty() || isMatrix);
        QVERIFY(widget.getCellText(0, 5).isEmpty() || isMatrix);
        QCOMPARE(EditorFixture::text(field), before);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void aCommitForALostRowTouchesNothing_data()
    {
        QTest::addColumn<QByteArray>("type");
        for (const char* type : { "MFVec3f", "MFRotation", "MFColor" })
            QTest::newRow(type) << QByteArray(type);
    }
    void aCommitForALostRowTouchesNothing()
    {
        QFETCH(QByteArray, type);
        EditorFixture fixture;
        auto* const field = static_cast<KnMField*>(fixture.field(type.constData()));
        field->setNum(3);
        fixture.select(field);
        QLineEdit* const line = TableInput(fixture).type(2, 1, QStringLiteral("0.5"));
        // Without the refresh that would close the line.
        field->setNum(2);
        const QString before = EditorFixture::text(field);
        QTest::keyClick(line, Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(field), before);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void rowsAreExchangedWithoutACommand_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<QString>("swapped");
        QTest::newRow("MFVec2s") << QByteArray("[ 1 2, 3 4, 5 6 ]")
                                 << QStringLiteral("[ 5 6, 3 4, 1 2 ]");
        // Neither normal nor axis has the length 1.
        QTest::newRow("MFPlane") << QByteArray("[ 1 2 3 4, 0 0 1 0, 0 0 0.1 6 ]")
                                 << QStringLiteral("[ 0 0 0.1 6, 0 0 1 0, 1 2 3 4 ]");
        QTest::newRow("MFRotation") << QByteArray("[ 1 2 3 4, 0 0 1 0, 0 0 0.1 6 ]")
                                    << QStringLiteral("[ 0 0 0.1 6, 0 0 1 0, 1 2 3 4 ]");
        QTest::newRow("MFColor") << QByteArray("[ 1 2 3, 0 0 0, 4 5 6 ]")
                                 << QStringLiteral("[ 4 5 6, 0 0 0, 1 2 3 ]");
        QTest::newRow("MFMatrix") << QByteArray("[ 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16, \"\","
                                                " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 ]")
                                  << QStringLiteral("[ 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0, "
                                                    "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1, "
                                                    "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 ]");
    }
    void rowsAreExchangedWithoutACommand()
    {
        QFETCH(QByteArray, start);
        QFETCH(QString, swapped);
        EditorFixture fixture;
        KnField* const field = fixture.field(QTest::currentDataTag());
        EditorFixture::write(field, start.constData());
        fixture.select(field);
        editor(fixture).swapFieldValues(0, 2);
        QCOMPARE(EditorFixture::text(field), swapped);
        editor(fixture).swapFieldValues(1, 1);
        QCOMPARE(EditorFixture::text(field), swapped);
        QCOMPARE(fixture.undoStack().count(), 0);
    }
};

QTEST_MAIN(TestVectorArrays)
#include "test_vector_arrays.moc"
