// SPDX-License-Identifier: BSD-3-Clause
#include "CellText.h"
#include "EditorRow.h"
#include "PopupPlacement.h"
#include "TableInput.h"
#include "WindowInput.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QScreen>
#include <QSpinBox>
#include <QUndoStack>

namespace {

constexpr char Counted[] = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16";
constexpr char Identity[] = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";
// Of these the lines show six digits.
constexpr char Long[] = "0.12345679 0 0 0 0 1 0 0 0 0 1 0 1234567.9 0 0 1";

QString array(const QStringList& rows)
{
    return QStringLiteral("[ %1 ]").arg(rows.join(QStringLiteral(", ")));
}

/// The editor with the field selected: a matrix of counted elements, one with long ones, and the
/// identity.
class Matrices : public EditorFixture {
public:
    Matrices()
        : start(array({ QLatin1String(Counted), QLatin1String(Long), QLatin1String(Identity) }))
    {
        write(field("MFMatrix"), start.toLatin1().constData());
        select(field("MFMatrix"));
        frame = child<QWidget>("m_popupFrame");
        button = child<QAbstractButton>("m_editButton");
    }

    /// Jumps to a row, counted from 1, as a person does.
    void goTo(int row) { typeInto(child<QSpinBox>("m_accessBox"), QString::number(row)); }
    bool open()
    {
        clickThroughWindow(button);
        return frame->isVisible() && QTest::qWaitForWindowExposed(frame);
    }
    QLineEdit* line(int gridRow, int gridColumn) const
    {
        const auto* const grid = static_cast<QGridLayout*>(frame->layout());
        return static_cast<QLineEdit*>(grid->itemAtPosition(gridRow, gridColumn)->widget());
    }
    /// Types in place of what a line holds.
    void type(QLineEdit* line, const char* text)
    {
        clickThroughWindow(line);
        line->selectAll();
        QTest::keyClicks(line, QLatin1String(text));
        settle();
    }
    /// The texts of the grid, row after row.
    QString linesShown() const
    {
        QStringList texts;
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column)
                texts << line(row, column)->text();
        }
        return texts.join(u' ');
    }
    QString text() { return EditorFixture::text(field("MFMatrix")); }

    QString start;
    QWidget* frame;
    QAbstractButton* button;
};

} // namespace

/// The array of matrices, and the popup in which one is edited.
class TestMatrixArray : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void theGridShowsTheCurrentMatrixTransposed()
    {
        Matrices matrices;
        const char* const shown[] = { "1 5 9 13 2 6 10 14 3 7 11 15 4 8 12 16",
            "0.123457 0 0 1.23457e+06 0 1 0 0 0 0 1 0 0 0 0 1", Identity };
        for (int row = 0; row < 3; ++row) {
            matrices.goTo(row + 1);
            QVERIFY(matrices.open());
            QCOMPARE(matrices.linesShown(), QLatin1String(shown[row]));
            // At its button it closes, and doesn't open again.
            clickThroughWindow(matrices.button);
            EditorFixture::settle();
            QVERIFY(!matrices.frame->isVisible());
        }
        QCOMPARE(matrices.text(), matrices.start);
        QCOMPARE(matrices.undoStack().count(), 0);
    }

    void aChangedLineWritesTheCurrentRowOnce()
    {
        Matrices matrices;
        matrices.goTo(1);
        QVERIFY(matrices.open());
        matrices.type(matrices.line(1, 0), "7"); // row 0, column 1 of the matrix
        QCOMPARE(matrices.text(),
            array({ QStringLiteral("1 7 3 4 5 6 7 8 9 10 11 12 13 14 15 16"), QLatin1String(Long),
                QLatin1String(Identity) }));
        QCOMPARE(matrices.undoStack().count(), 1);
        // Neither Return nor leaving the line is a change.
        QTest::keyClick(matrices.line(1, 0), Qt::Key_Return);
        QTest::keyClick(matrices.line(1, 0), Qt::Key_Tab);
        QVERIFY(matrices.line(1, 1)->hasFocus());
        QCOMPARE(matrices.undoStack().count(), 1);
        matrices.undo();
        QCOMPARE(matrices.text(), matrices.start);
        QCOMPARE(matrices.line(1, 0)->text(), QStringLiteral("2"));
        matrices.redo();
        QCOMPARE(matrices.line(1, 0)->text(), QStringLiteral("7"));
    }

    void eachKeystrokeIsAnEditAndStaysAsTyped()
    {
        Matrices matrices;
        matrices.goTo(3);
        QVERIFY(matrices.open());
        QLineEdit* const line = matrices.line(0, 3);
        matrices.type(line, "-");
        const std::pair<const char*, const char*> steps[] = { { "-1", "-1" }, { "-1.", "-1" },
            { "-1.50", "-1.5" }, { "-1.50e", "0" }, { "-1.50e1", "-15" } };
        for (const auto& [typed, element] : steps) {
            QTest::keyClicks(line, QLatin1String(typed).mid(line->text().size()));
            EditorFixture::settle();
            QCOMPARE(line->text(), QLatin1String(typed));
            QVERIFY(matrices.text().endsWith(
                QStringLiteral(" 0 %1 0 0 1 ]").arg(QLatin1String(element))));
        }
        QCOMPARE(matrices.undoStack().count(), 7);
        QTest::keyClicks(line, QStringLiteral(",x"));
        QCOMPARE(matrices.undoStack().count(), 7);
    }

    void anOpenPopupFollowsTheField()
    {
        Matrices matrices;
        matrices.goTo(3);
        QVERIFY(matrices.open());
        matrices.type(matrices.line(0, 0), "2.500");
        const int commands = matrices.undoStack().count();
        EditorFixture::write(
            matrices.field("MFMatrix"), "[ \"\", \"\", 2.5 0 0 0 0 1 0 0 0 0 1 0 8 9 10 11 ]");
        QCOMPARE(matrices.linesShown(), QStringLiteral("2.500 0 0 8 0 1 0 9 0 0 1 10 0 0 0 11"));
        QCOMPARE(matrices.undoStack().count(), commands);
    }

    void withoutACurrentRowThereIsNothingToEdit()
    {
        Matrices matrices;
        const TableInput table(matrices);
        // The overview takes no clicks.
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, table.cell(1, 0).center());
        QVERIFY(!table.openEditor());
        QCOMPARE(table->currentRow(), -1);
        QVERIFY(matrices.open());
        QVERIFY(!matrices.line(3, 3)->isEnabled());
        QCOMPARE(matrices.line(3, 3)->text(), QString());
        matrices.type(matrices.line(0, 0), "7");
        static_cast<WfMFieldWidget*>(matrices.editor())->setFieldValue(-1, -1, QString());
        QCOMPARE(matrices.text(), matrices.start);
        QCOMPARE(matrices.undoStack().count(), 0);
        // A row makes it usable.
        clickThroughWindow(matrices.button);
        matrices.goTo(3);
        QVERIFY(matrices.open());
        QVERIFY(matrices.line(3, 3)->isEnabled());
    }

    void aLostRowIsNotWritten()
    {
        Matrices matrices;
        auto* const field = static_cast<KnMField*>(matrices.field("MFMatrix"));
        matrices.goTo(3);
        QVERIFY(matrices.open());
        clickThroughWindow(matrices.line(0, 0));
        field->setNum(2);
        const QString before = matrices.text();
        QTest::keyClick(matrices.line(0, 0), Qt::Key_5); // before the refresh
        QCOMPARE(matrices.text(), before);
        EditorFixture::settle(); // which ends the edit
        QVERIFY(!matrices.frame->isVisible());
        QCOMPARE(matrices.text(), before);
        QCOMPARE(matrices.undoStack().count(), 0);
    }

    void placement_data()
    {
        QTest::addColumn<QPoint>("wanted");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("inside") << QPoint(150, 20) << QPoint(150, 20);
        QTest::newRow("left of it") << QPoint(-160, 20) << QPoint(100, 20);
        QTest::newRow("just fits") << QPoint(640, 490) << QPoint(640, 490);
        QTest::newRow("a pixel too far") << QPoint(641, 491) << QPoint(640, 490);
    }
    void placement()
    {
        QFETCH(QPoint, wanted);
        const QRect area(100, 10, 800, 600);
        QTEST(positionInside(area, wanted, QSize(260, 120)), "position");
        QCOMPARE(positionInside(area, wanted, QSize(900, 700)), area.topLeft());
    }

    void thePopupOpensLeftOfThePanel_data()
    {
        QTest::addColumn<int>("panelLeft");
        QTest::newRow("where there is room") << 400;
        QTest::newRow("at the edge of the screen") << 20;
    }
    void thePopupOpensLeftOfThePanel()
    {
        QFETCH(int, panelLeft);
        Matrices matrices;
        QWidget& window = matrices.shell().window();
        const QFrame* const panel = matrices.editor()->getFrame();
        window.move(window.pos() + QPoint(panelLeft, 200) - panel->mapToGlobal(QPoint()));
        QTRY_VERIFY(qAbs(panel->mapToGlobal(QPoint()).x() - panelLeft) < 40);
        QVERIFY(matrices.open());
        const QRect screen = window.screen()->availableGeometry();
        QPoint expected = panel->mapToGlobal(panel->geometry().topLeft());
        expected.rx() = qMax(screen.left(), expected.x() - matrices.frame->width());
        QTRY_COMPARE(matrices.frame->windowHandle()->framePosition(), expected);
        QVERIFY(screen.contains(matrices.frame->geometry()));
        QVERIFY(matrices.frame->rect().contains(
            QRect(matrices.line(3, 3)->pos(), matrices.line(3, 3)->size())));
    }

    void theOverviewShowsTheBeginningOfTheWholeText_data()
    {
        QTest::addColumn<int>("rows");
        for (const int rows : { 0, 1, 3, 17, 18, 100, 5000 })
            QTest::addRow("%d rows", rows) << rows;
    }
    void theOverviewShowsTheBeginningOfTheWholeText()
    {
        QFETCH(int, rows);
        Matrices matrices;
        KnMFMatrix& field = matrices.node().MFMatrix;
        // The shortest text that a matrix has.
        field.setNum(0);
        field.setNum(rows);
        EditorFixture::settle();
        const QString whole = matrices.text();
        QTableWidget* const table = matrices.child<QTableWidget>("m_table");
        const QFontMetrics metrics = table->fontMetrics();
        const auto shown = [&](const QString& text, int width) {
            return cellText(
                text, width, [&](const QString& part) { return metrics.horizontalAdvance(part); });
        };
        for (const int width : { 1, 30, 400, 511, 513, 3000 }) {
            table->setColumnWidth(0, width);
            const QString text
                = static_cast<WfMFieldWidget*>(matrices.editor())->getCellText(rows - 1, 0);
            QVERIFY(whole.startsWith(text));
            QVERIFY(text == whole || text.size() > qMax(512, width));
            QVERIFY(text.size() < qMax(512, width) + 300);
            QCOMPARE(shown(text, width - 4), shown(whole, width - 4));
        }
    }
};

QTEST_MAIN(TestMatrixArray)
#include "test_matrix_array.moc"
