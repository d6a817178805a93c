// SPDX-License-Identifier: BSD-3-Clause
#include "DialogInput.h"
#include "TableInput.h"

#include <QColorDialog>
#include <QUndoStack>

#include <functional>

namespace {

/// What goes on in the open dialog and behind it.
using Use = std::function<void(EditorFixture&, QColorDialog*)>;

/// Selects the field of a type with these rows.
TableInput show(EditorFixture& fixture, const char* type, const char* text)
{
    EditorFixture::write(fixture.field(type), text);
    fixture.select(fixture.field(type));
    return TableInput(fixture);
}

QColor swatch(const TableInput& table, int row)
{
    const QImage picture = table->viewport()->grab(table.cell(row, 0)).toImage();
    return picture.pixelColor(picture.rect().center());
}

/// Clicks the swatch of the second row. False if that opens no dialog.
bool chooseInRow1(EditorFixture& fixture, const Use& use)
{
    return inDialogOpenedBy<QColorDialog>([&fixture] { TableInput(fixture).click(1, 0); },
        [&](QColorDialog* dialog) { use(fixture, dialog); });
}

} // namespace

/// Arrays of colours.
class TestColorArrays : public QObject {
    Q_OBJECT
private Q_SLOTS:
    static void initMain() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { failOnWarnings(); }

    void theSwatchShowsTheColor_data()
    {
        QTest::addColumn<QByteArray>("row");
        QTest::addColumn<QColor>("shown"); // invalid for a blank cell
        const auto row = [](const char* type, const char* text, const QColor& shown) {
            QTest::addRow("%s %s", type, text) << QByteArray(text) << shown;
        };
        row("MFColor", "1 0.5 0", QColor(255, 127, 0));
        row("MFColor", "-0.003 1 0", QColor(0, 255, 0));
        row("MFColor", "1.01 0 0", QColor());
        row("MFColor", "0 nan 0", QColor());
        row("MFColorRGBA", "1 0.5 0 1", QColor(255, 127, 0));
        row("MFColorRGBA", "1 0.5 0 0", QColor());
        row("MFColorRGBA", "1 0.5 0 1.01", QColor());
    }
    void theSwatchShowsTheColor()
    {
        QFETCH(QByteArray, row);
        QFETCH(QColor, shown);
        EditorFixture fixture;
        const QByteArray type = QByteArray(QTest::currentDataTag()).split(' ').first();
        const TableInput table = show(fixture, type.constData(), row.constData());
        QCOMPARE(swatch(table, 0), shown.isValid() ? shown : table->palette().base().color());
    }

    void oneClickOpensTheDialog_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<bool>("hasAlpha");
        QTest::addColumn<QString>("edited");
        QTest::newRow("MFColor") << QByteArray("[ 0 0 0, 1 0.5 0, 1 1 1 ]") << false
                                 << QStringLiteral("[ 0 0 0, 0.2 0 1, 1 1 1 ]");
        QTest::newRow("MFColorRGBA") << QByteArray("[ 0 0 0 0, 1 0.5 0 1, 1 1 1 1 ]") << true
                                     << QStringLiteral("[ 0 0 0 0, 0.2 0 1 0.2, 1 1 1 1 ]");
    }
    void oneClickOpensTheDialog()
    {
        QFETCH(QByteArray, start);
        QFETCH(bool, hasAlpha);
        QFETCH(QString, edited);
        EditorFixture fixture;
        const TableInput table = show(fixture, QTest::currentDataTag(), start.constData());
        table->setCurrentCell(2, 2);
        const QColor before = swatch(table, 1);
        QVERIFY(chooseInRow1(fixture, [&](EditorFixture&, QColorDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("color dialog"));
            QCOMPARE(dialog->parentWidget(), table.operator->());
            QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), hasAlpha);
            QCOMPARE(dialog->currentColor(), QColor(255, 127, 0));
            dialog->setCurrentColor(QColor(51, 0, 255, 51));
            QTest::keyClick(dialog, Qt::Key_Return);
        }));
        KnField* const field = fixture.field(QTest::currentDataTag());
        QCOMPARE(EditorFixture::text(field), edited);
        QVERIFY(swatch(table, 1) != before);
        QCOMPARE(fixture.undoStack().count(), 1);
        fixture.undo();
        QCOMPARE(EditorFixture::text(field), QString::fromLatin1(start));
    }

    void theDialogWritesNothing_data()
    {
        QTest::addColumn<Use>("use");
        QTest::newRow("when it is cancelled") << Use(
            [](EditorFixture&, QColorDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        QTest::newRow("into another field") << Use([](EditorFixture& fixture, QColorDialog*) {
            fixture.select(fixture.otherField("MFColor"));
        });
        QTest::newRow("into a lost row") << Use([](EditorFixture& fixture, QColorDialog*) {
            EditorFixture::write(fixture.field("MFColor"), "[ 0 0 0 ]");
        });
        QTest::newRow("into another row") << Use([](EditorFixture& fixture, QColorDialog*) {
            EditorFixture::write(fixture.field("MFColor"), "[ 0 0 0, 0 0 1, 1 0 0 ]");
        });
    }
    void theDialogWritesNothing()
    {
        QFETCH(Use, use);
        EditorFixture fixture;
        fixture.otherNode().MFColor.setNum(2);
        show(fixture, "MFColor", "[ 0 0 0, 1 0 0 ]");
        const auto texts = [&fixture] {
            return EditorFixture::text(fixture.field("MFColor"))
                + EditorFixture::text(fixture.otherField("MFColor"));
        };
        QString before;
        QVERIFY(chooseInRow1(fixture, [&](EditorFixture&, QColorDialog* dialog) {
            dialog->setCurrentColor(Qt::green);
            use(fixture, dialog);
            before = texts();
            if (dialog->isVisible())
                QTest::keyClick(dialog, Qt::Key_Return);
        }));
        QCOMPARE(texts(), before);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void theSwatchIsNoCellToTypeIn()
    {
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 0 0 0, 1 1 1 ]");
        QVERIFY(chooseInRow1(fixture,
            [](EditorFixture&, QColorDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }));
        QTest::keyClicks(table.operator->(), QStringLiteral("5"));
        QVERIFY(!table.openEditor());
        // Tab goes from the end of a row to the swatch of the next one.
        QTest::keyClick(table.type(0, 3, QStringLiteral("0.5")), Qt::Key_Tab);
        EditorFixture::settle();
        QVERIFY(!table.openEditor());
        QCOMPARE(
            EditorFixture::text(fixture.field("MFColor")), QStringLiteral("[ 0 0 0.5, 1 1 1 ]"));
    }

    void components_data()
    {
        QTest::addColumn<QString>("red"); // of one that was 0.50196081 and shows 0.501961
        QTest::addColumn<int>("commands");
        // Return in a line that nobody changed writes the value that is there.
        QTest::newRow("") << QStringLiteral("0.50196081") << 1;
        QTest::newRow("1.5") << QStringLiteral("0.50196081") << 0;
        QTest::newRow("-0.000001") << QStringLiteral("0.50196081") << 0;
        QTest::newRow("0") << QStringLiteral("0") << 1;
        QTest::newRow("1") << QStringLiteral("1") << 1;
    }
    void components()
    {
        QFETCH(QString, red);
        QFETCH(int, commands);
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 0.50196081 0 0 ]");
        const QString typed = QString::fromLatin1(QTest::currentDataTag());
        QLineEdit* const line = TableInput::line(table.open(0, 1));
        if (!typed.isEmpty()) {
            line->selectAll();
            QTest::keyClicks(line, typed);
        }
        QTest::keyClick(line, Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(fixture.undoStack().count(), commands);
        KnMFColor expected;
        expected.set(QStringLiteral("[ %1 0 0 ]").arg(red).toLatin1().constData());
        QCOMPARE(EditorFixture::text(fixture.field("MFColor")), EditorFixture::text(&expected));
    }
};

QTEST_MAIN(TestColorArrays)
#include "test_color_arrays.moc"
