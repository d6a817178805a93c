// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"
#include "KnComplexity.h"
#include "KnDirectionalLight.h"
#include "SliderInput.h"
#include "StringConversion.h"
#include "WfIntSlider.h"
#include "WfRealSlider.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QUndoStack>

#include <limits>
#include <tuple>

using namespace Qt::StringLiterals;

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

} // namespace

/// The editors of single numbers, and the sliders that they consist of.
class TestNumericEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture = std::make_unique<EditorFixture>();
    }
    void cleanup() { m_fixture.reset(); }

    void aDragAsCommands()
    {
        const std::tuple<const char*, const char*, bool, int, QString> rows[] = {
            { "SFFloat", "2.5", true, 2, u"2.5"_s },
            { "SFFloat", "0.1234567", false, 2, u"0.123457"_s }, // as shown when it was pressed
            { "SFFloat", "5.03", false, 0, u"5.03"_s }, // a press alone falls on the grid
            { "SFDouble", "1e-05", true, 2, u"1e-05"_s },
            { "SFShort", "40", true, 2, u"40"_s },
            { "SFUInt32", "0x28", true, 2, u"0x28"_s },
            { "SFUInt32", "0x28", false, 2, u"0x28"_s },
        };
        for (const auto& [type, start, notify, moves, undone] : rows) {
            open(type, start);
            auto* const box = m_fixture->child<QCheckBox>("m_notifyCheckBox");
            if (box->isChecked() != notify)
                QTest::mouseClick(box, Qt::LeftButton);
            SliderInput mouse(scale());
            QStringList texts { undone };
            mouse.press();
            for (int i = 0; i < moves; ++i) {
                mouse.moveBy(8);
                EditorFixture::settle();
                if (notify)
                    texts << text();
            }
            mouse.release();
            EditorFixture::settle();
            texts << text();
            QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), notify ? 3 : 2);
            QCOMPARE(undoAll(), texts.first(texts.size() - 1));
            for (const QString& redone : texts.sliced(1)) {
                m_fixture->redo();
                QCOMPARE(text(), redone);
            }
        }
    }

    void valuesAtTheEndsOfTheirTypes()
    {
        const char* const rows[][3] = {
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
        for (const auto& [type, held, shownText] : rows) {
            open(type, held);
            QCOMPARE(shown(), QLatin1String(shownText));
            QCOMPARE(text(), QLatin1String(held));
            QCOMPARE(m_fixture->undoStack().count(), 0);
            // To both ends of the scale, by keys, and the way back.
            QTest::keyClick(scale(), Qt::Key_Home);
            QTest::keyClick(scale(), Qt::Key_End);
            QCOMPARE(undoAll().value(0), QLatin1String(held));
        }
    }

    void allUnsignedNumbersCanBeReached()
    {
        open("SFUInt32", "0xff");
        slider()->setValue(u"1234"_s); // the first text has decided the base
        QCOMPARE(shown(), u"34"_s);
        type("ffffffff");
        QCOMPARE(scale()->value(), std::numeric_limits<int>::max());
        QTest::keyClick(scale(), Qt::Key_Left);
        QCOMPARE(text(), u"0xfffffffe"_s);
        QTest::keyClick(scale(), Qt::Key_Home);
        QCOMPARE(text(), u"0x0"_s);
        QCOMPARE(scale()->value(), std::numeric_limits<int>::min());
        QCOMPARE(undoAll().value(0), u"0xff"_s);
    }

    void textsThatDoNotParse()
    {
        const char* const rows[][3] = { { "SFUShort", "many", "42" },
            { "SFUShort", "70000", "65535" }, { "SFShort", "70000", "42" } };
        for (const auto& [fieldType, typed, value] : rows) {
            open(fieldType, "42");
            type(typed);
            QCOMPARE(text(), QLatin1String(value));
            // What undo brings back is the value, not the text that was refused.
            SliderInput mouse(scale());
            mouse.press();
            QCOMPARE(toQString(slider()->m_oldValue), QLatin1String(value));
            mouse.release();
        }
    }

    void stepsWithTheCheckBoxClearWriteNothing()
    {
        open("SFInt32", "50");
        QCOMPARE(scale()->maximum(), 100);
        for (int round = 0; round < 2; ++round) {
            const int before = scale()->value();
            SliderInput(scale()).turnWheel();
            QTest::keyClick(scale(), Qt::Key_Right);
            QVERIFY(scale()->value() > before + 1);
            QCOMPARE(shown(), QString::number(scale()->value()));
            QCOMPARE(m_fixture->undoStack().count(), 2);
            QTest::mouseClick(m_fixture->child<QCheckBox>("m_notifyCheckBox"), Qt::LeftButton);
        }
    }

    void aRangeOpensForWhatTheFieldHolds()
    {
        Held<KnDirectionalLight> light;
        light.node->intensity.setValue(1.5F);
        m_fixture->select(&light.node->intensity);
        auto* const real = static_cast<WfRealSlider*>(slider());
        const auto range = [real] {
            return u"%1 to %2, %3"_s.arg(real->getMinimum())
                .arg(real->getMaximum())
                .arg(QLatin1String(real->isBounded() ? "bounded" : "free"));
        };
        QCOMPARE(range(), u"0 to 1.5, bounded"_s);
        EditorFixture::write(&light.node->intensity, "-0.5");
        QCOMPARE(range(), u"-0.5 to 1.5, bounded"_s);
        QCOMPARE(real->getValue(), -0.5);

        // Another node's field has its own range, and all numbers can be typed again.
        open("SFFloat", "-3");
        QCOMPARE(range(), u"-3 to 10, free"_s);
        type("25");
        QCOMPARE(range(), u"-3 to 25, free"_s);
        QCOMPARE(scale()->value(), 100);
        type("-1234.5");
        QCOMPARE(text(), u"-1234.5"_s);
        QCOMPARE(light.node->intensity.getValue(), -0.5F);

        real->setRange(-5, 0, false);
        real->setValue(-1);
        QCOMPARE(scale()->value(), 80);
        real->setRange(0, 1, true);
        real->setValue(7);
        QCOMPARE(real->getValue(), 1.0);

        KnSFFloat ofNoNode;
        m_fixture->select(&ofNoNode);
        QCOMPARE(range(), u"0 to 10, free"_s);

        open("SFInt32", "250");
        m_fixture->select(m_fixture->otherField("SFInt32"));
        QCOMPARE(scale()->maximum(), 250); // one range for all fields
        QCOMPARE(m_fixture->otherNode().SFInt32.getValue(), 0);
    }

    void aDoubleOfARatioNodeIsUsable()
    {
        Held<KnDoubleRatio> ratio;
        open("SFDouble", "5");
        QCOMPARE(static_cast<WfRealSlider*>(slider())->getMaximum(), 10.0);
        // The scale stands in its middle: the empty range pushes it, which is nobody's edit.
        m_fixture->select(&ratio.node->ratio);
        QTest::keyClick(scale(), Qt::Key_Right);
        SliderInput(scale()).press();
        QCOMPARE(shown(), u"0"_s);
        m_fixture->select(m_field);
        QCOMPARE(text(), u"5"_s);
        QCOMPARE(m_fixture->undoStack().count(), 0);

        ratio.node->ratio.setValue(2.5);
        m_fixture->select(&ratio.node->ratio);
        QCOMPARE(shown(), u"2.5"_s);
        type("1.25");
        QCOMPARE(ratio.node->ratio.getValue(), 1.25);
        type("3");
        QCOMPARE(ratio.node->ratio.getValue(), 1.25);
    }

    void aDragThatWasCutShortLeavesNothingBehind()
    {
        open("SFInt32", "40");
        SliderInput(scale()).press();
        m_fixture->select(m_fixture->otherField("SFInt32"));
        type("7");
        while (m_fixture->undoStack().canUndo())
            m_fixture->undo();
        QCOMPARE(m_fixture->otherNode().SFInt32.getValue(), 0);
    }

    void aTypedTextIsKeptWhenTheSelectionMoves()
    {
        open("SFInt32", "0");
        QTest::mouseDClick(m_fixture->child<QLineEdit>("m_lineEdit"), Qt::LeftButton);
        QTest::keyClicks(m_fixture->child<QLineEdit>("m_lineEdit"), u"77"_s);
        m_fixture->select(m_fixture->otherField("SFInt32"));
        QCOMPARE(text(), u"77"_s);
        QCOMPARE(m_fixture->otherNode().SFInt32.getValue(), 0);
    }

    void aSliderThatHasNoOwner()
    {
        WfIntSlider octal(WfIntSlider::Int32, 0, nullptr, nullptr, 0, 0);
        octal.setRange(50, 60, true); // pushes the scale, before there is a value to tell of
        QCOMPARE(octal.getValue(), 50);
        octal.setRange(40, 60, true);
        QCOMPARE(octal.getMinimum(), 50); // a bounded range only narrows
        octal.setValue(u"07"_s);
        octal.setValue(u"070"_s);
        QCOMPARE(octal.getValue(), 56);
        octal.setValue(u"many"_s);
        QCOMPARE(octal.getValue(), 50);
    }

private:
    /// Selects the field of that type, which holds `text` by then, with nothing to undo.
    void open(const char* type, const char* text)
    {
        m_fixture->select(nullptr);
        m_fixture->undoStack().clear();
        m_field = m_fixture->field(type);
        m_field->set(text);
        m_fixture->select(m_field);
    }
    QString text() const { return EditorFixture::text(m_field); }
    /// What the field holds after each step that is undone, in the order of the edits.
    QStringList undoAll()
    {
        QStringList texts;
        while (m_fixture->undoStack().canUndo()) {
            m_fixture->undo();
            texts.prepend(text());
        }
        return texts;
    }
    void type(const char* text)
    {
        typeInto(m_fixture->child<QLineEdit>("m_lineEdit"), QString::fromLatin1(text));
    }
    QString shown() const { return m_fixture->child<QLineEdit>("m_lineEdit")->text(); }
    QSlider* scale() const { return m_fixture->child<QSlider>("m_slider"); }
    WfSlider* slider() const { return m_fixture->child<WfSlider>("WfSliderFrame"); }

    std::unique_ptr<EditorFixture> m_fixture;
    KnField* m_field = nullptr; // the one opened
};

QTEST_MAIN(TestNumericEditors)
#include "test_numeric_editors.moc"
