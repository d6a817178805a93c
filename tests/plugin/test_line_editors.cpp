// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"
#include "KnReadError.h"
#include "StringConversion.h"

#include <QLineEdit>
#include <QUndoStack>

using namespace Qt::StringLiterals;

/// The editors that are one line of text.
class TestLineEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture = std::make_unique<EditorFixture>();
    }
    void cleanup() { m_fixture.reset(); }

    void aKeystrokeIsTwoCommands()
    {
        open("SFTime", "12");
        QTest::keyClick(line(), Qt::Key_3);
        QCOMPARE(state(), u"field 312, line 312, 2 commands"_s);
        // Neither Return nor leaving the line adds anything.
        QTest::keyClick(line(), Qt::Key_Return);
        line()->clearFocus();
        QCOMPARE(state(), u"field 312, line 312, 2 commands"_s);
        m_fixture->undo();
        QCOMPARE(state(), u"field 312, line 312, 2 commands"_s);
        m_fixture->undo();
        QCOMPARE(state(), u"field 12, line 12, 2 commands"_s);
    }

    void theCursorStaysThroughARefresh()
    {
        open("SFTime", "1234");
        line()->setFocus();
        line()->setCursorPosition(2);
        QTest::keyClick(line(), Qt::Key_0);
        EditorFixture::settle();
        QCOMPARE(line()->cursorPosition(), 3);
        EditorFixture::write(m_field, "7");
        QCOMPARE(line()->cursorPosition(), 1);
        EditorFixture::write(m_field, "98765");
        QCOMPARE(line()->cursorPosition(), 3);
        QCOMPARE(m_fixture->undoStack().count(), 2);
    }

    void aRefusedTextStaysUntilTheNextRefresh()
    {
        open("SFTime", "12");
        int refusals = 0;
        const KnErrorCallback handler = KnReadError::getHandlerCallback();
        void* const handlerData = KnReadError::getHandlerData();
        KnReadError::setHandlerCallback(
            [](const KnError*, void* count) { ++*static_cast<int*>(count); }, &refusals);
        QTest::keyClick(line(), Qt::Key_X);
        KnReadError::setHandlerCallback(handler, handlerData);
        EditorFixture::settle();
        QCOMPARE(refusals, 2);
        QCOMPARE(state(), u"field 12, line x12, 2 commands"_s);
        m_fixture->undo();
        QCOMPARE(state(), u"field 12, line 12, 2 commands"_s);
    }

    void everyTextSurvives_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes and blanks") << u"  \"a\" 'b' \\ \\n  "_s;
        QTest::newRow("beyond the first plane") << u"\U0001F600\U00010400"_s;
        QTest::newRow("combining and right to left") << u"e\u0301 \u05D0\u05D1 \u0627\u0644"_s;
        QTest::newRow("line ends and tabs") << u"a\nb\tc\r\u2028d"_s;
        QTest::newRow("a zero") << u"\0behind it"_s;
        QTest::newRow("half a pair") << QString(QChar(0xD83D)) + u'x' + QChar(0xDE00);
        QTest::newRow("longer than a line's default") << QString(100000, u'\u00FC');
        QTest::newRow("none") << QString();
    }
    void everyTextSurvives()
    {
        QFETCH(QString, text);
        for (const char* const type : { "SFString", "SFName" }) {
            open(type, "\"before\"");
            // As pasted: no key says most of these.
            line()->setFocus();
            line()->selectAll();
            line()->insert(text);
            QTest::keyClick(line(), Qt::Key_Return);
            EditorFixture::settle();
            QCOMPARE(value(), text);
            QCOMPARE(line()->text(), text);
            QCOMPARE(m_fixture->undoStack().count(), 1);
            m_fixture->undo();
            QCOMPARE(line()->text(), u"before"_s);
            m_fixture->redo();
            QCOMPARE(value(), text);
            // Leaving the line as it stands writes the same value.
            line()->clearFocus();
            EditorFixture::settle();
            QCOMPARE(value(), text);
            QCOMPARE(m_fixture->undoStack().count(), 2);
        }
    }

private:
    /// Selects the field of that type, which holds `text` by then, with nothing to undo.
    void open(const char* type, const char* text)
    {
        m_fixture->undoStack().clear();
        m_field = m_fixture->field(type);
        m_field->set(text);
        m_fixture->select(m_field);
    }
    QLineEdit* line() const { return m_fixture->child<QLineEdit>("lineEdit"); }
    QString state() const
    {
        return u"field %1, line %2, %3 commands"_s.arg(EditorFixture::text(m_field), line()->text())
            .arg(m_fixture->undoStack().count());
    }
    QString value() const
    {
        return toQString(m_field == &m_fixture->node().SFName
                ? m_fixture->node().SFName.getValue().getString()
                : m_fixture->node().SFString.getValue());
    }

    std::unique_ptr<EditorFixture> m_fixture;
    KnField* m_field = nullptr; // the one selected
};

QTEST_MAIN(TestLineEditors)
#include "test_line_editors.moc"
