// SPDX-License-Identifier: BSD-3-Clause
#include "CellText.h"

#include <QTest>

namespace {

/// Ten pixels a code point; a combining mark takes no room of its own.
int tenACharacter(const QString& text)
{
    int width = 0;
    for (const uint character : text.toUcs4())
        width += QChar::category(character) == QChar::Mark_NonSpacing ? 0 : 10;
    return width;
}

QString fromUtf8(const char* text) { return QString::fromUtf8(text); }

} // namespace

class TestCellText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("available");
        QTest::addColumn<QString>("shown");
        const QString digits = QStringLiteral("1234567890");
        QTest::newRow("wide") << digits << 500 << digits;
        QTest::newRow("fits exactly") << digits << 100 << digits;
        // Dots and characters together stay below the room, they don't fill it.
        QTest::newRow("one pixel short") << digits << 99 << QStringLiteral("123456...");
        QTest::newRow("full up to the edge") << digits << 90 << QStringLiteral("12345...");
        QTest::newRow("room for one") << digits << 41 << QStringLiteral("1...");
        QTest::newRow("no room for one") << digits << 40 << QStringLiteral("1...");
        QTest::newRow("no room at all") << digits << -4 << QStringLiteral("1...");
        QTest::newRow("nothing to cut") << QString() << 0 << QString();
        QTest::newRow("nothing in no room") << QString() << -4 << QStringLiteral("...");
        // U+1F600 and U+10400 take two code units each.
        QTest::newRow("pairs") << fromUtf8("\xF0\x9F\x98\x80\xF0\x90\x90\x80x") << 60
                               << fromUtf8("\xF0\x9F\x98\x80\xF0\x90\x90\x80x");
        QTest::newRow("pair stays whole")
            << fromUtf8("\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80xxx") << 55
            << fromUtf8("\xF0\x9F\x98\x80\xF0\x9F\x98\x80...");
        QTest::newRow("first pair stays whole")
            << fromUtf8("\xF0\x9F\x98\x80xxx") << 5 << fromUtf8("\xF0\x9F\x98\x80...");
        QTest::newRow("lone surrogates")
            << QString(5, QChar(0xD83D)) << 45 << QString(1, QChar(0xD83D)) + QLatin1String("...");
        // The mark goes with its letter where the letter has room.
        QTest::newRow("combining")
            << fromUtf8("ae\xCC\x81iouxyz") << 55 << fromUtf8("ae\xCC\x81...");
        QTest::newRow("right to left")
            << fromUtf8("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D\xD7\xA9\xD7\x9C") << 55
            << fromUtf8("\xD7\xA9\xD7\x9C...");
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
        const QString text(10'000'000, QLatin1Char('x'));
        const QString shown = cellText(text, 100, [&longest](const QString& part) {
            longest = qMax(longest, part.size());
            return tenACharacter(part);
        });
        QCOMPARE(shown, QStringLiteral("xxxxxx..."));
        QVERIFY2(longest < 10'000, qPrintable(QString::number(longest)));
    }
};

QTEST_APPLESS_MAIN(TestCellText)
#include "test_cell_text.moc"
