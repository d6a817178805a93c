// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "DialogInput.h"

#include <QColorDialog>

#include <functional>

namespace {

QColor swatch(const TableInput& table, int row)
{
    const QImage picture = table->viewport()->grab(table.cell(row, 0)).toImage();
    return picture.pixelColor(picture.rect().center());
}

/// Clicks the swatch of the second row. False if that opens no dialog.
bool chooseInRow1(ArrayFixture& fixture, const std::function<void(QColorDialog*)>& use)
{
    return inDialogOpenedBy<QColorDialog>([&fixture] { fixture.table().click(1, 0); }, use);
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
        QTest::addColumn<QString>("values");
        QTest::addColumn<QString>("color");
        const auto row = [](const char* type, const char* values, const char* color) {
            QTest::addRow("%s %s", type, values) << values << color;
        };
        row("MFColor", "[ 1 0.5 0 ]", "#ff7f00");
        row("MFColor", "[ -0.003 1 0 ]", "#00ff00");
        row("MFColor", "[ 1.01 0 0 ]", "blank");
        row("MFColor", "[ 0 nan 0 ]", "blank");
        row("MFColorRGBA", "[ 1 0.5 0 1 ]", "#ff7f00");
        row("MFColorRGBA", "[ 1 0.5 0 0 ]", "blank");
        row("MFColorRGBA", "[ 1 0.5 0 1.01 ]", "blank");
    }

    void theSwatchShowsTheColor()
    {
        QFETCH(QString, values);
        QFETCH(QString, color);
        ArrayFixture fixture;
        fixture.show(QString::fromLatin1(QTest::currentDataTag()).section(u' ', 0, 0), values);
        const QString blank = fixture.table()->palette().base().color().name();
        QCOMPARE(swatch(fixture.table(), 0).name().replace(blank, QStringLiteral("blank")), color);
    }

    void oneClickOpensTheDialog_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("edited");
        QTest::newRow("MFColor") << "[ 0 0 0, 1 0.5 0, 1 1 1 ]"
                                 << "[ 0 0 0, 0.2 0 1, 1 1 1 ]";
        QTest::newRow("MFColorRGBA") << "[ 0 0 0 0, 1 0.5 0 1, 1 1 1 1 ]"
                                     << "[ 0 0 0 0, 0.2 0 1 0.2, 1 1 1 1 ]";
    }

    void oneClickOpensTheDialog()
    {
        QFETCH(QString, start);
        QFETCH(QString, edited);
        const QLatin1String type(QTest::currentDataTag());
        ArrayFixture fixture;
        const KnField& field = fixture.show(type, start);
        fixture.table()->setCurrentCell(2, 2);
        QVERIFY(chooseInRow1(fixture, [&](QColorDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("color dialog"));
            QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), type.endsWith(u'A'));
            QCOMPARE(dialog->currentColor(), QColor(255, 127, 0));
            dialog->setCurrentColor(QColor(51, 0, 255, 51));
            QTest::keyClick(dialog, Qt::Key_Return);
        }));
        QCOMPARE(EditorFixture::text(&field), edited);
        QVERIFY(swatch(fixture.table(), 1) != QColor(255, 127, 0));
        QCOMPARE(fixture.commands(), 1);
        fixture.undo();
        QCOMPARE(EditorFixture::text(&field), start);
    }

    void aColorReachesItsRowOrNone_data()
    {
        // What another part of the program does behind the dialog.
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("outside");
        QTest::addColumn<QString>("end"); // of a green one for the second row
        const auto row = [](const char* name, const char* start, const char* outside,
                             const char* end) { QTest::newRow(name) << start << outside << end; };
        row("another field", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0, 1 0 0 ]");
        row("gone", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0 ]", "[ 0 0 0 ]");
        row("added above", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0, 0 0 1, 1 0 0 ]",
            "[ 0 0 0, 0 0 1, 1 0 0 ]");
        row("added above equal ones", "[ 1 0 0, 1 0 0 ]", "[ 0 0 1, 1 0 0, 1 0 0 ]",
            "[ 0 0 1, 1 0 0, 1 0 0 ]");
        row("one gone, one come", "[ 0 0 0, 1 0 0 ]", "[ 1 0 0, 0 0 1 ]", "[ 1 0 0, 0 0 1 ]");
        row("written in place", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0, 1 1 0 ]", "[ 0 0 0, 0 1 0 ]");
        row("others written", "[ 0 0 0, 1 0 0 ]", "[ 0 0 1, 1 0 0 ]", "[ 0 0 1, 0 1 0 ]");
    }

    void aColorReachesItsRowOrNone()
    {
        QFETCH(QString, start);
        QFETCH(QString, outside);
        QFETCH(QString, end);
        ArrayFixture fixture;
        KnMFColor& other = fixture.otherNode().MFColor;
        other.setNum(2);
        KnField& field = fixture.show(QStringLiteral("MFColor"), start);
        QVERIFY(chooseInRow1(fixture, [&](QColorDialog* dialog) {
            dialog->setCurrentColor(Qt::green);
            EditorFixture::write(&field, outside.toLatin1().constData());
            if (start == outside)
                fixture.select(&other);
            QTest::keyClick(dialog, Qt::Key_Return);
        }));
        QCOMPARE(EditorFixture::text(&field), end);
        QCOMPARE(EditorFixture::text(&other), QStringLiteral("[ 0 0 0, 0 0 0 ]"));
        QCOMPARE(fixture.commands(), outside == end ? 0 : 1);
    }

    void theSwatchIsNoCellToTypeIn()
    {
        ArrayFixture fixture;
        const KnField& field = fixture.show("MFColor", "[ 0 0 0, 1 1 1 ]");
        const TableInput table = fixture.table();
        QVERIFY(chooseInRow1(fixture, [](QColorDialog* dialog) {
            dialog->setCurrentColor(Qt::green);
            QTest::keyClick(dialog, Qt::Key_Escape);
        }));
        // The second press of a double click.
        QTest::mouseEvent(
            QTest::MouseDClick, table->viewport(), Qt::LeftButton, {}, table.cell(1, 0).center());
        QVERIFY(!table.openEditor());
        QTest::keyClicks(table.operator->(), QStringLiteral("5"));
        QVERIFY(!table.openEditor());
        // Tab goes from the end of a row to the swatch of the next one.
        QTest::keyClick(table.type(0, 3, QStringLiteral("0.5")), Qt::Key_Tab);
        EditorFixture::settle();
        QVERIFY(!table.openEditor());
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ 0 0 0.5, 1 1 1 ]"));
    }
};

QTEST_MAIN(TestColorArrays)
#include "test_color_arrays.moc"
