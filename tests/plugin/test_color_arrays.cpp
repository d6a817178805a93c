// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "DialogInput.h"
#include "TextRows.h"

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
class TestColorArrays : public ArrayTest {
    Q_OBJECT
private Q_SLOTS:
    static void initMain() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void theSwatchShowsTheColor_data()
    {
        addTextRows({
            { "MFColor", "[ 1 0.5 0 ]", "#ff7f00" },
            { "MFColor", "[ -0.003 1.003 0 ]", "#00ff00" },
            { "MFColor", "[ -0.004 0 0 ]", "blank" },
            { "MFColor", "[ 0 nan 0 ]", "blank" },
            { "MFColorRGBA", "[ 1 0.5 0 1 ]", "#ff7f00" },
            { "MFColorRGBA", "[ 1 0.5 0 0 ]", "blank" },
            { "MFColorRGBA", "[ 1 0.5 0 1.01 ]", "blank" },
        });
    }

    void theSwatchShowsTheColor()
    {
        const auto [type, values, color] = textRow<3>();
        ArrayFixture& fixture = *m_fixture;
        fixture.show(type, values);
        const QString blank = fixture.table()->palette().base().color().name();
        QCOMPARE(swatch(fixture.table(), 0).name().replace(blank, QStringLiteral("blank")), color);
    }

    void oneClickOpensTheDialog_data()
    {
        addTextRows({
            { "MFColor", "[ 0 0 0, 1 0.5 0 ]", "[ 0 0 0, 0.2 0 1 ]" },
            { "MFColorRGBA", "[ 0 0 0 0, 1 0.5 0 1 ]", "[ 0 0 0 0, 0.2 0 1 0.2 ]" },
        });
    }

    void oneClickOpensTheDialog()
    {
        const auto [type, start, edited] = textRow<3>();
        const bool hasAlpha = type.endsWith(u'A');
        ArrayFixture& fixture = *m_fixture;
        const KnField& field = fixture.show(type, start);
        fixture.table()->setCurrentCell(0, 2);
        QVERIFY(chooseInRow1(fixture, [&](QColorDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("color dialog"));
            QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), hasAlpha);
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
        // What another part of the program does behind the dialog, and what becomes of a green
        // for the second row.
        addTextRows({
            { "another field", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0, 1 0 0 ]" },
            { "gone", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0 ]", "[ 0 0 0 ]" },
            { "added above equal ones", "[ 1 0 0, 1 0 0 ]", "[ 0 0 1, 1 0 0, 1 0 0 ]",
                "[ 0 0 1, 1 0 0, 1 0 0 ]" },
            { "one gone, one come", "[ 0 0 0, 1 0 0 ]", "[ 1 0 0, 0 0 1 ]", "[ 1 0 0, 0 0 1 ]" },
            { "written in place", "[ 0 0 0, 1 0 0 ]", "[ 0 0 0, 1 1 0 ]", "[ 0 0 0, 0 1 0 ]" },
            { "equal one gone above", "[ 1 0 0, 1 0 0, 1 0 0 ]", "-0", "[ 1 0 0, 1 0 0 ]" },
            { "others written", "[ 0 0 0, 1 0 0 ]", "[ 0 0 1, 1 0 0 ]", "[ 0 0 1, 0 1 0 ]" },
        });
    }

    void aColorReachesItsRowOrNone()
    {
        const auto [name, start, outside, end] = textRow<4>();
        const bool isOtherShown = start == outside;
        ArrayFixture& fixture = *m_fixture;
        KnMFColor& other = fixture.otherNode().MFColor;
        other.setNum(2);
        KnField& field = fixture.show(QStringLiteral("MFColor"), start);
        QVERIFY(chooseInRow1(fixture, [&](QColorDialog* dialog) {
            dialog->setCurrentColor(Qt::green);
            ArrayFixture::change(field, outside);
            EditorFixture::settle();
            if (isOtherShown)
                fixture.select(&other);
            QTest::keyClick(dialog, Qt::Key_Return);
        }));
        QCOMPARE(EditorFixture::text(&field), end);
        QCOMPARE(EditorFixture::text(&other), QStringLiteral("[ 0 0 0, 0 0 0 ]"));
        QCOMPARE(fixture.commands(), end.contains(u"0 1 0") ? 1 : 0);
    }

    void theSwatchIsNoCellToTypeIn()
    {
        ArrayFixture& fixture = *m_fixture;
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
        // Tab goes from the end of a row to the swatch of the next one.
        QTest::keyClick(table.type(0, 3, QStringLiteral("0.5")), Qt::Key_Tab);
        EditorFixture::settle();
        QVERIFY(!table.openEditor());
        QCOMPARE(EditorFixture::text(&field), QStringLiteral("[ 0 0 0.5, 1 1 1 ]"));
    }
};

QTEST_MAIN(TestColorArrays)
#include "test_color_arrays.moc"
