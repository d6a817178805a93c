// SPDX-License-Identifier: BSD-3-Clause
#include "CellText.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Ten pixels a code point; a combining mark takes no room of its own.
int tenACharacter(const QString& text)
{
    int width = 0;
    for (const uint character : text.toUcs4())
        width += QChar::category(character) == QChar::Mark_NonSpacing ? 0 : 10;
    return width;
}

} // namespace

class TestCellText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("available");
        QTest::addColumn<QString>("shown");
        const struct {
            QString text;
            int available;
            QString shown;
        } rows[] = {
            { u"1234567890"_s, 100, u"1234567890"_s },
            // Dots and characters together stay below the room, they don't fill it.
            { u"1234567890"_s, 99, u"123456..."_s },
            { u"1234567890"_s, 90, u"12345..."_s },
            { u"1234567890"_s, 40, u"1..."_s },
            { u"1234567890"_s, -4, u"1..."_s },
            { QString(), 0, QString() },
            { QString(), -4, u"..."_s },
            // These take two code units each, and stay whole.
            { u"\U0001F600\U00010400x"_s, 60, u"\U0001F600\U00010400x"_s },
            { u"\U0001F600\U0001F600\U0001F600xxx"_s, 55, u"\U0001F600\U0001F600..."_s },
            { u"\U0001F600xxx"_s, 5, u"\U0001F600..."_s },
            { QString(5, QChar(0xD83D)), 45, QChar(0xD83D) + u"..."_s },
            // The mark goes with its letter where the letter has room.
            { u"ae\u0301iouxyz"_s, 55, u"ae\u0301..."_s },
            { u"\u05E9\u05DC\u05D5\u05DD\u05E9\u05DC"_s, 55, u"\u05E9\u05DC..."_s },
        };
        for (const auto& [text, available, shown] : rows)
            QTest::addRow("%s, %d", qPrintable(text), available) << text << available << shown;
    }

    void cut()
    {
        QFETCH(QString, text);
        QFETCH(int, available);
        QFETCH(QString, shown);
        QCOMPARE(cellText(text, available, tenACharacter), shown);
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
};

QTEST_APPLESS_MAIN(TestCellText)
#include "test_cell_text.moc"
