// SPDX-License-Identifier: BSD-3-Clause
#include "CellText.h"
#include "EditorFixture.h"
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

} // namespace

/// The array of matrices, and the popup in which one is edited.
class TestMatrixArray : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    /// A matrix of counted elements, one with long ones, and the identity.
    void init()
    {
        EditorFixture::init();
        m_start = QStringLiteral("[ %1, %2, %3 ]")
                      .arg(QLatin1String(Counted), QLatin1String(Long), QLatin1String(Identity));
        show(QStringLiteral("MFMatrix"), m_start);
        m_frame = child<QWidget>("m_popupFrame");
        m_button = child<QAbstractButton>("m_editButton");
    }

    void theGridShowsTheCurrentMatrixTransposed()
    {
        const char* const grids[] = { "1 5 9 13 2 6 10 14 3 7 11 15 4 8 12 16",
            "0.123457 0 0 1.23457e+06 0 1 0 0 0 0 1 0 0 0 0 1", Identity };
        const std::function<void()> ways[] = { [&] { clickThroughWindow(m_button); },
            [&] { QTest::keyClick(line(0, 0), Qt::Key_Escape); },
            [&] { clickThroughWindow(&window()); } };
        // There is no room at the left of the panel.
        window().move(0, 100);
        for (int row = 0; row < 3; ++row) {
            QVERIFY(open(row + 1));
            QVERIFY(line(0, 0)->hasFocus());
            QCOMPARE(line(0, 0)->selectedText(), line(0, 0)->text());
            QTRY_VERIFY(window().screen()->availableGeometry().contains(m_frame->frameGeometry()));
            QString shown;
            for (int i = 0; i < 16; ++i)
                shown += line(i / 4, i % 4)->text() + u' ';
            QCOMPARE(shown.trimmed(), QLatin1String(grids[row]));
            ways[row]();
            QTRY_VERIFY(!m_frame->isVisible());
            QVERIFY(!m_frame->isAncestorOf(QApplication::focusWidget()));
        }
        QCOMPARE(text(), m_start);
        QCOMPARE(commands(), 0);
    }

    void eachKeystrokeIsAnEditAndStaysAsTyped()
    {
        QVERIFY(open(1));
        QLineEdit* const line = this->line(1, 0); // row 0, column 1 of the matrix
        clickThroughWindow(line);
        line->selectAll();
        const std::pair<const char*, const char*> steps[]
            = { { "-", "0" }, { "-1", "-1" }, { "-1.", "-1" }, { "-1.5", "-1.5" },
                  { "-1.50", "-1.5" }, { "-1.50e", "0" }, { "-1.50e1", "-15" } };
        for (const auto& [typed, element] : steps) {
            QTest::keyClick(line, typed[qstrlen(typed) - 1]);
            settle();
            QCOMPARE(line->text(), QLatin1String(typed));
            const QString row = QStringLiteral("[ 1 %1 3 ").arg(QLatin1String(element));
            QVERIFY2(text().startsWith(row), qPrintable(text()));
        }
        // Neither a refused key nor Return nor leaving the line is a change.
        QTest::keyClicks(line, QStringLiteral(",x"));
        QTest::keyClick(line, Qt::Key_Return);
        QTest::keyClick(line, Qt::Key_Tab);
        QVERIFY(this->line(1, 1)->hasFocus());
        QCOMPARE(commands(), 7);
        while (undoStack().canUndo())
            undo();
        QCOMPARE(text(), m_start);
        QCOMPARE(line->text(), QStringLiteral("2"));
    }

    void withoutACurrentRowThereIsNothingToEdit()
    {
        QVERIFY(openPopup());
        QVERIFY(!line(3, 3)->isEnabled());
        clickThroughWindow(line(0, 0));
        QTest::keyClick(line(0, 0), Qt::Key_7);
        QCOMPARE(text(), m_start);
        QCOMPARE(commands(), 0);
        // A row makes it usable.
        clickThroughWindow(m_button);
        QVERIFY(open(3));
        QVERIFY(line(3, 3)->isEnabled());
    }

    void aLostRowIsNotWritten()
    {
        QVERIFY(open(3));
        clickThroughWindow(line(0, 0));
        node().MFMatrix.setNum(2);
        const QString before = text();
        QTest::keyClick(line(0, 0), Qt::Key_5); // before the refresh
        QCOMPARE(text(), before);
        settle(); // which ends the edit
        QVERIFY(!m_frame->isVisible());
        QCOMPARE(text(), before);
        QCOMPARE(commands(), 0);
    }

    void theOverviewShowsTheBeginningOfTheWholeText()
    {
        const TableInput table = this->table();
        const auto measure
            = [table](const QString& part) { return table->fontMetrics().horizontalAdvance(part); };
        // The shortest text that a matrix has.
        node().MFMatrix.setNum(0);
        node().MFMatrix.setNum(5000);
        settle();
        const QString whole = text();
        for (const int width : { 1, 400, 513, 3000 }) {
            table->setColumnWidth(0, width);
            const QString text = static_cast<WfMFieldWidget*>(editor())->getCellText(4999, 0);
            QVERIFY(whole.startsWith(text) && text.size() < qMax(512, width) + 300);
            QCOMPARE(cellText(text, width - 4, measure), cellText(whole, width - 4, measure));
        }
    }

private:
    /// Jumps to a row, counted from 1, as a person does, and opens the popup.
    bool open(int row)
    {
        typeInto(child<QSpinBox>("m_accessBox"), QString::number(row));
        return openPopup();
    }
    QLineEdit* line(int gridRow, int gridColumn) const
    {
        const auto* const grid = static_cast<QGridLayout*>(m_frame->layout());
        return static_cast<QLineEdit*>(grid->itemAtPosition(gridRow, gridColumn)->widget());
    }
    QString text() { return EditorFixture::text(field("MFMatrix")); }

    QString m_start;
    QWidget* m_frame = nullptr; // of the editor, as is the button
    QAbstractButton* m_button = nullptr;
};

QTEST_MAIN(TestMatrixArray)
#include "test_matrix_array.moc"
