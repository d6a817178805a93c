// SPDX-License-Identifier: BSD-3-Clause
#include "CrvStrings.h"
#include "EditorFixture.h"
#include "KnDirectionalLight.h"
#include "SliderInput.h"
#include "TextRows.h"
#include "WfRealSlider.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

/// The editors that are one slider or one line.
class TestSingleValueEditors : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void aDragAsCommands_data()
    {
        // The field, whether the check box is checked, the moves, and the field after all was
        // undone.
        addTextRows({
            { "SFFloat", "2.5", "notify", "2", "2.5" },
            { "SFFloat", "0.1234567", "", "2", "0.123457" }, // as shown when it was pressed
            { "SFFloat", "5.03", "", "0", "5.03" }, // a press alone falls on the grid
            { "SFUInt32", "0x28", "", "2", "0x28" },
        });
    }
    void aDragAsCommands()
    {
        const auto [type, start, notified, moves, undone] = textRow<5>();
        const bool notify = !notified.isEmpty();
        open(qPrintable(type), qPrintable(start));
        if (!notify)
            QTest::mouseClick(child<QCheckBox>("m_notifyCheckBox"), Qt::LeftButton);
        SliderInput mouse(scale());
        QStringList texts { undone };
        mouse.press();
        for (int i = 0; i < moves.toInt(); ++i) {
            mouse.moveBy(8);
            settle();
            if (notify)
                texts << text();
        }
        mouse.release();
        settle();
        texts << text();
        QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), notify ? 3 : 2);
        QCOMPARE(undoAll(), texts.first(texts.size() - 1));
        while (undoStack().canRedo())
            redo();
        QCOMPARE(text(), texts.last());
    }

    void aRangeOpensForWhatTheFieldHolds()
    {
        auto* const light = new KnDirectionalLight; // lives while it is selected
        light->intensity.setValue(1.5F);
        select(&light->intensity);
        auto* const real = static_cast<WfRealSlider*>(child<WfSlider>("WfSliderFrame"));
        const auto range
            = [real] { return u"%1 to %2"_s.arg(real->getMinimum()).arg(real->getMaximum()); };
        QCOMPARE(range(), u"0 to 1.5"_s);
        write(&light->intensity, "-0.5");
        QCOMPARE(range(), u"-0.5 to 1.5"_s);

        // Another node's field has its own range, and all numbers can be typed again.
        open("SFFloat", "-3");
        QCOMPARE(range(), u"-3 to 10"_s);
        typeInto(line(), u"-1234.5"_s);
        QCOMPARE(text(), u"-1234.5"_s);
    }

    void aMoveOfTheSelectionEndsAnEdit()
    {
        open("SFInt32", "0");
        QTest::mouseDClick(line(), Qt::LeftButton);
        QTest::keyClicks(line(), u"777"_s);
        select(otherField("SFInt32"));
        QCOMPARE(text(), u"777"_s);
        QCOMPARE(otherNode().SFInt32.getValue(), 0);
        QCOMPARE(scale()->maximum(), 777); // one range for all fields
    }

    void aKeystrokeIsTwoCommands()
    {
        open("SFTime", "1234");
        line()->setFocus();
        line()->setCursorPosition(2);
        QTest::keyClick(line(), Qt::Key_0);
        settle();
        // Neither Return nor leaving the line adds anything.
        QTest::keyClick(line(), Qt::Key_Return);
        line()->clearFocus();
        QCOMPARE(line()->text(), u"12034"_s);
        QCOMPARE(line()->cursorPosition(), 3);
        QCOMPARE(undoAll(), QStringList({ u"1234"_s, u"12034"_s }));
        QCOMPARE(line()->text(), u"1234"_s);
    }

    void everyTextSurvives_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::newRow("letters") << u"  \"quotes\" \\ \\n \U0001F600 e\u0301 \u05D0 blanks  "_s;
        QTest::newRow("line ends") << u"\0line ends\nand\ttabs\r\u2028d"_s;
        QTest::newRow("half pairs") << QString(QChar(0xD83D)) + u"half a pair"_s + QChar(0xDE00);
        QTest::newRow("long") << QString(100000, u'\u00FC'); // longer than a line's default
        QTest::newRow("empty") << QString();
    }
    void everyTextSurvives()
    {
        QFETCH(QString, pasted);
        open("SFString", "\"before\"");
        const auto value = [this] { return toQString(node().SFString.getValue()); };
        // No key says most of these.
        line()->setFocus();
        line()->selectAll();
        line()->insert(pasted);
        QTest::keyClick(line(), Qt::Key_Return);
        settle();
        QCOMPARE(value(), pasted);
        QCOMPARE(line()->text(), pasted);
        undo();
        QCOMPARE(line()->text(), u"before"_s);
        redo();
        QCOMPARE(value(), pasted);
    }

private:
    void open(const char* type, const char* text) { m_field = &show(type, text); }
    QString text() const { return EditorFixture::text(m_field); }
    /// What the field holds after each step that is undone, in the order of the edits.
    QStringList undoAll()
    {
        QStringList texts;
        while (undoStack().canUndo()) {
            undo();
            texts.prepend(text());
        }
        return texts;
    }
    QLineEdit* line() const { return editor()->getFrame()->findChild<QLineEdit*>(); }
    QSlider* scale() const { return child<QSlider>("m_slider"); }

    KnField* m_field = nullptr; // the one opened
};

QTEST_MAIN(TestSingleValueEditors)
#include "test_single_value_editors.moc"
