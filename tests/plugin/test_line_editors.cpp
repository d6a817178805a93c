// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"
#include "EditorRow.h"
#include "KnReadError.h"
#include "StringConversion.h"

#include <QLineEdit>
#include <QUndoStack>

namespace {

QLineEdit* line(EditorFixture& fixture) { return fixture.child<QLineEdit>("lineEdit"); }

} // namespace

class TestLineEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void aKeystrokeIsTwoCommands()
    {
        EditorFixture fixture;
        EditorFixture::write(fixture.field("SFTime"), "12");
        fixture.select(fixture.field("SFTime"));
        QTest::keyClick(line(fixture), Qt::Key_3);
        QCOMPARE(EditorFixture::text(fixture.field("SFTime")), QStringLiteral("312"));
        QCOMPARE(fixture.undoStack().count(), 2);
        // Neither Return nor leaving the line adds anything.
        QTest::keyClick(line(fixture), Qt::Key_Return);
        line(fixture)->clearFocus();
        QCOMPARE(fixture.undoStack().count(), 2);
        fixture.undo();
        QCOMPARE(EditorFixture::text(fixture.field("SFTime")), QStringLiteral("312"));
        fixture.undo();
        QCOMPARE(line(fixture)->text(), QStringLiteral("12"));
    }

    void theCursorStaysThroughARefresh()
    {
        EditorFixture fixture;
        EditorFixture::write(fixture.field("SFTime"), "1234");
        fixture.select(fixture.field("SFTime"));
        line(fixture)->setFocus();
        line(fixture)->setCursorPosition(2);
        QTest::keyClick(line(fixture), Qt::Key_0);
        EditorFixture::settle();
        QCOMPARE(line(fixture)->cursorPosition(), 3);
        EditorFixture::write(fixture.field("SFTime"), "7");
        QCOMPARE(line(fixture)->cursorPosition(), 1);
        EditorFixture::write(fixture.field("SFTime"), "98765");
        QCOMPARE(line(fixture)->cursorPosition(), 3);
        QCOMPARE(fixture.undoStack().count(), 2);
    }

    void aRefusedTextStaysUntilTheNextRefresh()
    {
        EditorFixture fixture;
        KnField* const field = fixture.field("SFTime");
        EditorFixture::write(field, "12");
        fixture.select(field);
        int refusals = 0;
        const KnErrorCallback handler = KnReadError::getHandlerCallback();
        void* const handlerData = KnReadError::getHandlerData();
        KnReadError::setHandlerCallback(
            [](const KnError*, void* count) { ++*static_cast<int*>(count); }, &refusals);
        QTest::keyClick(line(fixture), Qt::Key_X);
        KnReadError::setHandlerCallback(handler, handlerData);
        EditorFixture::settle();
        QCOMPARE(line(fixture)->text(), QStringLiteral("x12"));
        QCOMPARE(EditorFixture::text(field), QStringLiteral("12"));
        QCOMPARE(refusals, 2);
        QCOMPARE(fixture.undoStack().count(), 2);
        fixture.undo();
        QCOMPARE(line(fixture)->text(), QStringLiteral("12"));
        QCOMPARE(EditorFixture::text(field), QStringLiteral("12"));
    }

    void everyTextSurvives_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QString>("text");
        const QList<std::pair<const char*, QString>> texts {
            { "quotes and blanks", QStringLiteral("  \"a\" 'b' \\ \\n  ") },
            { "beyond the first plane", QStringLiteral(u"\U0001F600\U00010400") },
            { "combining and right to left", QStringLiteral(u"e\u0301 \u05D0\u05D1 \u0627\u0644") },
            { "line ends and tabs", QStringLiteral("a\nb\tc\r\u2028d") },
            { "a zero", QString(QChar(u'\0')) + QStringLiteral("behind it") },
            { "half a pair", QString(QChar(0xD83D)) + QStringLiteral("x") + QChar(0xDE00) },
            { "longer than a line's default", QString(100000, QChar(u'\u00FC')) },
            { "none", QString() },
        };
        for (const QByteArray& type : { QByteArray("SFString"), QByteArray("SFName") }) {
            for (const auto& [name, text] : texts)
                QTest::addRow("%s, %s", type.constData(), name) << type << text;
        }
    }
    void everyTextSurvives()
    {
        QFETCH(QByteArray, type);
        QFETCH(QString, text);
        EditorFixture fixture;
        KnField* const field = fixture.field(type.constData());
        EditorFixture::write(field, "\"before\"");
        fixture.select(field);
        // As pasted: no key says most of these.
        line(fixture)->setFocus();
        line(fixture)->selectAll();
        line(fixture)->insert(text);
        QTest::keyClick(line(fixture), Qt::Key_Return);
        EditorFixture::settle();
        const auto value = [&] {
            return toQString(type == "SFName" ? fixture.node().SFName.getValue().getString()
                                              : fixture.node().SFString.getValue());
        };
        QCOMPARE(value(), text);
        QCOMPARE(line(fixture)->text(), text);
        QCOMPARE(fixture.undoStack().count(), 1);
        fixture.undo();
        QCOMPARE(line(fixture)->text(), QStringLiteral("before"));
        fixture.redo();
        QCOMPARE(value(), text);
        // Leaving the line as it stands writes the same value.
        line(fixture)->clearFocus();
        EditorFixture::settle();
        QCOMPARE(value(), text);
        QCOMPARE(fixture.undoStack().count(), 2);
    }

    void withoutAFieldTheLineIsEmpty()
    {
        WfSFStringWidget editor;
        editor.load();
        auto* const lineEdit = editor.getFrame()->findChild<QLineEdit*>(QStringLiteral("lineEdit"));
        lineEdit->setText(QStringLiteral("left over"));
        editor.updateFromField();
        QCOMPARE(lineEdit->text(), QString());
        editor.applyChanges();
        editor.unload();
    }
};

QTEST_MAIN(TestLineEditors)
#include "test_line_editors.moc"
