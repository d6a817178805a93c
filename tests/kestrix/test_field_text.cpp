// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnMField.h"
#include "KnMFields.h"

#include <QTest>

namespace {

struct Row {
    const char* type;
    const char* text; // what is set
    const char* canonical; // what is read back; null: the same text
};

const Row rows[] = {
    { "SFBool", "TRUE", nullptr },
    { "SFBool", "FALSE", nullptr },
    { "SFBool", "1", "TRUE" },
    { "SFBool", "0", "FALSE" },
    { "SFBool", " tRue\n", "TRUE" },
    { "SFBool", "false", "FALSE" },
    { "SFInt32", "-2147483648", nullptr },
    { "SFInt32", "2147483647", nullptr },
    { "SFInt32", "+7", "7" },
    { "SFInt32", "-0X1f", "-31" },
    { "SFInt32", "007", "7" },
    { "SFShort", "-32768", nullptr },
    { "SFShort", "0x7fff", "32767" },
    { "SFUShort", "65535", nullptr },
    { "SFUShort", "0xFFFF", "65535" },
    { "SFUShort", "-0", "0" },
    { "SFUInt32", "0xffffffff", nullptr },
    { "SFUInt32", "0x0", nullptr },
    { "SFUInt32", "4294967295", "0xffffffff" },
    { "SFUInt32", "0XaB", "0xab" },
    { "SFFloat", "0.1", nullptr },
    { "SFFloat", "\t+1.50 ", "1.5" },
    { "SFFloat", ".5", "0.5" },
    { "SFFloat", "2.", "2" },
    { "SFFloat", "1E2", "100" },
    { "SFFloat", "-inf", nullptr },
    { "SFFloat", "+Infinity", "inf" },
    { "SFFloat", "NaN", "nan" },
    { "SFDouble", "-nan", nullptr },
    { "SFDouble", "0.1", nullptr },
    { "SFTime", "1700000000.25", nullptr },
    { "SFVec2f", "1 -2.5", nullptr },
    { "SFVec2s", "-32768 32767", nullptr },
    { "SFVec2i32", "-2147483648 2147483647", nullptr },
    { "SFVec3f", " 1\t2\n3\r\f\v", "1 2 3" },
    { "SFVec4f", "1 2 3 -0", nullptr },
    { "SFColor", "0.2 0.4 1", nullptr },
    { "SFColorRGBA", "0.2 0.4 1 0.5", nullptr },
    { "SFPlane", "0 2 0 -3.5", nullptr },
    { "SFRotation", "3 0 4 1.5707964", nullptr },
    { "SFBox2f", "0 1 -2 3.5", nullptr },
    { "SFBox3s", "1 2 3 -1 -2 -3", nullptr },
    { "SFMatrix", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 1e-30", nullptr },
    { "SFString", R"("a \"b\" \\ c\nd, [e]")", nullptr },
    { "SFString", "bare,[word]\\n", R"("bare,[word]\\n")" },
    { "SFString", "\"\xc3\xa4 \xf0\x9f\x98\x80 \xed\xa0\x80 \t\x01\"", nullptr },
    { "SFFilePathString", "/home/a.png", R"("/home/a.png")" },
    { "SFName", "\"left wing\"", nullptr },
    { "SFEnum", "B", nullptr },
    { "SFEnum", " AB ", "AB" },
    { "SFEnum", "4", "D" },
    { "SFEnum", "-9", nullptr },
    { "SFEnum", "0", nullptr },
    { "SFBitMask", "()", nullptr },
    { "SFBitMask", "(A | B)", nullptr },
    { "SFBitMask", "AB", "(A | B)" },
    { "SFBitMask", "( D|A )", "(A | D)" },
    { "SFBitMask", "D | 0x10", "(D | 0x10)" },
    { "SFBitMask", "(A | B | D | 0xfffffff8)", nullptr },
    { "SFBitMask", "-1", "(A | B | D | 0xfffffff8)" },
    { "SFBitMask", "(0x80000000)", nullptr },
    { "SFImage", "0 0 0", nullptr },
    { "SFImage", "5 0 3", "0 0 0" },
    { "SFImage", "2 1 1 0x0 0xff", nullptr },
    { "SFImage", "1 2 3 16711680 0x8000", "1 2 3 0xff0000 0x8000" },
    { "SFImage", "1 1 8 0xffeeddccbbaa9988", nullptr },
    { "MFColor", "[ 0.2 0.4 1, 0 0 0 ]", nullptr },
    { "MFColorRGBA", "[ 0.2 0.4 1 0.5 ]", nullptr },
    { "MFDouble", "[ 0.1, 1e+300 ]", nullptr },
    { "MFFloat", "[]", nullptr },
    { "MFFloat", " [ ] ", "[]" },
    { "MFFloat", "1.5", "[ 1.5 ]" },
    { "MFFloat", "[1,2 , 3,]", "[ 1, 2, 3 ]" },
    { "MFFloat", "[ 1, \"\", 3 ]", "[ 1, 0, 3 ]" },
    { "MFInt32", "[ -1, 0x10 ]", "[ -1, 16 ]" },
    { "MFMatrix", "[ 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1, 2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 2 ]", nullptr },
    { "MFName", "[ \"a b\", \"\" ]", nullptr },
    { "MFPlane", "[ 0 1 0 2 ]", nullptr },
    { "MFRotation", "[ 0 0 1 0, 1 0 0 3.1415927 ]", nullptr },
    { "MFShort", "[ -32768, 32767 ]", nullptr },
    { "MFString", "[ \"a, b\", \"]\", \"\" ]", nullptr },
    { "MFString", "[a,b , \"c\"]", R"([ "a", "b", "c" ])" },
    { "MFString", "alone", R"([ "alone" ])" },
    { "MFTime", "[ 0.5 ]", nullptr },
    { "MFUInt32", "[ 0x0, 1 ]", "[ 0x0, 0x1 ]" },
    { "MFUShort", "[ 0, 65535 ]", nullptr },
    { "MFVec2f", "[ 1 2, 3 4 ]", nullptr },
    { "MFVec2i32", "[ -1 2 ]", nullptr },
    { "MFVec2s", "[ -1 2 ]", nullptr },
    { "MFVec3f", "[ 1 2 3, -4 5 6 ]", nullptr },
    { "MFVec3f", "1 2 3", "[ 1 2 3 ]" },
    { "MFVec4f", "[ 1 2 3 4 ]", nullptr },
};

} // namespace

class TestFieldText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTypeHasRows();
    void textReadsBack_data();
    void textReadsBack();
    void twoQuotesAreTheDefault_data();
    void twoQuotesAreTheDefault();
    void longTextsCrossTheBuffer();
};

void TestFieldText::everyTypeHasRows()
{
    for (const QByteArray& name : fieldTypeNames()) {
        const auto isOfIt = [&](const Row& row) { return name == row.type; };
        QVERIFY2(std::any_of(std::begin(rows), std::end(rows), isOfIt), name.constData());
    }
}

void TestFieldText::textReadsBack_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("canonical");
    for (const Row& row : rows)
        QTest::addRow("%s %s", row.type, row.text)
            << QByteArray(row.type) << QByteArray(row.text)
            << QByteArray(row.canonical ? row.canonical : row.text);
}

void TestFieldText::textReadsBack()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, canonical);
    const auto field = makeField(type);
    const auto other = makeField(type);
    QVERIFY(field);
    nameValues(*field);
    nameValues(*other);
    QVERIFY(field->set(text.constData()));
    QCOMPARE(textOf(*field), canonical);
    QVERIFY(other->set(canonical.constData()));
    QCOMPARE(textOf(*other), canonical);

    // Each row of an array goes to another place on its own.
    if (!field->isOfType(KnMField::getClassTypeId()))
        return;
    auto& from = static_cast<KnMField&>(*field);
    auto& to = static_cast<KnMField&>(*other);
    to.setNum(0);
    to.setNum(from.getNum());
    for (int row = 0; row < from.getNum(); ++row) {
        KbString value;
        QVERIFY(from.get1(row, value));
        QVERIFY(to.set1(row, value));
    }
    QCOMPARE(textOf(to), canonical);
}

void TestFieldText::twoQuotesAreTheDefault_data()
{
    QTest::addColumn<QByteArray>("type");
    for (const QByteArray& name : fieldTypeNames())
        QTest::newRow(name.constData()) << name;
}

void TestFieldText::twoQuotesAreTheDefault()
{
    QFETCH(QByteArray, type);
    const auto row = std::find_if(std::begin(rows), std::end(rows),
        [&](const Row& candidate) { return type == candidate.type; });
    ReadErrors errors;
    const auto field = makeField(type);
    const auto fresh = makeField(type);
    nameValues(*field);
    QVERIFY(field->set(row->text));
    QVERIFY(field->set("\"\""));
    QCOMPARE(textOf(*field), textOf(*fresh));
    if (field->isOfType(KnMField::getClassTypeId())) {
        auto& array = static_cast<KnMField&>(*field);
        QCOMPARE(array.getNum(), 0);
        QVERIFY(array.set(row->text));
        array.setNum(2);
        QVERIFY(array.set1(0, " \"\" "));
        KbString made;
        KbString wanted;
        auto& defaults = static_cast<KnMField&>(*fresh);
        defaults.setNum(1);
        array.get1(0, made);
        defaults.get1(0, wanted);
        QCOMPARE(made.toUtf8(), wanted.toUtf8());
        QCOMPARE(array.getNum(), 2);
    }
    QCOMPARE(errors.texts, QByteArrayList());
}

void TestFieldText::longTextsCrossTheBuffer()
{
    KnMFString strings;
    const std::string piece = "0123456789\n\"";
    for (int i = 0; i < 500; ++i) {
        std::string text;
        for (int n = 0; n < i; ++n)
            text += piece;
        strings.set1Value(i, KbString(text));
    }
    KbString text;
    strings.get(text);
    KnMFString other;
    QVERIFY(other.set(text));
    QCOMPARE(other.getNum(), 500);
    for (int i = 0; i < 500; ++i)
        QVERIFY(other[i] == strings[i]);
}

QTEST_APPLESS_MAIN(TestFieldText)
#include "test_field_text.moc"
