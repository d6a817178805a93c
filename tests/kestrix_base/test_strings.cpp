// SPDX-License-Identifier: BSD-3-Clause
#include "KbName.h"
#include "KbString.h"

#include <QTest>

#include <random>

class TestStrings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void utf16SurvivesTheWayInAndOut_data();
    void utf16SurvivesTheWayInAndOut();
    void anyUtf16SurvivesTheWayInAndOut();
    void brokenUtf8BecomesReplacements_data();
    void brokenUtf8BecomesReplacements();
    void latin1();
    void nullAndEmpty();
    void lengthCountsUnitsAndZerosStay();
    void namesAreInterned();
};

void TestStrings::utf16SurvivesTheWayInAndOut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("utf8");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("one byte") << QStringLiteral("a\x7f") << QByteArray("a\x7f");
    QTest::newRow("two bytes") << QString(QChar(0x80)) + QChar(0x7ff)
                               << QByteArray("\xc2\x80\xdf\xbf");
    QTest::newRow("three bytes") << QString(QChar(0x800)) + QChar(0xffff)
                                 << QByteArray("\xe0\xa0\x80\xef\xbf\xbf");
    QTest::newRow("a pair") << QString(QChar(0xd800)) + QChar(0xdc00)
                            << QByteArray("\xf0\x90\x80\x80");
    QTest::newRow("the last pair")
        << QString(QChar(0xdbff)) + QChar(0xdfff) << QByteArray("\xf4\x8f\xbf\xbf");
    QTest::newRow("a high surrogate alone")
        << QString(QChar(0xd800)) + QLatin1Char('x') << QByteArray("\xed\xa0\x80x");
    QTest::newRow("a low surrogate alone") << QString(QChar(0xdfff)) << QByteArray("\xed\xbf\xbf");
    QTest::newRow("a pair the wrong way round")
        << QString(QChar(0xdc00)) + QChar(0xd800) << QByteArray("\xed\xb0\x80\xed\xa0\x80");
}

void TestStrings::utf16SurvivesTheWayInAndOut()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, utf8);
    const KbString string = KbString::fromUtf16(text.utf16(), text.size());
    QCOMPARE(QByteArray::fromStdString(string.toUtf8()), utf8);
    QCOMPARE(QString::fromStdU16String(string.toUtf16()), text);
    QVERIFY(string == KbString::fromUtf16(string.toUtf16().c_str()));
}

void TestStrings::anyUtf16SurvivesTheWayInAndOut()
{
    std::mt19937 random(1); // NOLINT: the same texts each time
    std::u16string text(200000, u'\0');
    for (char16_t& unit : text) {
        // Surrogates are rare among all units, so half of them are made surrogates.
        const auto bits = random();
        unit = static_cast<char16_t>(bits & 0x10000 ? 0xd800 + bits % 0x800 : bits);
    }
    QVERIFY(KbString::fromUtf16(text.data(), std::ssize(text)).toUtf16() == text);
}

void TestStrings::brokenUtf8BecomesReplacements_data()
{
    QTest::addColumn<QByteArray>("utf8");
    QTest::addColumn<QString>("text");
    const QChar bad = QChar::ReplacementCharacter;
    QTest::newRow("a tail without a head") << QByteArray("a\x80z") << u'a' + QString(bad) + u'z';
    QTest::newRow("a head at the end") << QByteArray("a\xe2\x82") << u'a' + QString(2, bad);
    QTest::newRow("a head without its tail") << QByteArray("\xc3z") << QString(bad) + u'z';
    QTest::newRow("longer than needed") << QByteArray("\xc0\x80") << QString(2, bad);
    QTest::newRow("three for two") << QByteArray("\xe0\x80\x80") << QString(3, bad);
    QTest::newRow("beyond Unicode") << QByteArray("\xf4\x90\x80\x80") << QString(4, bad);
    QTest::newRow("never a head") << QByteArray("\xff") << QString(bad);
}

void TestStrings::brokenUtf8BecomesReplacements()
{
    QFETCH(QByteArray, utf8);
    QFETCH(QString, text);
    QCOMPARE(QString::fromStdU16String(KbString(utf8.constData()).toUtf16()), text);
}

void TestStrings::latin1()
{
    std::string all(256, '\0');
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<char>(i);
    QCOMPARE(KbString::fromLatin1(all).toLatin1(), all);
    QCOMPARE(KbString::fromLatin1("\xe4").toUtf8(), std::string("\xc3\xa4"));
    QCOMPARE(KbString("\xc3\xa4\xe2\x82\xac\xf0\x90\x80\x80.").toLatin1(), std::string("\xe4??."));
}

void TestStrings::nullAndEmpty()
{
    KbString string;
    QVERIFY(string.isNull() && string.isEmpty());
    QVERIFY(KbString(static_cast<const char*>(nullptr)).isNull());
    QVERIFY(KbString::fromUtf16(static_cast<const char16_t*>(nullptr)).isNull());
    string = "";
    QVERIFY(!string.isNull() && string.isEmpty());
    QVERIFY(string == KbString());
    QVERIFY(!KbString::fromUtf16(u"").isNull());
    string = "text";
    string.makeNull();
    QVERIFY(string.isNull() && string.isEmpty());
}

void TestStrings::lengthCountsUnitsAndZerosStay()
{
    const char16_t text[] = u"ab\0cd";
    QCOMPARE(KbString::fromUtf16(text).toUtf8(), std::string("ab"));
    QCOMPARE(KbString::fromUtf16(text, 1).toUtf8(), std::string("a"));
    const KbString whole = KbString::fromUtf16(text, 5);
    QCOMPARE(whole.toUtf8(), std::string("ab\0cd", 5));
    QCOMPARE(whole.toUtf16(), std::u16string(text, 5));
    // A pair that the length cuts apart is a lone surrogate.
    QCOMPARE(KbString::fromUtf16(u"\xd800\xdc00", 1).toUtf16(), std::u16string(u"\xd800"));
}

void TestStrings::namesAreInterned()
{
    const KbName name("wing");
    QVERIFY(name == KbName(KbString("wing")));
    QVERIFY(&name.getString() == &KbName(std::string("wing").c_str()).getString());
    QVERIFY(!(name == KbName("wings")));
    QVERIFY(KbName() == KbName(""));
    QVERIFY(KbName() == KbName(static_cast<const char*>(nullptr)));
    QVERIFY(KbName().isEmpty() && !name.isEmpty());
}

QTEST_APPLESS_MAIN(TestStrings)
#include "test_strings.moc"
