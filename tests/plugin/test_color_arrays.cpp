// SPDX-License-Identifier: BSD-3-Clause
#include "DialogInput.h"
#include "EditorFixture.h"
#include "TextRows.h"

#include <QColorDialog>

#include <functional>

namespace {

QColor swatch(const TableInput& table, int row)
{
    const QImage picture = table->viewport()->grab(table.cell(row, 0)).toImage();
    return picture.pixelColor(picture.rect().center());
}

} // namespace

/// Arrays of colours.
class TestColorArrays : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
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
        show(type, values);
        const QString blank = table()->palette().base().color().name();
        QCOMPARE(swatch(table(), 0).name().replace(blank, QStringLiteral("blank")), color);
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
        const KnField& field = show(type, start);
        table()->setCurrentCell(0, 2);
        QVERIFY(chooseInRow1([&](QColorDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("color dialog"));
            QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), hasAlpha);
            QCOMPARE(dialog->currentColor(), QColor(255, 127, 0));
            dialog->setCurrentColor(QColor(51, 0, 255, 51));
            QTest::keyClick(dialog, Qt::Key_Return);
        }));
        QCOMPARE(text(&field), edited);
        QVERIFY(swatch(table(), 1) != QColor(255, 127, 0));
        QCOMPARE(commands(), 1);
        undo();
        QCOMPARE(text(&field), start);
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
        KnMFColor& other = otherNode().MFColor;
        other.setNum(2);
        KnField& field = show(QStringLiteral("MFColor"), start);
        QVERIFY(chooseInRow1([&, outside = outside](QColorDialog* dialog) {
            dialog->setCurrentColor(Qt::green);
            change(field, outside);
            settle();
            if (isOtherShown)
                select(&other);
            QTest::keyClick(dialog, Qt::Key_Return);
        }));
        QCOMPARE(text(&field), end);
        QCOMPARE(text(&other), QStringLiteral("[ 0 0 0, 0 0 0 ]"));
        QCOMPARE(commands(), end.contains(u"0 1 0") ? 1 : 0);
    }

    void theSwatchIsNoCellToTypeIn()
    {
        const KnField& field = show("MFColor", "[ 0 0 0, 1 1 1 ]");
        const TableInput table = this->table();
        QVERIFY(chooseInRow1([](QColorDialog* dialog) {
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
        settle();
        QVERIFY(!table.openEditor());
        QCOMPARE(text(&field), QStringLiteral("[ 0 0 0.5, 1 1 1 ]"));
    }

private:
    /// Clicks the swatch of the second row. False if that opens no dialog.
    bool chooseInRow1(const std::function<void(QColorDialog*)>& use)
    {
        return inDialogOpenedBy<QColorDialog>([this] { table().click(1, 0); }, use);
    }
};

QTEST_MAIN(TestColorArrays)
#include "test_color_arrays.moc"
