// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayFixture.h"
#include "CellText.h"
#include "EditorCase.h"
#include "WindowInput.h"

#include <QGridLayout>
#include <QScreen>
#include <QSpinBox>

#include <functional>

namespace {

constexpr char Counted[] = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16";
constexpr char Identity[] = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";
// Of these the lines show six digits.
constexpr char Long[] = "0.12345679 0 0 0 0 1 0 0 0 0 1 0 1234567.9 0 0 1";

/// The editor with the field selected: a matrix of counted elements, one with long ones, and the
/// identity.
class Matrices : public ArrayFixture {
public:
    Matrices()
        : start(QStringLiteral("[ %1, %2, %3 ]")
                    .arg(QLatin1String(Counted), QLatin1String(Long), QLatin1String(Identity)))
        , field(show("MFMatrix", start.toLatin1().constData()))
        , widget(*static_cast<WfMFieldWidget*>(editor()))
        , frame(child<QWidget>("m_popupFrame"))
        , button(child<QAbstractButton>("m_editButton"))
    {
    }

    bool open()
    {
        clickThroughWindow(button);
        return frame->isVisible() && QTest::qWaitForWindowExposed(frame);
    }
    /// Jumps to a row, counted from 1, as a person does, and opens the popup.
    bool open(int row)
    {
        typeInto(child<QSpinBox>("m_accessBox"), QString::number(row));
        return open();
    }
    QLineEdit* line(int gridRow, int gridColumn) const
    {
        const auto* const grid = static_cast<QGridLayout*>(frame->layout());
        return static_cast<QLineEdit*>(grid->itemAtPosition(gridRow, gridColumn)->widget());
    }
    QString text() const { return EditorFixture::text(&field); }

    const QString start;
    KnField& field;
    WfMFieldWidget& widget;
    QWidget* const frame;
    QAbstractButton* const button;
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
        QWidget& window = matrices.shell().window();
        const char* const grids[] = { "1 5 9 13 2 6 10 14 3 7 11 15 4 8 12 16",
            "0.123457 0 0 1.23457e+06 0 1 0 0 0 0 1 0 0 0 0 1", Identity };
        const std::function<void()> ways[] = { [&] { clickThroughWindow(matrices.button); },
            [&] { QTest::keyClick(matrices.line(0, 0), Qt::Key_Escape); },
            [&] { clickThroughWindow(&window); } };
        // There is no room at the left of the panel.
        window.move(0, 100);
        for (int row = 0; row < 3; ++row) {
            QVERIFY(matrices.open(row + 1));
            QVERIFY(matrices.line(0, 0)->hasFocus());
            QCOMPARE(matrices.line(0, 0)->selectedText(), matrices.line(0, 0)->text());
            QTRY_VERIFY(
                window.screen()->availableGeometry().contains(matrices.frame->frameGeometry()));
            QString shown;
            for (int i = 0; i < 16; ++i)
                shown += matrices.line(i / 4, i % 4)->text() + u' ';
            QCOMPARE(shown.trimmed(), QLatin1String(grids[row]));
            ways[row]();
            QTRY_VERIFY(!matrices.frame->isVisible());
            QVERIFY(!matrices.frame->isAncestorOf(QApplication::focusWidget()));
        }
        QCOMPARE(matrices.text(), matrices.start);
        QCOMPARE(matrices.commands(), 0);
    }

    void eachKeystrokeIsAnEditAndStaysAsTyped()
    {
        Matrices matrices;
        QVERIFY(matrices.open(1));
        QLineEdit* const line = matrices.line(1, 0); // row 0, column 1 of the matrix
        clickThroughWindow(line);
        line->selectAll();
        const std::pair<const char*, const char*> steps[]
            = { { "-", "0" }, { "-1", "-1" }, { "-1.", "-1" }, { "-1.5", "-1.5" },
                  { "-1.50", "-1.5" }, { "-1.50e", "0" }, { "-1.50e1", "-15" } };
        for (const auto& [typed, element] : steps) {
            QTest::keyClick(line, typed[qstrlen(typed) - 1]);
            EditorFixture::settle();
            QCOMPARE(line->text(), QLatin1String(typed));
            const QString row = QStringLiteral("[ 1 %1 3 ").arg(QLatin1String(element));
            QVERIFY2(matrices.text().startsWith(row), qPrintable(matrices.text()));
        }
        // Neither a refused key nor Return nor leaving the line is a change.
        QTest::keyClicks(line, QStringLiteral(",x"));
        QTest::keyClick(line, Qt::Key_Return);
        QTest::keyClick(line, Qt::Key_Tab);
        QVERIFY(matrices.line(1, 1)->hasFocus());
        QCOMPARE(matrices.commands(), 7);
        while (matrices.undoStack().canUndo())
            matrices.undo();
        QCOMPARE(matrices.text(), matrices.start);
        QCOMPARE(line->text(), QStringLiteral("2"));
    }

    void withoutACurrentRowThereIsNothingToEdit()
    {
        Matrices matrices;
        QVERIFY(matrices.open());
        QVERIFY(!matrices.line(3, 3)->isEnabled());
        clickThroughWindow(matrices.line(0, 0));
        QTest::keyClick(matrices.line(0, 0), Qt::Key_7);
        QCOMPARE(matrices.text(), matrices.start);
        QCOMPARE(matrices.commands(), 0);
        // A row makes it usable.
        clickThroughWindow(matrices.button);
        QVERIFY(matrices.open(3));
        QVERIFY(matrices.line(3, 3)->isEnabled());
    }

    void aLostRowIsNotWritten()
    {
        Matrices matrices;
        QVERIFY(matrices.open(3));
        clickThroughWindow(matrices.line(0, 0));
        matrices.node().MFMatrix.setNum(2);
        const QString before = matrices.text();
        QTest::keyClick(matrices.line(0, 0), Qt::Key_5); // before the refresh
        QCOMPARE(matrices.text(), before);
        EditorFixture::settle(); // which ends the edit
        QVERIFY(!matrices.frame->isVisible());
        QCOMPARE(matrices.text(), before);
        QCOMPARE(matrices.commands(), 0);
    }

    void theOverviewShowsTheBeginningOfTheWholeText()
    {
        Matrices matrices;
        QTableWidget* const table = matrices.child<QTableWidget>("m_table");
        const auto measure
            = [table](const QString& part) { return table->fontMetrics().horizontalAdvance(part); };
        // The shortest text that a matrix has.
        matrices.node().MFMatrix.setNum(0);
        matrices.node().MFMatrix.setNum(5000);
        EditorFixture::settle();
        const QString whole = matrices.text();
        for (const int width : { 1, 400, 513, 3000 }) {
            table->setColumnWidth(0, width);
            const QString text = matrices.widget.getCellText(4999, 0);
            QVERIFY(whole.startsWith(text) && text.size() < qMax(512, width) + 300);
            QCOMPARE(cellText(text, width - 4, measure), cellText(whole, width - 4, measure));
        }
    }
};

QTEST_MAIN(TestMatrixArray)
#include "test_matrix_array.moc"
