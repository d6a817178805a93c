// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnFieldSensor.h"
#include "KnMFields.h"
#include "KnMaterial.h"
#include "KnSFields.h"
#include "KnSensorQueue.h"

#include <QLocale>
#include <QTest>

#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace {

/// The texts that a field is given one after the other. Behind an arrow stands what it reads back
/// if that is another text, or where the text is refused and what was expected.
const auto& rows()
{
    static const QMap<QByteArray, QByteArrayList> all = {
        { "SFBool",
            { "FALSE", "1 -> TRUE", " tRue\n -> TRUE", "TRUE", "yes -> ! 0: TRUE or FALSE" } },
        { "SFInt32",
            { "-2147483648", "+7 -> 7", "-0X1f -> -31", "2147483647",
                " 2147483648 -> ! 1: a number from -2147483648 to 2147483647",
                "1.5 -> ! 1: the end of a whole number" } },
        { "SFShort",
            { "-32768", "0x7fff -> 32767", "-32769 -> ! 0: a number from -32768 to 32767" } },
        { "SFUShort", { "-0 -> 0", "65535", "-1 -> ! 0: a number from 0 to 65535" } },
        { "SFUInt32", { "0xffffffff", "4294967296 -> ! 0: a number from 0 to 4294967295" } },
        { "SFFloat",
            { "0.1", "-inf", "NaN -> nan", "-0", "1e14 -> 100000000376832", "1e15 -> 1e+15",
                "1e-45", "0.3333333333 -> 0.33333334", "\t+1.50  -> 1.5",
                "1,5 -> ! 1: the end of the text",
                "3.4028236e38 -> ! 0: a number from -3.4028235e+38 to 3.4028235e+38" } },
        { "SFDouble",
            { "-nan", "1e+15", "1e-320", "0.3333333333333333",
                "1e400 -> ! 0: a number from -1.7976931348623157e+308 to "
                "1.7976931348623157e+308" } },
        { "SFTime", { "1700000000.25", "now -> ! 0: a number" } },
        { "SFVec2f", { "1 -2.5", "1 -> ! 1: a number (number 2 of 2), the text ends" } },
        { "SFVec2s", { "-32768 32767", "1 x -> ! 2: a whole number (number 2 of 2)" } },
        { "SFVec2i32", { "-2147483648 2147483647", "1 2 3 -> ! 4: the end of the text" } },
        { "SFVec3f",
            { "-4 5 6", "\t1\n2 3\r -> 1 2 3", "1 2, 3 -> ! 3: a number (number 3 of 3)" } },
        { "SFVec4f", { "1 2 3 -0", "x -> ! 0: a number (number 1 of 4)" } },
        { "SFColor", { "0.2 0.4 1", "red -> ! 0: a number (number 1 of 3)" } },
        { "SFColorRGBA", { "0.2 0.4 1 0.5", "#fff -> ! 0: a number (number 1 of 4)" } },
        { "SFPlane", { "0 2 0 -3.5", "0 1 0 -> ! 5: a number (number 4 of 4), the text ends" } },
        { "SFRotation", { "3 0 4 1.5707964", "x -> ! 0: a number (number 1 of 4)" } },
        { "SFBox2f", { "0 1 -2 3.5", "0 1 0 -> ! 5: a number (number 4 of 4), the text ends" } },
        { "SFBox3s", { "1 2 3 -1 -2 -3", "x -> ! 0: a whole number (number 1 of 6)" } },
        { "SFMatrix",
            { "1 2 3 4 5 6 7 8 9 1 2 3 4 5 6 0.1", "x -> ! 0: a number (number 1 of 16)" } },
        { "SFString",
            { R"("a \"b\" \\ c\nd, [e]")", "\"\xc3\xa4 \xf0\x9f\x98\x80 \xed\xa0\x80 \t\x01\"",
                R"(bare,[word]\n -> "bare,[word]\\n")", "two words -> ! 4: the end of the text",
                R"("open -> ! 5: a closing double quote, the text ends)",
                R"("C:\dir" -> ! 4: a double quote, a backslash or n behind a backslash)",
                " -> ! 0: a word or a text in double quotes, the text ends" } },
        { "SFFilePathString", { R"(/a.png -> "/a.png")", "my file -> ! 3: the end of the text" } },
        { "SFName", { "\"left wing\"", R"(a"b -> ! 1: the end of the text)" } },
        { "SFEnum", { "B", "4 -> D", "-9", "b -> ! 0: a whole number or one of A, B, AB, D" } },
        { "SFBitMask",
            { "()", "AB -> (A | B)", "D | 0x10 -> (D | 0x10)", "-1 -> (A | B | D | 0xfffffff8)",
                "( D|A ) -> (A | D)", "(A | C) -> ! 5: a whole number or one of A, B, AB, D",
                "(A -> ! 2: | or a closing bracket, the text ends" } },
        { "SFImage",
            { "0 0 0", "5 0 3 -> 0 0 0", "1 1 8 0xffeeddccbbaa9988",
                "1 2 3 16711680 0x8000 -> 1 2 3 0xff0000 0x8000", "2 1 1 0x0 0xff",
                "2 1 1 0x5 -> ! 9: pixel 1 of 2, a number of 1 bytes, the text ends",
                "32767 32767 8 -> ! 13: pixel 0 of 1073676289, a number of 8 bytes, the text "
                "ends" } },
        { "MFFloat",
            { "[]", " [ ]  -> []", "[1,2 , 3,] -> [ 1, 2, 3 ]", R"([ 1, "", 3 ] -> [ 1, 0, 3 ])",
                "1.5 -> [ 1.5 ]",
                "[ 1, 2 -> ! row 1, 6: a comma or a closing bracket, the text ends",
                "[ 1 2 ] -> ! row 0, 4: a comma or a closing bracket",
                "1, 2 -> ! 1: the end of the text", "[ 3 ] x -> ! 6: the end of the text" } },
        { "MFString",
            { R"([a,b , "c"] -> [ "a", "b", "c" ])", R"([ "a, b", "]", "" ])",
                R"(alone -> [ "alone" ])",
                R"([ "b", "c ] -> ! row 1, 11: a closing double quote, the text ends)" } },
    };
    return all;
}

} // namespace

class TestFieldText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // The run under another locale must change nothing.
    void initTestCase()
    {
        QVERIFY(std::setlocale(LC_ALL, ""));
        // The German run proves nothing unless both libraries really have that locale.
        const bool german = qgetenv("LC_ALL").startsWith("de_DE");
        QCOMPARE(std::strtod("1,5", nullptr), german ? 1.5 : 1.0);
        QCOMPARE(QLocale().toDouble(QStringLiteral("1,5")), german ? 1.5 : 0.0);
    }

    void everyTypeReadsItsTexts_data() { addNameRows(fieldTypeNames); }
    void everyTypeReadsItsTexts()
    {
        const QByteArray type = QTest::currentDataTag();
        const auto field = makeField(type);
        const auto other = makeField(type);
        const QByteArray byDefault = textOf(*field);
        KnFieldSensor sensor(nullptr, nullptr);
        sensor.attach(field.get());
        ReadErrors errors;
        QByteArrayList results;
        for (const QByteArray& text : rows().value(type)) {
            const QByteArray given = text.contains(" -> ") ? text.left(text.indexOf(" -> ")) : text;
            const QByteArray before = textOf(*field);
            const bool done = field->set(given.constData());
            QCOMPARE(KnSensorQueue::getInstance().isEmpty(), !done);
            KnSensorQueue::getInstance().process();
            QByteArray result = textOf(*field);
            if (done) {
                QVERIFY2(other->set(result.constData()), given.constData());
                QCOMPARE(textOf(*other), result);
            } else {
                QCOMPARE(result, before);
                result = errors.texts.takeLast().replace("character ", "").replace("expected ", "");
                result.replace("Field of type " + type + ": the text was refused, ", "! ");
                if (result.contains(", found: "))
                    result.truncate(result.indexOf(", found: "));
            }
            results += result == given ? text : given + " -> " + result;
        }
        QCOMPARE(results, rows().value(type));
        if (type.startsWith("MF"))
            testRows(static_cast<KnMField&>(*field), static_cast<KnMField&>(*other),
                rows().value("SF" + type.mid(2)));
        else
            QVERIFY(!results.isEmpty() && results.last().contains(" -> ! "));
        QVERIFY(field->set("\"\""));
        QCOMPARE(textOf(*field), byDefault);
        QCOMPARE(errors.texts, QByteArrayList());
    }

    void theFieldOfANodeIsNamed()
    {
        ReadErrors errors;
        auto* material = new KnMaterial;
        material->ref();
        material->setName("skin");
        QVERIFY(!material->diffuseColor.set("[ 1 1 1, 2 ]"));
        material->unref();
        QCOMPARE(errors.texts.join(),
            QByteArray("Material \"skin\", field diffuseColor (MFColor): the text was refused,"
                       " row 1, character 11: expected a number (number 2 of 3), found: ]"));
    }

    /// The kernel's own way of writing most floats, against the library's.
    void floatsAreAsShortAsTheyCanBe()
    {
        KnSFFloat field;
        KbString text;
        char expected[64];
        // A prime step meets all exponents and all lengths; at the ends stand other ways.
        constexpr std::uint32_t step = 17'477;
        const auto first = std::bit_cast<std::uint32_t>(0.9e-4F);
        const auto last = std::bit_cast<std::uint32_t>(4.3e6F);
        for (std::uint32_t bits = first; bits < last; bits += step) {
            // Powers of two have a nearer neighbour below than above.
            for (const std::uint32_t each : { bits, bits & 0xFF800000U, bits | 0x80000000U }) {
                const auto value = std::bit_cast<float>(each);
                field.setValue(value);
                field.get(text);
                const bool isPlain = std::fabs(value) >= 1e-4F;
                char* const end = std::to_chars(std::begin(expected), std::end(expected), value,
                    isPlain ? std::chars_format::fixed : std::chars_format::scientific)
                                      .ptr;
                if (text.toUtf8() != std::string_view(expected, end))
                    QCOMPARE(text.toUtf8().c_str(), std::string(expected, end).c_str());
            }
        }
    }
    void longTexts()
    {
        KnMFString strings; // whose text crosses the writer's buffer at many places
        for (int i = 0; i < 500; ++i)
            strings.set1Value(i, KbString(QByteArray("0123456789\n\"").repeated(i).toStdString()));
        KnMFString other;
        QVERIFY(other.set(textOf(strings).constData()) && other.getNum() == 500);
        QVERIFY(std::equal(other.getValues(), other.getValues() + 500, strings.getValues()));
    }

private:
    /// The values are texts of the type of one row, of which those without an arrow are taken.
    void testRows(KnMField& array, KnMField& other, const QByteArrayList& values)
    {
        QByteArrayList kept;
        std::copy_if(values.begin(), values.end(), std::back_inserter(kept),
            [](const QByteArray& each) { return !each.contains(" -> "); });
        const QByteArray text = "[ " + kept.join(", ") + " ]";
        QVERIFY(array.set(text.constData()));
        QCOMPARE(textOf(array), text);
        KbString value, byDefault;
        const int num = array.getNum();
        other.setNum(0);
        other.setNum(num);
        QVERIFY(other.get1(0, byDefault));
        for (int row = 0; row < num; ++row)
            QVERIFY(array.get1(row, value) && other.set1(row, value));
        QCOMPARE(textOf(other), text);

        KnSensorQueue::getInstance().process();
        ReadErrors errors;
        QVERIFY(!array.set(("[ " + kept[0] + ", , ]").constData()) && !array.set1(0, "[ 1 ] 2"));
        QVERIFY(!array.set1(-1, value) && !array.set1(num, value) && !array.get1(-1, value));
        QCOMPARE(errors.texts.size(), 4);
        const QByteArray place = "row 1, character " + QByteArray::number(kept[0].size() + 4);
        QVERIFY2(errors.texts[0].contains(place), errors.texts[0].constData());
        QVERIFY(errors.texts[2].contains("a row of the array, which has "));
        QCOMPARE(textOf(array), text);
        QVERIFY(KnSensorQueue::getInstance().isEmpty());
        QVERIFY(array.set1(0, " \"\" ") && array.get1(0, value) && array.getNum() == num);
        QCOMPARE(value.toUtf8(), byDefault.toUtf8());
    }
};

QTEST_APPLESS_MAIN(TestFieldText)
#include "test_field_text.moc"
