// SPDX-License-Identifier: BSD-3-Clause
#include "CellText.h"
#include "EditorFixture.h"
#include "EditorKind.h"
#include "TextRows.h"
#include "WfUIntSlider.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

/// Which of some numbers, and of other texts, a cell's editor takes.
QString described(QWidget* editor)
{
    if (auto* slider = dynamic_cast<WfUIntSlider*>(editor)) {
        slider->setValue(u"4294967295"_s);
        return u"slider up to %1"_s.arg(slider->getValue());
    }
    QLineEdit* const line = TableInput::line(editor);
    QStringList taken;
    for (const char* text : { "-4e38", "-3e38", "-2147483649", "-2147483648", "-2147483647",
             "-32769", "-32768", "-32767", "0", "32767", "32768", "65535", "65536", "2147483647",
             "2147483648", "4294967295", "4294967296", "4e38", "word" }) {
        line->setText(QLatin1String(text));
        if (line->hasAcceptableInput())
            taken << line->text();
    }
    return (line == editor ? u"line "_s : u"slider "_s) + taken.first() + u".."_s + taken.last();
}

/// Ten pixels a code point; a combining mark takes no room of its own.
int tenACharacter(const QString& text)
{
    int width = 0;
    for (const uint character : text.toUcs4())
        width += QChar::category(character) == QChar::Mark_NonSpacing ? 0 : 10;
    return width;
}

} // namespace

/// How a row table's delegate paints its cells, what it opens in them, and what it stores.
class TestTableCells : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void kindsFixTheEditor_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("expected");
        const auto row
            = [](int kind, const char* expected) { QTest::addRow("%d", kind) << kind << expected; };
        row(PlainTextKind, "line -4e38..word | line -4e38..word");
        row(Int16Kind, "slider -32768..32767 | line -32767..32767");
        row(UInt16Kind, "slider up to 65535 | line 0..65535");
        row(WholeNumberKind, "line -2147483648..2147483647 | line -2147483648..2147483647");
        row(UnsignedNumberKind, "line 0..4294967295 | line 0..4294967295");
        row(Int32Kind, "slider -2147483648..2147483647 | line -2147483647..2147483647");
        row(UInt32Kind, "slider up to 4294967295 | line 0..4294967295");
        row(FloatKind, "slider -3e38..4294967296 | line -3e38..4294967296");
        row(DoubleKind, "line -4e38..4e38 | line -4e38..4e38");
    }

    void kindsFixTheEditor()
    {
        QFETCH(int, kind);
        QFETCH(QString, expected);
        show("MFInt32", "[ 5 ]");
        const TableInput table = this->table();
        table->setEditorKind(kind);
        const auto editor = [&table] {
            QWidget parent;
            return described(
                table->itemDelegate()->createEditor(&parent, {}, table->model()->index(0, 0)));
        };
        const QString alone = editor();
        table->setColumnCount(2);
        QCOMPARE(alone + u" | "_s + editor(), expected);
    }

    void aCellIsPainted_data()
    {
        addTextRows({
            { "in the middle", "MFString", "[ \"word\" ]", "word", "50" },
            { "whatever the alignment", "MFVec2s", "[ 7 8 ]", "7", "50" },
            { "selected", "MFString", "[ \"word\" ]", "word", "50" },
            { "just fits", "MFString", "[ \"long text\" ]", "long text", "4" },
            { "cut", "MFString", "[ \"long text\" ]", "long text", "3" },
            { "two lines", "MFString", "[ \"one\\ntwo\" ]", "one\ntwo", "50" },
            { "higher than its row", "MFString", "[ \"1\\n2\\n3\\n4\" ]", "1\n2\n3\n4", "50" },
            { "from right to left", "MFString", "[ \"\u05d0\u05d1 (1)\" ]", "\u05d0\u05d1 (1)",
                "51" },
        });
    }

    /// Again and again, also while fonts and heights change.
    void aCellIsPainted()
    {
        const auto [name, type, values, shown, pixels] = textRow<5>();
        const QString text = shown;
        const int room = pixels.toInt(); // beside the text
        const bool isSelected = name == u"selected";
        show(type, values);
        const QFont plain = table()->font();
        QFont bold = plain;
        bold.setBold(true);
        const std::vector<std::pair<QFont, int>> paintings
            = { { plain, 24 }, { plain, 24 }, { plain, 23 }, { bold, 24 }, { plain, 24 } };
        for (const auto& [font, height] : paintings) {
            const auto advance = [metrics = QFontMetrics(font)](const QString& part) {
                return metrics.horizontalAdvance(part);
            };
            QStyleOptionViewItem option;
            option.rect = QRect(0, 0, advance(text) + room, height);
            option.state.setFlag(QStyle::State_Selected, isSelected);
            QImage painted(option.rect.size(), QImage::Format_RGB32);
            painted.fill(Qt::white);
            QImage expected = painted.copy();
            QPainter painter(&painted);
            painter.setFont(font);
            table()->itemDelegate()->paint(&painter, option, table()->model()->index(0, 0));
            painter.end();
            painter.begin(&expected);
            painter.setFont(font);
            if (isSelected)
                painter.fillRect(option.rect, option.palette.highlight());
            painter.setPen(
                option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
            painter.drawText(option.rect, Qt::AlignCenter,
                room < 4 ? cellText(text, advance(text) - 1, advance) : text);
            painter.end();
            QCOMPARE(painted, expected);
        }
    }

    void aTextIsCut_data()
    {
        addTextRows({
            { "1234567890", "100", "1234567890" },
            // Dots and characters together stay below the room, they don't fill it.
            { "1234567890", "99", "123456..." },
            { "1234567890", "40", "1..." },
            { "1234567890", "-4", "1..." },
            { "", "-4", "..." },
            // These take two code units each, and stay whole.
            { "\U0001F600\U00010400x", "60", "\U0001F600\U00010400x" },
            { "\U0001F600\U0001F600\U0001F600xxx", "55", "\U0001F600\U0001F600..." },
            { "\U0001F600xxx", "5", "\U0001F600..." },
            // The mark goes with its letter where the letter has room.
            { "ae\u0301iouxyz", "55", "ae\u0301..." },
            { "\u05E9\u05DC\u05D5\u05DD\u05E9\u05DC", "55", "\u05E9\u05DC..." },
        });
    }

    void aTextIsCut()
    {
        const auto [text, available, shown] = textRow<3>();
        QCOMPARE(cellText(text, available.toInt(), tenACharacter), shown);
    }

    void aVeryLongTextIsNotMeasured()
    {
        qsizetype longest = 0;
        const QString text(10'000'000, u'x');
        const QString shown = cellText(text, 100, [&longest](const QString& part) {
            longest = qMax(longest, part.size());
            return tenACharacter(part);
        });
        QCOMPARE(shown, u"xxxxxx..."_s);
        QVERIFY(longest < 10'000);
    }

    void theTypedTextIsStored_data()
    {
        addTextRows({
            { "MFDouble", "[ 5 ]", "007", "[ 7 ]" },
            { "MFColor", "[ 0 1 0 ]", "0.50", "[ 0.5 1 0 ]" },
        });
    }

    void theTypedTextIsStored()
    {
        const auto [type, values, typed, after] = textRow<4>();
        const KnField& field = show(type, values);
        const int column = table()->columnCount() > 2 ? 1 : 0;
        table().type(0, column, typed);
        press(Qt::Key_Return);
        QCOMPARE(table()->model()->index(0, column).data().toString(), typed);
        QCOMPARE(text(&field), after);
    }
};

QTEST_MAIN(TestTableCells)
#include "test_table_cells.moc"
