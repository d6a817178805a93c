// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnDebugError.h"
#include "KnFieldSensor.h"
#include "KnSFBitMask.h"
#include "KnSFImage.h"
#include "KnSensorQueue.h"

#include <QTest>

class TestEnumsAndImages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesAreTheFieldsOwn();
    void valueByName();
    void numbersWithoutNames();
    void maskByAssignment();
    void imageKeepsItsBytes_data();
    void imageKeepsItsBytes();
    void impossibleImagesAreRefused();
};

void TestEnumsAndImages::namesAreTheFieldsOwn()
{
    KnSFEnum field;
    std::vector<KbName> given { "FRONT", "BACK" };
    const int numbers[] = { 5, -1 };
    field.setEnums(2, numbers, given.data());
    given.assign(2, KbName());
    int num = 0;
    int* values = nullptr;
    KbName* names = nullptr;
    field.getEnums(num, values, names);
    QCOMPARE(num, 2);
    QVERIFY(names[0] == KbName("FRONT") && names[1] == KbName("BACK"));
    QCOMPARE(values[1], -1);
    QCOMPARE(field.getValue(), 0);
    KnSFEnum bare;
    bare.getEnums(num, values, names);
    QCOMPARE(num, 0);
}

void TestEnumsAndImages::valueByName()
{
    KnSFEnum field;
    nameValues(field);
    field.setValue("D");
    QCOMPARE(field.getValue(), 4);
    int value = 9;
    QVERIFY(field.findEnumValue("AB", value));
    QCOMPARE(value, 3);
    QVERIFY(!field.findEnumValue("C", value));
    QCOMPARE(value, 3);

    ReadErrors errors;
    KnFieldSensor sensor(nullptr, nullptr);
    sensor.attach(&field);
    field.setValue("C");
    QCOMPARE(field.getValue(), 4);
    QVERIFY(KnSensorQueue::getInstance().isEmpty());
    QCOMPARE(errors.texts,
        QByteArrayList { "Field of type SFEnum: the text was refused, character 0: expected a whole"
                         " number or one of A, B, AB, D, found: C" });
}

void TestEnumsAndImages::numbersWithoutNames()
{
    KnSFEnum field;
    field.setValue(-12);
    QCOMPARE(textOf(field), QByteArray("-12"));
    nameValues(field);
    QCOMPARE(textOf(field), QByteArray("-12"));
    field.setValue(1);
    QCOMPARE(textOf(field), QByteArray("A"));
    KnSFBitMask mask;
    mask = 0x21;
    QCOMPARE(textOf(mask), QByteArray("(0x21)"));
    nameValues(mask);
    QCOMPARE(textOf(mask), QByteArray("(A | 0x20)"));
}

void TestEnumsAndImages::maskByAssignment()
{
    KnSFBitMask mask;
    // A name for several bits serves when no other name has them.
    mask.setEnums({ { "NONE", 0 }, { "BOTH", 6 }, { "LOW", 2 } });
    KnFieldSensor sensor(nullptr, nullptr);
    sensor.attach(&mask);
    for (const auto& [value, text] : { std::pair(0, "()"), std::pair(2, "(LOW)"),
             std::pair(4, "(0x4)"), std::pair(7, "(BOTH | 0x1)") }) {
        mask = value;
        QCOMPARE(mask.getValue(), value);
        QCOMPARE(textOf(mask), QByteArray(text));
        QVERIFY(mask.set(text));
        QCOMPARE(mask.getValue(), value);
    }
    QVERIFY(!KnSensorQueue::getInstance().isEmpty());
    QVERIFY(mask.set("NONE"));
    QCOMPARE(mask.getValue(), 0);
}

void TestEnumsAndImages::imageKeepsItsBytes_data()
{
    QTest::addColumn<int>("components");
    for (int components = 1; components <= KnSFImage::maxComponents; ++components)
        QTest::addRow("%d components", components) << components;
}

void TestEnumsAndImages::imageKeepsItsBytes()
{
    QFETCH(int, components);
    std::vector<unsigned char> bytes(static_cast<std::size_t>(7 * 5 * components));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(i * 37);
    KnSFImage from;
    from.setValue(KbVec2s(7, 5), components, bytes.data());
    KbString text;
    from.get(text);
    KnSFImage to;
    QVERIFY(to.set(text));
    KbVec2s size;
    int count = 0;
    const unsigned char* pixels = to.getValue(size, count);
    QVERIFY(size == KbVec2s(7, 5));
    QCOMPARE(count, components);
    QVERIFY(std::equal(bytes.begin(), bytes.end(), pixels));

    // The field's own pixels may be given back to it.
    to.setValue(KbVec2s(7, 4), components, pixels + 7 * components);
    QVERIFY(std::equal(bytes.begin() + 7 * components, bytes.end(), to.getValue(size, count)));
    to.setValue(KbVec2s(0, 4), components, nullptr);
    QVERIFY(!to.getValue(size, count));
    QVERIFY(size == KbVec2s());
    QCOMPARE(count, 0);
    to.setValue(KbVec2s(1, 1), components, nullptr);
    QCOMPARE(to.getValue(size, count)[components - 1], static_cast<unsigned char>(0));
}

void TestEnumsAndImages::impossibleImagesAreRefused()
{
    KnSFImage image;
    QVERIFY(image.set("1 1 1 0x5"));
    int errors = 0;
    KnDebugError::setHandlerCallback(
        [](const KnError*, void* data) { ++*static_cast<int*>(data); }, &errors);
    image.setValue(KbVec2s(-1, 1), 1, nullptr);
    image.setValue(KbVec2s(1, -1), 1, nullptr);
    image.setValue(KbVec2s(1, 1), -1, nullptr);
    image.setValue(KbVec2s(1, 1), KnSFImage::maxComponents + 1, nullptr);
    KnDebugError::setHandlerCallback(&KnErrorHandler::writeToStandardError, nullptr);
    QCOMPARE(errors, 4);
    QCOMPARE(textOf(image), QByteArray("1 1 1 0x5"));
}

QTEST_APPLESS_MAIN(TestEnumsAndImages)
#include "test_enums_and_images.moc"
