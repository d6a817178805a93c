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

    void theSwatchShowsTheColor()
    {
        ArrayFixture fixture;
        const auto swatches = [&fixture](const char* type, const char* text, int rows) {
            fixture.show(type, text);
            const QString blank = fixture.table()->palette().base().color().name();
            QStringList names;
            for (int row = 0; row < rows; ++row)
                names << swatch(fixture.table(), row).name();
            return names.replaceInStrings(blank, QStringLiteral("blank")).join(u' ');
        };
        QCOMPARE(swatches("MFColor", "[ 1 0.5 0, -0.003 1 0, 1.01 0 0, 0 nan 0 ]", 4),
            QStringLiteral("#ff7f00 #00ff00 blank blank"));
        QCOMPARE(swatches("MFColorRGBA", "[ 1 0.5 0 1, 1 0.5 0 0, 1 0.5 0 1.01 ]", 3),
            QStringLiteral("#ff7f00 blank blank"));
    }

    void oneClickOpensTheDialog()
    {
        ArrayFixture fixture;
        const char* const rows[][3] = {
            { "MFColor", "[ 0 0 0, 1 0.5 0, 1 1 1 ]", "[ 0 0 0, 0.2 0 1, 1 1 1 ]" },
            { "MFColorRGBA", "[ 0 0 0 0, 1 0.5 0 1, 1 1 1 1 ]",
                "[ 0 0 0 0, 0.2 0 1 0.2, 1 1 1 1 ]" },
        };
        for (const auto& [type, start, edited] : rows) {
            const KnField& field = fixture.show(type, start);
            fixture.table()->setCurrentCell(2, 2);
            const bool hasAlpha = qstrcmp(type, "MFColorRGBA") == 0;
            QVERIFY(chooseInRow1(fixture, [&](QColorDialog* dialog) {
                QCOMPARE(dialog->windowTitle(), QStringLiteral("color dialog"));
                QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), hasAlpha);
                QCOMPARE(dialog->currentColor(), QColor(255, 127, 0));
                dialog->setCurrentColor(QColor(51, 0, 255, 51));
                QTest::keyClick(dialog, Qt::Key_Return);
            }));
            QCOMPARE(EditorFixture::text(&field), QLatin1String(edited));
            QVERIFY(swatch(fixture.table(), 1) != QColor(255, 127, 0));
            QCOMPARE(fixture.commands(), 1);
            fixture.undo();
            QCOMPARE(EditorFixture::text(&field), QLatin1String(start));
        }
    }

    void aColorReachesNoOtherRow()
    {
        ArrayFixture fixture;
        KnMFColor& other = fixture.otherNode().MFColor;
        other.setNum(2);
        // What another part of the program does behind the dialog: it selects another field, takes
        // the row away, or puts one in front of it.
        const std::pair<bool, const char*> changes[] = { { true, "[ 0 0 0, 1 0 0 ]" },
            { false, "[ 0 0 0 ]" }, { false, "[ 0 0 0, 0 0 1, 1 0 0 ]" } };
        for (const auto& [selectsOther, text] : changes) {
            KnField& field = fixture.show("MFColor", "[ 0 0 0, 1 0 0 ]");
            QVERIFY(chooseInRow1(fixture, [&](QColorDialog* dialog) {
                dialog->setCurrentColor(Qt::green);
                EditorFixture::write(&field, text);
                fixture.select(selectsOther ? &other : &field);
                QTest::keyClick(dialog, Qt::Key_Return);
            }));
            QCOMPARE(EditorFixture::text(&field), QLatin1String(text));
            QCOMPARE(EditorFixture::text(&other), QStringLiteral("[ 0 0 0, 0 0 0 ]"));
            QCOMPARE(fixture.commands(), 0);
        }
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
