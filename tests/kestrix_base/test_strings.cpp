// SPDX-License-Identifier: BSD-3-Clause
#include "KbName.h"
#include "KbString.h"

#include <QTest>

#include <random>

class TestStrings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void utf16SurvivesTheWayInAndOut();
    void brokenUtf8BecomesReplacements();
    void latin1();
    void nullAndEmpty();
    void namesAreInterned();
};

void TestStrings::utf16SurvivesTheWayInAndOut()
{
    // Also surrogates alone and the wrong way round, and a zero.
    const std::u16string text
        = u"a\x7f\x80\x7ff\x800\xffff\xd800\xdc00\xdbff\xdfff\xd800x\xdfffy\xdc00\xd800"
        + std::u16string(1, u'\0') + u'z';
    const KbString string = KbString::fromUtf16(text.data(), std::ssize(text));
    QCOMPARE(QByteArray::fromStdString(string.toUtf8()),
        QByteArray("a\x7f\xc2\x80\xdf\xbf\xe0\xa0\x80\xef\xbf\xbf\xf0\x90\x80\x80\xf4\x8f\xbf\xbf"
                   "\xed\xa0\x80x\xed\xbf\xbfy\xed\xb0\x80\xed\xa0\x80")
            + '\0' + 'z');
    QCOMPARE(string.toUtf16(), text);
    QCOMPARE(KbString::fromUtf16(text.data() + 6, 1).toUtf16(), text.substr(6, 1)); // half a pair
    QCOMPARE(KbString::fromUtf16(text.data()).toUtf16() + u'\0' + u'z', text);

    std::mt19937 random(1); // NOLINT: the same texts each time
    std::u16string any(200000, u'\0');
    for (char16_t& unit : any) {
        // Surrogates are rare among all units, so half of them are made surrogates.
        const auto bits = random();
        unit = static_cast<char16_t>(bits & 0x10000 ? 0xd800 + bits % 0x800 : bits);
    }
    QVERIFY(KbString::fromUtf16(any.data(), std::ssize(any)).toUtf16() == any);
}

void TestStrings::brokenUtf8BecomesReplacements()
{
    // A tail without a head, heads without their tails, longer than needed (two for one, three for
    // two), beyond Unicode, never a head; each byte is replaced by itself.
    const std::pair<const char*, const char16_t*> rows[]
        = { { "a\x80z", u"a\xfffdz" }, { "a\xe2\x82", u"a\xfffd\xfffd" }, { "\xc3z", u"\xfffdz" },
              { "\xc0\x80", u"\xfffd\xfffd" }, { "\xe0\x80\x80", u"\xfffd\xfffd\xfffd" },
              { "\xf4\x90\x80\x80", u"\xfffd\xfffd\xfffd\xfffd" }, { "\xff", u"\xfffd" } };
    for (const auto& [utf8, text] : rows)
        QCOMPARE(KbString(utf8).toUtf16(), std::u16string(text));
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
    QVERIFY(!string.isNull() && string == KbString() && !KbString::fromUtf16(u"").isNull());
    string = "text";
    string.makeNull();
    QVERIFY(string.isNull() && string.isEmpty());
}

void TestStrings::namesAreInterned()
{
    const KbName name("wing");
    QVERIFY(&name.getString() == &KbName(std::string("wing").c_str()).getString());
    QVERIFY(name == KbName(KbString("wing")) && !(name == KbName("wings")));
    QVERIFY(KbName() == KbName("") && KbName() == KbName(static_cast<const char*>(nullptr)));
}

QTEST_APPLESS_MAIN(TestStrings)
#include "test_strings.moc"
