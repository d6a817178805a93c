// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnFieldSensor.h"
#include "KnMField.h"
#include "KnMaterial.h"
#include "KnSensorQueue.h"

#include <QTest>

namespace {

struct Row {
    const char* type;
    const char* before;
    const char* refused;
    const char* message; // from the place to the end
};

const Row rows[] = {
    { "SFBool", "TRUE", "yes", "character 0: expected TRUE or FALSE, found: yes" },
    { "SFBool", "TRUE", "1 1", "character 2: expected the end of the text, found: 1" },
    { "SFInt32", "7", "", "character 0: expected a whole number, the text ends" },
    { "SFInt32", "7", "-", "character 0: expected a whole number, found: -" },
    { "SFInt32", "7", "0x", "character 1: expected the end of a whole number, found: x" },
    { "SFInt32", "7", "- 1", "character 0: expected a whole number, found: - 1" },
    { "SFInt32", "7", " 2147483648",
        "character 1: expected a number from -2147483648 to 2147483647, found: 2147483648" },
    { "SFInt32", "7", "99999999999999999999",
        "character 0: expected a number from -2147483648 to 2147483647, found: 9999" },
    { "SFInt32", "7", "1.5", "character 1: expected the end of a whole number, found: .5" },
    { "SFShort", "7", "-32769", "character 0: expected a number from -32768 to 32767" },
    { "SFUShort", "7", "-1", "character 0: expected a number from 0 to 65535, found: -1" },
    { "SFUInt32", "0x7", "0x100000000", "character 0: expected a number from 0 to 4294967295" },
    { "SFFloat", "0.5", "1,5", "character 1: expected the end of the text, found: ,5" },
    { "SFFloat", "0.5", "1.5f", "character 3: expected the end of a number, found: f" },
    { "SFFloat", "0.5", "+-1", "character 0: expected a number, found: +-1" },
    { "SFFloat", "0.5", "0x10", "character 1: expected the end of a number, found: x10" },
    { "SFFloat", "0.5", "1e39",
        "character 0: expected a number from -3.4028235e+38 to 3.4028235e+38, found: 1e39" },
    { "SFDouble", "0.5", "1e309", "character 0: expected a number from -1.7976931348623157e+308" },
    { "SFTime", "0.5", "now", "character 0: expected a number, found: now" },
    { "SFVec2f", "1 2", "1", "character 1: expected a number (number 2 of 2), the text ends" },
    { "SFVec2s", "1 2", "1 40000",
        "character 2: expected a number from -32768 to 32767 (number 2 of 2), found: 40000" },
    { "SFVec2i32", "1 2", "1 2 3", "character 4: expected the end of the text, found: 3" },
    { "SFVec3f", "1 2 3", "1 2, 3", "character 3: expected a number (number 3 of 3), found: , 3" },
    { "SFVec4f", "1 2 3 4", "x", "character 0: expected a number (number 1 of 4), found: x" },
    { "SFColor", "1 0 1", "red", "character 0: expected a number (number 1 of 3), found: red" },
    { "SFColorRGBA", "1 0 1 0", "#fff", "character 0: expected a number (number 1 of 4)" },
    { "SFPlane", "0 1 0 2", "0 1 0", "character 5: expected a number (number 4 of 4)" },
    { "SFRotation", "0 1 0 2", "0 1 0", "character 5: expected a number (number 4 of 4)" },
    { "SFBox2f", "0 1 0 2", "0 1 0", "character 5: expected a number (number 4 of 4)" },
    { "SFBox3s", "1 2 3 4 5 6", "1 2 3 4 5 6.0", "character 11: expected the end of a whole" },
    { "SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 2", "1 0 0 0",
        "character 7: expected a number (number 5 of 16), the text ends" },
    { "SFString", "\"a\"", "two words", "character 4: expected the end of the text, found: words" },
    { "SFString", "\"a\"", "\"open",
        "character 5: expected a closing double quote, the text ends" },
    { "SFString", "\"a\"", R"("C:\dir")",
        "character 4: expected a double quote, a backslash or n behind a backslash, found: dir" },
    { "SFString", "\"a\"", "\"\xc3\xa4\xc3\xb6\" x", "character 5: expected the end of the text" },
    { "SFString", "\"a\"", "", "character 0: expected a word or a text in double quotes" },
    { "SFFilePathString", "\"a\"", "my file", "character 3: expected the end of the text" },
    { "SFName", "\"a\"", "a\"b", "character 1: expected the end of the text, found: \"b" },
    { "SFEnum", "B", "b", "character 0: expected a whole number or one of A, B, AB, D, found: b" },
    { "SFEnum", "B", "A B", "character 0: expected a whole number or one of A, B, AB, D" },
    { "SFBitMask", "(A)", "(A | C)",
        "character 5: expected a whole number or one of A, B, AB, D, found: C)" },
    { "SFBitMask", "(A)", "(A", "character 2: expected | or a closing bracket, the text ends" },
    { "SFBitMask", "(A)", "(A |)", "character 4: expected a whole number or one of" },
    { "SFBitMask", "(A)", "A)", "character 1: expected the end of the text, found: )" },
    { "SFBitMask", "(A)", "0x100000000", "character 0: expected a whole number or one of" },
    { "SFImage", "1 1 1 0x5", "1 1", "character 3: expected a number of components from 0 to 8" },
    { "SFImage", "1 1 1 0x5", "32768 1 1", "character 0: expected a width from 0 to 32767" },
    { "SFImage", "1 1 1 0x5", "1 -1 1", "character 2: expected a height from 0 to 32767" },
    { "SFImage", "1 1 1 0x5", "2 1 1 0x5",
        "character 9: expected pixel 1 of 2, a number of 1 bytes, the text ends" },
    { "SFImage", "1 1 1 0x5", "1 1 1 0x100", "character 6: expected pixel 0 of 1, a number of 1" },
    { "SFImage", "1 1 1 0x5", "1 1 1 0x5 0x6", "character 10: expected the end of the text" },
    { "SFImage", "1 1 1 0x5", "32767 32767 8", "character 13: expected pixel 0 of 1073676289" },
    { "MFColor", "[ 1 0 1 ]", "[ 1 0 1, red ]", "row 1, character 9: expected a number (number 1" },
    { "MFColorRGBA", "[ 1 0 1 0 ]", "[ 1 0 1 ]",
        "row 0, character 8: expected a number (number 4" },
    { "MFDouble", "[ 1, 2 ]", "[ 1, 2", "row 1, character 6: expected a comma or a closing" },
    { "MFFloat", "[ 1, 2 ]", "[ 1 2 ]", "row 0, character 4: expected a comma or a closing" },
    { "MFFloat", "[ 1, 2 ]", "1, 2", "refused, character 1: expected the end of the text" },
    { "MFFloat", "[ 1, 2 ]", "[ , ]", "row 0, character 2: expected a number, found: , ]" },
    { "MFFloat", "[ 1, 2 ]", "[ 3 ] x", "refused, character 6: expected the end of the text" },
    { "MFFloat", "[ 1, 2 ]", "", "row 0, character 0: expected a number, the text ends" },
    { "MFFloat", "[ 1, 2 ]", "[ 3, 4, five ]", "row 2, character 8: expected a number" },
    { "MFInt32", "[ 1 ]", "[ 1.0 ]", "row 0, character 3: expected the end of a whole number" },
    { "MFMatrix", "[]", "[ 1 2 3 ]", "row 0, character 8: expected a number (number 4 of 16)" },
    { "MFName", "[ \"a\" ]", "[ a b ]", "row 0, character 4: expected a comma or a closing" },
    { "MFPlane", "[ 0 1 0 2 ]", "[ up ]", "row 0, character 2: expected a number (number 1 of 4)" },
    { "MFRotation", "[ 0 1 0 2 ]", "[ 1 ]", "row 0, character 4: expected a number (number 2" },
    { "MFShort", "[ 1 ]", "[ 1, 32768 ]", "row 1, character 5: expected a number from -32768" },
    { "MFString", "[ \"a\" ]", "[ \"b\", \"c ]", "row 1, character 11: expected a closing double" },
    { "MFString", "[ \"a\" ]", "[ b\"c\" ]", "row 0, character 3: expected a comma or a closing" },
    { "MFTime", "[ 1 ]", "[ 1s ]", "row 0, character 3: expected the end of a number" },
    { "MFUInt32", "[ 0x1 ]", "[ -1 ]",
        "row 0, character 2: expected a number from 0 to 4294967295" },
    { "MFUShort", "[ 1 ]", "[ 65536 ]", "row 0, character 2: expected a number from 0 to 65535" },
    { "MFVec2f", "[ 1 2 ]", "[ 1 2 3 ]", "row 0, character 6: expected a comma or a closing" },
    { "MFVec2i32", "[ 1 2 ]", "[ 1 ]", "row 0, character 4: expected a whole number (number 2" },
    { "MFVec2s", "[ 1 2 ]", "[ 1 99999 ]", "row 0, character 4: expected a number from -32768" },
    { "MFVec3f", "[ 1 2 3 ]", "[ 1 2 3, 4 5 ]",
        "row 1, character 13: expected a number (number 3" },
    { "MFVec4f", "[ 1 2 3 4 ]", "[ 1 2 3 4,, ]",
        "row 1, character 10: expected a number (number 1" },
};

} // namespace

Q_DECLARE_METATYPE(Row)

class TestFieldRefusals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyTypeHasRows();
    void nothingChangesAndTheMessageHelps_data();
    void nothingChangesAndTheMessageHelps();
    void theFieldOfANodeIsNamed();
    void oneRow_data();
    void oneRow();
    void longTextsAreCut();
};

void TestFieldRefusals::everyTypeHasRows()
{
    for (const QByteArray& name : fieldTypeNames()) {
        const auto isOfIt = [&](const Row& row) { return name == row.type; };
        QVERIFY2(std::any_of(std::begin(rows), std::end(rows), isOfIt), name.constData());
    }
}

void TestFieldRefusals::nothingChangesAndTheMessageHelps_data()
{
    QTest::addColumn<Row>("row");
    for (const Row& row : rows)
        QTest::addRow("%s %s", row.type, row.refused) << row;
}

void TestFieldRefusals::nothingChangesAndTheMessageHelps()
{
    QFETCH(Row, row);
    const auto field = makeField(row.type);
    nameValues(*field);
    QVERIFY(field->set(row.before));
    QCOMPARE(textOf(*field), QByteArray(row.before));
    ReadErrors errors;
    KnFieldSensor sensor(nullptr, nullptr);
    sensor.attach(field.get());

    QVERIFY(!field->set(row.refused));
    QCOMPARE(textOf(*field), QByteArray(row.before));
    QVERIFY(KnSensorQueue::getInstance().isEmpty());
    QCOMPARE(errors.texts.size(), 1);
    const QByteArray& text = errors.texts.first();
    QVERIFY2(text.startsWith(QByteArray("Field of type ") + row.type + ": "), text.constData());
    QVERIFY2(text.contains(row.message), text.constData());
}

void TestFieldRefusals::theFieldOfANodeIsNamed()
{
    ReadErrors errors;
    auto* material = new KnMaterial;
    material->ref();
    QVERIFY(!material->transparency.set("clear"));
    material->setName("skin");
    QVERIFY(!material->diffuseColor.set("[ 1 1 1, 2 ]"));
    material->unref();
    QCOMPARE(errors.texts,
        (QByteArrayList { "Material, field transparency (SFFloat): the text was refused,"
                          " character 0: expected a number, found: clear",
            "Material \"skin\", field diffuseColor (MFColor): the text was refused,"
            " row 1, character 11: expected a number (number 2 of 3), found: ]" }));
}

void TestFieldRefusals::oneRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("no number") << 1 << QByteArray("x")
                               << QByteArray("row 1, character 0: expected a");
    QTest::newRow("an array") << 1 << QByteArray("[ 1 ]") << QByteArray("row 1, character 0");
    QTest::newRow("below") << -1 << QByteArray("1")
                           << QByteArray("a row of the array, which has 2");
    QTest::newRow("beyond") << 2 << QByteArray("1")
                            << QByteArray("a row of the array, which has 2");
}

void TestFieldRefusals::oneRow()
{
    QFETCH(int, row);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, message);
    const auto field = makeField("MFFloat");
    auto& array = static_cast<KnMField&>(*field);
    array.set("[ 5, 6 ]");
    ReadErrors errors;
    QVERIFY(!array.set1(row, text.constData()));
    QCOMPARE(textOf(array), QByteArray("[ 5, 6 ]"));
    QCOMPARE(errors.texts.size(), 1);
    QVERIFY2(errors.texts.first().contains(message), errors.texts.first().constData());
    KbString value("old");
    QCOMPARE(array.get1(row, value), row == 1);
    QCOMPARE(value.toUtf8(), std::string(row == 1 ? "6" : ""));
}

void TestFieldRefusals::longTextsAreCut()
{
    ReadErrors errors;
    const auto field = makeField("SFFloat");
    QByteArray text;
    for (int i = 0; i < 1000; ++i)
        text += "\xc3\xa4";
    QVERIFY(!field->set(text.constData()));
    QVERIFY(errors.texts.first().endsWith("found: " + text.left(48) + "..."));
}

QTEST_APPLESS_MAIN(TestFieldRefusals)
#include "test_field_refusals.moc"
