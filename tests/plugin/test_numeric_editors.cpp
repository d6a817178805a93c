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
        const auto row = [](const char* type, const char* start, bool notify, const char* undone) {
            QTest::addRow("%s, %s", type, notify ? "each move" : "release only")
                << QByteArray(type) << QByteArray(start) << notify << QString::fromLatin1(undone);
        };
        row("SFFloat", "2.5", true, "2.5");
        row("SFFloat", "0.1234567", false, "0.123457"); // as it was shown when it was pressed
        row("SFDouble", "1e-05", true, "1e-05");
        row("SFShort", "40", true, "40");
        row("SFUInt32", "0x28", true, "0x28");
        row("SFUInt32", "0x28", false, "0x28");
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

    void valuesAtTheEndsOfTheirTypes()
    {
        const struct {
            const char* type;
            const char* text;
            const char* shown;
        } rows[] = {
            { "SFFloat", "-3.4028235e+38", "-340282346638528859811704183484516925440.000000" },
            { "SFFloat", "inf", "inf" },
            { "SFFloat", "nan", "nan" },
            { "SFDouble", "1.7976931348623157e+308", "1.79769313486231e+308" },
            { "SFDouble", "5e-324", "4.94065645841247e-324" },
            { "SFDouble", "-inf", "-inf" },
            { "SFInt32", "-2147483648", "-2147483648" },
            { "SFInt32", "2147483647", "2147483647" },
            { "SFShort", "-32768", "-32768" },
            { "SFUInt32", "0xffffffff", "ffffffff" },
        };
        for (const auto& row : rows) {
            EditorFixture fixture;
            KnField* const field = fixture.field(row.type);
            QVERIFY(field->set(row.text));
            fixture.select(field);
            QCOMPARE(lineText(fixture), QString::fromLatin1(row.shown));
            QCOMPARE(EditorFixture::text(field), QString::fromLatin1(row.text));
            QCOMPARE(fixture.undoStack().count(), 0);
            // To both ends of the scale, by keys, and the way back.
            QTest::keyClick(fixture.child<QSlider>("m_slider"), Qt::Key_Home);
            QTest::keyClick(fixture.child<QSlider>("m_slider"), Qt::Key_End);
            QVERIFY(fixture.undoStack().count() > 0);
            while (fixture.undoStack().canUndo())
                fixture.undo();
            QCOMPARE(EditorFixture::text(field), QString::fromLatin1(row.text));
        }
    }

    void aDragThatWasCutShortLeavesNothingBehind()
    {
        EditorFixture fixture;
        fixture.node().SFInt32.setValue(40);
        fixture.select(fixture.field("SFInt32"));
        SliderInput(fixture.child<QSlider>("m_slider")).press();
        fixture.select(fixture.otherField("SFInt32"));
        typeInto(fixture.child<QLineEdit>("m_lineEdit"), QStringLiteral("7"));
        while (fixture.undoStack().canUndo())
            fixture.undo();
        QCOMPARE(fixture.otherNode().SFInt32.getValue(), 0);
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
        EditorFixture::write(&light.node->intensity, "-0.5");
        QCOMPARE(slider->getMinimum(), -0.5);
        QCOMPARE(slider->getValue(), -0.5);

        // Another node's field has its own range, and all numbers can be typed again.
        fixture.node().SFFloat.setValue(-3.0F);
        fixture.select(fixture.field("SFFloat"));
        QVERIFY(!slider->isBounded());
        QCOMPARE(slider->getMinimum(), -3.0);
        QCOMPARE(slider->getMaximum(), 10.0);
        typeInto(slider->m_lineEdit, QStringLiteral("-1234.5"));
        QCOMPARE(fixture.node().SFFloat.getValue(), -1234.5F);
        QCOMPARE(light.node->intensity.getValue(), -0.5F);
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
