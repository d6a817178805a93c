// SPDX-License-Identifier: BSD-3-Clause
#include "KbGeometry.h"
#include "KbName.h"
#include "KbString.h"

#include <QTest>

#include <cmath>
#include <numbers>
#include <numeric>
#include <random>

/// Strings, names and rotations. The rest of the value types is proven by the texts of the fields
/// that hold them.
class TestValues : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void utf16SurvivesTheWayInAndOut()
    {
        // Also surrogates alone and the wrong way round, and a zero.
        const std::u16string text
            = u"a\x7f\x80\x7ff\x800\xffff\xd800\xdc00\xdbff\xdfff\xd800x\xdfffy\xdc00\xd800"
            + std::u16string(1, u'\0') + u'z';
        const KbString string = KbString::fromUtf16(text.data(), std::ssize(text));
        QCOMPARE(QByteArray::fromStdString(string.toUtf8()),
            QByteArray("a\x7f\xc2\x80\xdf\xbf\xe0\xa0\x80\xef\xbf\xbf\xf0\x90\x80\x80"
                       "\xf4\x8f\xbf\xbf\xed\xa0\x80x\xed\xbf\xbfy\xed\xb0\x80\xed\xa0\x80")
                + '\0' + 'z');
        QCOMPARE(string.toUtf16(), text);
        QCOMPARE(KbString::fromUtf16(text.data()).toUtf16() + u'\0' + u'z', text);

        std::mt19937 random(1); // NOLINT: the same texts each time
        std::u16string any(200000, u'\0');
        for (char16_t& unit : any) // of which half are surrogates
            unit = static_cast<char16_t>(random() % 2 ? 0xd800 + random() % 0x800 : random());
        QVERIFY(KbString::fromUtf16(any.data(), std::ssize(any)).toUtf16() == any);
    }

    // Long runs of ASCII are taken in blocks; anything else may stand at any place in one.
    void utf16SurvivesInLongTexts()
    {
        for (const std::u16string& odd : { std::u16string(u"\u00fc"), std::u16string(u"\u20ac"),
                 std::u16string(u"\U0001F600"), std::u16string(1, char16_t(0xD800)) }) {
            for (std::size_t before = 0; before < 70; ++before) {
                const std::u16string text
                    = std::u16string(before, u'a') + odd + std::u16string(40, u'z');
                const KbString string = KbString::fromUtf16(text.data(), std::ssize(text));
                QVERIFY2(string.toUtf16() == text, qPrintable(QString::number(before)));
            }
        }
    }
    void brokenUtf8BecomesReplacements()
    {
        // A tail without a head, heads without their tails, longer than needed (two for one, three
        // for two), beyond Unicode, never a head; each byte is replaced by itself.
        const KbString text("a\x80z \xe2\x82 \xc3z \xc0\x80 \xe0\x80\x80 \xf4\x90\x80\x80 \xff");
        QCOMPARE(text.toUtf16(),
            u"a\xfffdz \xfffd\xfffd \xfffdz \xfffd\xfffd \xfffd\xfffd\xfffd"
            u" \xfffd\xfffd\xfffd\xfffd \xfffd");
    }

    void latin1()
    {
        std::string all(256, '\0');
        std::iota(all.begin(), all.end(), '\0');
        QCOMPARE(KbString::fromLatin1(all).toLatin1(), all);
        QCOMPARE(KbString::fromLatin1("\xe4").toUtf8(), "\xc3\xa4");
        QCOMPARE(KbString("\xc3\xa4\xe2\x82\xac\xf0\x90\x80\x80.").toLatin1(), "\xe4??.");
    }

    void nullAndEmpty()
    {
        KbString string = "";
        QVERIFY(string == KbString() && !string.isNull() && !KbString::fromUtf16(u"").isNull());
        string.makeNull();
        const char16_t* const none = nullptr;
        for (const KbString& null : { string, KbString(), KbString::fromUtf16(none) })
            QVERIFY(null.isNull() && null.isEmpty());
        QVERIFY(KbName("wing") == KbName(KbString("wing")) && KbName() == KbName(""));
    }

    void rotations()
    {
        const auto q = KbRotation(KbVec3f(0.0F, 3.0F, 4.0F), 10.0F).getValue();
        QCOMPARE((QList<float>(q.begin(), q.end())),
            (QList<float> { 0, 0.6F * std::sin(5.0F), 0.8F * std::sin(5.0F), std::cos(5.0F) }));
        // An axis without a length turns nothing.
        const std::array<float, 4> none { 0, 0, 0, 1 };
        for (const float length : { 0.0F, INFINITY, NAN })
            QCOMPARE(KbRotation(KbVec3f(length, 0.0F, 0.0F), 2.0F).getValue(), none);

        // Half a turn, of great length, a whole turn, of no length, infinite; and what each turns.
        const float pi = std::numbers::pi_v<float>;
        const float max = std::numeric_limits<float>::max();
        const float quaternions[][4]
            = { { 1, 0, 0, 0 }, { 0, 0, max, max }, { 0, 0, 0, -1 }, {}, { 1, 0, 0, INFINITY } };
        QList<float> found;
        for (const auto& quaternion : quaternions) {
            KbVec3f axis;
            float radians = 0;
            KbRotation(quaternion).getValue(axis, radians);
            found << axis[0] << axis[1] << axis[2] << radians;
        }
        QCOMPARE(found,
            (QList<float> { 1, 0, 0, pi, 0, 0, 1, pi / 2, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0 }));
    }
};

QTEST_APPLESS_MAIN(TestValues)
#include "test_values.moc"
