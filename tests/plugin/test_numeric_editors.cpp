// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"
#include "KnComplexity.h"
#include "KnDirectionalLight.h"
#include "SliderInput.h"
#include "WfRealSlider.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QUndoStack>

namespace {

/// A ratio node with a field of doubles, which has no limits of its own in the table of ranges.
class KnDoubleRatio : public KnComplexity {
    KN_NODE(KnDoubleRatio)
    KnSFDouble ratio;
};

KN_NODE_SOURCE(KnDoubleRatio, KnComplexity)

KnDoubleRatio::KnDoubleRatio() { KN_FIELD(ratio); }

/// A node for the length of a test.
template <class Node>
struct Held {
    Held() { node->ref(); }
    ~Held() { node->unref(); }
    Node* node = new Node;
};

QString lineText(EditorFixture& fixture) { return fixture.child<QLineEdit>("m_lineEdit")->text(); }

} // namespace

class TestNumericEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void aDragAsCommands_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<bool>("notify");
        QTest::addColumn<QString>("undone");
        QTest::newRow("float, each move")
            << QByteArray("SFFloat") << QByteArray("2.5") << true << QStringLiteral("2.5");
        QTest::newRow("float, release only") << QByteArray("SFFloat") << QByteArray("0.1234567")
                                             << false << QStringLiteral("0.123457");
        QTest::newRow("double, each move")
            << QByteArray("SFDouble") << QByteArray("1e-05") << true << QStringLiteral("1e-05");
        QTest::newRow("integer, each move")
            << QByteArray("SFShort") << QByteArray("40") << true << QStringLiteral("40");
        QTest::newRow("unsigned, each move")
            << QByteArray("SFUInt32") << QByteArray("0x28") << true << QStringLiteral("0x28");
        QTest::newRow("unsigned, release only")
            << QByteArray("SFUInt32") << QByteArray("0x28") << false << QStringLiteral("0x28");
    }
    void aDragAsCommands()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, start);
        QFETCH(bool, notify);
        QFETCH(QString, undone);
        EditorFixture fixture;
        KnField* const field = fixture.field(type.constData());
        field->set(start.constData());
        fixture.select(field);
        if (!notify)
            QTest::mouseClick(fixture.child<QCheckBox>("m_notifyCheckBox"), Qt::LeftButton);

        SliderInput mouse(fixture.child<QSlider>("m_slider"));
        QStringList texts { undone };
        mouse.press();
        for (int i = 0; i < 2; ++i) {
            mouse.moveBy(8);
            EditorFixture::settle();
            if (notify)
                texts << EditorFixture::text(field);
        }
        QVERIFY(!notify || texts.at(1) != texts.at(2));
        mouse.release();
        EditorFixture::settle();
        texts << EditorFixture::text(field);
        QVERIFY(texts.last() != texts.first());
        QUndoStack& stack = fixture.undoStack();
        QCOMPARE(stack.count(), notify ? 3 : 1);

        for (qsizetype i = texts.size() - 2; i >= 0; --i) {
            fixture.undo();
            QCOMPARE(EditorFixture::text(field), texts.at(i));
        }
        QCOMPARE(stack.index(), 0);
        for (qsizetype i = 1; i < texts.size(); ++i) {
            fixture.redo();
            QCOMPARE(EditorFixture::text(field), texts.at(i));
        }
    }

    void valuesAtTheEndsOfTheirTypes_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* type, const char* text, const char* shown) {
            QTest::addRow("%s %s", type, text)
                << QByteArray(type) << QByteArray(text) << QString::fromLatin1(shown);
        };
        row("SFFloat", "-3.4028235e+38", "-340282346638528859811704183484516925440.000000");
        row("SFFloat", "inf", "inf");
        row("SFFloat", "nan", "nan");
        row("SFDouble", "1.7976931348623157e+308", "1.79769313486231e+308");
        row("SFDouble", "-1.7976931348623157e+308", "-1.79769313486231e+308");
        row("SFDouble", "5e-324", "4.94065645841247e-324");
        row("SFDouble", "1e+15", "1e+15");
        row("SFDouble", "-inf", "-inf");
        row("SFInt32", "-2147483648", "-2147483648");
        row("SFInt32", "2147483647", "2147483647");
        row("SFShort", "-32768", "-32768");
        row("SFUShort", "65535", "65535");
        row("SFUInt32", "0xffffffff", "ffffffff");
        row("SFUInt32", "0x0", "0");
    }
    void valuesAtTheEndsOfTheirTypes()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, text);
        QFETCH(QString, shown);
        EditorFixture fixture;
        KnField* const field = fixture.field(type.constData());
        QVERIFY(field->set(text.constData()));
        fixture.select(field);
        QCOMPARE(lineText(fixture), shown);
        QCOMPARE(EditorFixture::text(field), QString::fromLatin1(text));
        QCOMPARE(fixture.undoStack().count(), 0);
        // The way down from there and back, by keys.
        QTest::keyClick(fixture.child<QSlider>("m_slider"), Qt::Key_Home);
        QTest::keyClick(fixture.child<QSlider>("m_slider"), Qt::Key_End);
        EditorFixture::settle();
        while (fixture.undoStack().canUndo())
            fixture.undo();
        QCOMPARE(EditorFixture::text(field), QString::fromLatin1(text));
    }

    void allUnsignedValuesCanBeTyped()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFUInt32");
        fixture.select(field);
        for (const char* digits : { "ffffffff", "80000000", "0xff", "0" }) {
            const QString before = EditorFixture::text(field);
            typeInto(fixture.child<QLineEdit>("m_lineEdit"), QString::fromLatin1(digits));
            EditorFixture::settle();
            const unsigned int value = QByteArray(digits).toUInt(nullptr, 16);
            QCOMPARE(fixture.node().SFUInt32.getValue(), value);
            fixture.undo();
            fixture.undo();
            QCOMPARE(EditorFixture::text(field), before);
            fixture.redo();
            QCOMPARE(fixture.node().SFUInt32.getValue(), value);
        }
    }

    void aRatioOpensForWhatItHolds()
    {
        Held<KnDirectionalLight> light;
        light.node->intensity.setValue(1.5F);
        EditorFixture fixture;
        fixture.select(&light.node->intensity);
        auto* const slider = fixture.child<WfRealSlider>("WfSliderFrame");
        QVERIFY(slider->isBounded());
        QCOMPARE(slider->getMaximum(), 1.5);

        // Another node's field has its own range, and all numbers can be typed again.
        fixture.node().SFFloat.setValue(-3.0F);
        fixture.select(fixture.field("SFFloat"));
        QVERIFY(!slider->isBounded());
        QCOMPARE(slider->getMinimum(), -3.0);
        QCOMPARE(slider->getMaximum(), 10.0);
        typeInto(slider->m_lineEdit, QStringLiteral("-1234.5"));
        QCOMPARE(fixture.node().SFFloat.getValue(), -1234.5F);
        QCOMPARE(light.node->intensity.getValue(), 1.5F);
        fixture.select(nullptr);
    }

    void aDoubleOfARatioNodeIsUsable()
    {
        Held<KnDoubleRatio> ratio;
        EditorFixture fixture;
        fixture.node().SFDouble.setValue(5.0);
        fixture.select(fixture.field("SFDouble"));
        // The scale stands in its middle: the empty range pushes it, which is nobody's edit.
        fixture.select(&ratio.node->ratio);
        QCOMPARE(lineText(fixture), QStringLiteral("0"));
        fixture.select(fixture.field("SFDouble"));
        QCOMPARE(fixture.node().SFDouble.getValue(), 5.0);
        QCOMPARE(fixture.undoStack().count(), 0);

        ratio.node->ratio.setValue(2.5);
        fixture.select(&ratio.node->ratio);
        QCOMPARE(lineText(fixture), QStringLiteral("2.5"));
        typeInto(fixture.child<QLineEdit>("m_lineEdit"), QStringLiteral("1.25"));
        QCOMPARE(ratio.node->ratio.getValue(), 1.25);
        EditorFixture::settle();
        typeInto(fixture.child<QLineEdit>("m_lineEdit"), QStringLiteral("3"));
        QCOMPARE(ratio.node->ratio.getValue(), 1.25);
        fixture.select(nullptr);
    }

    void anIntegerRangeThatHasGrownStays()
    {
        EditorFixture fixture;
        fixture.node().SFInt32.setValue(250);
        fixture.select(fixture.field("SFInt32"));
        fixture.select(fixture.otherField("SFInt32"));
        QCOMPARE(fixture.child<QSlider>("m_slider")->maximum(), 250);
        QCOMPARE(fixture.otherNode().SFInt32.getValue(), 0);
    }

    void aTypedTextIsKeptWhenTheSelectionMoves()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFInt32"));
        QTest::mouseDClick(fixture.child<QLineEdit>("m_lineEdit"), Qt::LeftButton);
        QTest::keyClicks(fixture.child<QLineEdit>("m_lineEdit"), QStringLiteral("77"));
        fixture.select(fixture.otherField("SFInt32"));
        QCOMPARE(fixture.node().SFInt32.getValue(), 77);
        QCOMPARE(fixture.otherNode().SFInt32.getValue(), 0);
    }
};

QTEST_MAIN(TestNumericEditors)
#include "test_numeric_editors.moc"
