// SPDX-License-Identifier: BSD-3-Clause
#include "TableInput.h"

#include <QColorDialog>
#include <QTimer>
#include <QUndoStack>

#include <functional>

namespace {

/// What goes on behind the open dialog and in it.
using Use = std::function<void(EditorFixture&, QColorDialog&)>;

WfMFieldWidget& editor(const EditorFixture& fixture)
{
    return *static_cast<WfMFieldWidget*>(fixture.editor());
}

/// Selects the field of a type with these rows.
TableInput show(EditorFixture& fixture, const char* type, const char* text)
{
    EditorFixture::write(fixture.field(type), text);
    fixture.select(fixture.field(type));
    return TableInput(fixture);
}

/// What a person does with the colour dialog that the next click opens. It must open.
class DialogInput : public QObject {
public:
    explicit DialogInput(const std::function<void(QColorDialog&)>& use)
        : m_use(use)
    {
        connect(&m_timer, &QTimer::timeout, this, &DialogInput::poll);
        m_timer.start(0);
    }
    bool wasOpen() const { return m_wasOpen; }

private:
    void poll()
    {
        auto* const dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        m_timer.stop();
        m_wasOpen = true;
        m_use(*dialog);
    }

    std::function<void(QColorDialog&)> m_use;
    QTimer m_timer;
    bool m_wasOpen = false;
};

void accept(QColorDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }
void cancel(QColorDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }

QColor swatch(const TableInput& table, int row)
{
    const QImage picture = table->viewport()->grab(table.cell(row, 0)).toImage();
    return picture.pixelColor(picture.rect().center());
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
        row("MFColor", "0 0 0", Qt::black);
        row("MFColor", "-0.003 1 0", QColor(0, 255, 0));
        row("MFColor", "1.01 0 0", QColor());
        row("MFColor", "0 -0.1 0", QColor());
        row("MFColor", "nan 0 0", QColor());
        row("MFColor", "0 0 1e30", QColor());
        row("MFColorRGBA", "1 0.5 0 1", QColor(255, 127, 0));
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

    void theSwatchLetsTheGroundThroughByItsAlpha()
    {
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColorRGBA", "[ 1 0 0 1, 1 0 0 0.5, 1 0 0 0 ]");
        QCOMPARE(swatch(table, 0), QColor(Qt::red));
        QCOMPARE(swatch(table, 1).red(), 255);
        QVERIFY(qAbs(swatch(table, 1).green() - 128) <= 1);
        QCOMPARE(swatch(table, 2), table->palette().base().color());
    }

    void theSwatchFollowsTheField()
    {
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 1 0 0, 1 0 0 ]");
        EditorFixture::write(fixture.field("MFColor"), "[ 1 0 0, 0 0 1 ]");
        QCOMPARE(swatch(table, 1), QColor(Qt::blue));
    }

    void theLastOfAMillionRowsIsPainted()
    {
        EditorFixture fixture;
        fixture.node().MFColor.setNum(1000000);
        fixture.node().MFColor.set1Value(999999, KbColor(0, 1, 0));
        fixture.select(fixture.field("MFColor"));
        const TableInput table(fixture);
        table->showTableRow(1000000);
        QCOMPARE(swatch(table, 999999), QColor(Qt::green));
        QCOMPARE(swatch(table, 999998), QColor(Qt::black));
    }

    void oneClickOpensTheDialog_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<bool>("hasAlpha");
        QTest::addColumn<QColor>("chosen");
        QTest::addColumn<QString>("edited");
        QTest::newRow("MFColor") << QByteArray("[ 0 0 0, 1 0.5 0, 1 1 1 ]") << false
                                 << QColor(51, 0, 255, 7)
                                 << QStringLiteral("[ 0 0 0, 0.2 0 1, 1 1 1 ]");
        QTest::newRow("MFColorRGBA")
            << QByteArray("[ 0 0 0 0, 1 0.5 0 1, 1 1 1 1 ]") << true << QColor(51, 0, 255, 51)
            << QStringLiteral("[ 0 0 0 0, 0.2 0 1 0.2, 1 1 1 1 ]");
    }
    void oneClickOpensTheDialog()
    {
        QFETCH(QByteArray, start);
        QFETCH(bool, hasAlpha);
        QFETCH(QColor, chosen);
        QFETCH(QString, edited);
        EditorFixture fixture;
        const TableInput table = show(fixture, QTest::currentDataTag(), start.constData());
        table->setCurrentCell(2, 2);
        const QColor before = swatch(table, 1);
        const DialogInput input([&](QColorDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("color dialog"));
            QCOMPARE(dialog.parentWidget(), table.operator->());
            QCOMPARE(dialog.testOption(QColorDialog::ShowAlphaChannel), hasAlpha);
            QCOMPARE(dialog.currentColor(), QColor(255, 127, 0));
            dialog.setCurrentColor(chosen);
            accept(dialog);
        });
        table.click(1, 0);
        QVERIFY(input.wasOpen());
        EditorFixture::settle();
        KnField* const field = fixture.field(QTest::currentDataTag());
        QCOMPARE(EditorFixture::text(field), edited);
        QVERIFY(swatch(table, 1) != before);
        QCOMPARE(fixture.undoStack().count(), 1);
        fixture.undo();
        QCOMPARE(EditorFixture::text(field), QString::fromLatin1(start));
        fixture.redo();
        QCOMPARE(EditorFixture::text(field), edited);
    }

    void theDialogWritesNothing_data()
    {
        QTest::addColumn<Use>("use");
        QTest::newRow("when it is cancelled") << Use([](EditorFixture&, QColorDialog& dialog) {
            dialog.setCurrentColor(Qt::green);
            cancel(dialog);
        });
        QTest::newRow("of another field") << Use([](EditorFixture& fixture, QColorDialog& dialog) {
            fixture.select(fixture.otherField("MFColor"));
            accept(dialog);
        });
        QTest::newRow("of a lost row") << Use([](EditorFixture& fixture, QColorDialog& dialog) {
            EditorFixture::write(fixture.field("MFColor"), "[ 0 0 0 ]");
            accept(dialog);
        });
        QTest::newRow("of another row") << Use([](EditorFixture& fixture, QColorDialog& dialog) {
            EditorFixture::write(fixture.field("MFColor"), "[ 0 0 0, 0 0 1, 1 0 0 ]");
            accept(dialog);
        });
    }
    void theDialogWritesNothing()
    {
        QFETCH(Use, use);
        EditorFixture fixture;
        fixture.node().MFColor.setNum(2);
        fixture.otherNode().MFColor.setNum(2);
        const TableInput table = show(fixture, "MFColor", "[ 0 0 0, 1 0 0 ]");
        const auto texts = [&fixture] {
            return EditorFixture::text(fixture.field("MFColor"))
                + EditorFixture::text(fixture.otherField("MFColor"));
        };
        QString before;
        const DialogInput input([&](QColorDialog& dialog) {
            use(fixture, dialog);
            before = texts();
        });
        table.click(1, 0);
        QVERIFY(input.wasOpen());
        EditorFixture::settle();
        QCOMPARE(texts(), before);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void theDialogSurvivesAnInvalidColor()
    {
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 2 0 0 ]");
        const DialogInput input(accept);
        table.click(0, 0);
        QVERIFY(input.wasOpen());
        QCOMPARE(fixture.undoStack().count(), 1);
    }

    void onlyTheFirstColumnOpensTheDialog()
    {
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 0 0 0 ]");
        bool isOpened = false;
        const DialogInput input([&](QColorDialog& dialog) {
            isOpened = true;
            cancel(dialog);
        });
        for (int column = 1; column < 4; ++column)
            table.click(0, column);
        EditorFixture::settle();
        QVERIFY(!isOpened);
    }

    void theFirstColumnHasNoLine()
    {
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 0 0 0, 1 1 1 ]");
        const DialogInput input(cancel);
        table.click(0, 0);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, table.cell(0, 0).center());
        QVERIFY(!table.openEditor());
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
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("red"); // which was 0.25
        QTest::newRow("1.5") << QStringLiteral("1.5") << QStringLiteral("0.25");
        QTest::newRow("-0.1") << QStringLiteral("-0.1") << QStringLiteral("0.25");
        QTest::newRow("1.0000001") << QStringLiteral("1.000001") << QStringLiteral("0.25");
        QTest::newRow("unfinished") << QStringLiteral("-") << QStringLiteral("0.25");
        QTest::newRow("0") << QStringLiteral("0") << QStringLiteral("0");
        QTest::newRow("1") << QStringLiteral("1") << QStringLiteral("1");
    }
    void components()
    {
        QFETCH(QString, typed);
        QFETCH(QString, red);
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 0.25 0 0 ]");
        table.typeInto(0, 1, typed);
        QCOMPARE(editor(fixture).getCellText(0, 1), red);
        QCOMPARE(fixture.undoStack().count(), red == QLatin1String("0.25") ? 0 : 1);
    }

    void aLineThatIsLeftAsItWasWritesTheSameValue()
    {
        EditorFixture fixture;
        const TableInput table = show(fixture, "MFColor", "[ 0.50196081 0 0 ]");
        const QString before = EditorFixture::text(fixture.field("MFColor"));
        QTest::keyClick(table.open(0, 1), Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(fixture.field("MFColor")), before);
        QCOMPARE(fixture.undoStack().count(), 1);
        QTest::keyClick(table.open(0, 1), Qt::Key_Escape);
        QCOMPARE(fixture.undoStack().count(), 1);
    }
};

QTEST_MAIN(TestColorArrays)
#include "test_color_arrays.moc"
