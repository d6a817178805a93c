// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleFixture.h"
#include "DialogInput.h"
#include "KnErrorStack.h"
#include "KnMemoryError.h"
#include "LayoutDump.h"

#include <QDir>
#include <QFileDialog>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// What a person sees in the view, filters and saves.
class TestConsoleView : public ConsoleFixture {
    Q_OBJECT
private Q_SLOTS:
    void theForm()
    {
        QFrame frame;
        Ui::m_consoleFrame form;
        form.setupUi(&frame);
        QVERIFY(form.m_consoleOutput->isReadOnly() && form.m_consoleScrollArea->widgetResizable());
        for (const QPushButton* button : frame.findChildren<QPushButton*>())
            QCOMPARE(button->minimumSize(), QSize(64, 0));
        LayoutDump dump;
        const QString built
            = dump.panel(&frame) + u' ' + dump.widget(form.m_consoleScrollArea->widget());
        const QString expected = uR"(
Frame m_consoleFrame frameShape=StyledPanel frameShadow=Raised 843x238 VBox verticalLayout m11 s6
[Widget m_scrollAreaContainer VBox sacLayout m0 s6 [ScrollArea m_consoleScrollArea alignment=
frameShape=StyledPanel frameShadow=Sunken verticalScrollBarPolicy=ScrollBarAsNeeded
horizontalScrollBarPolicy=ScrollBarAsNeeded focusPolicy=StrongFocus Expanding/Expanding]] Widget
m_scrollAreaContents HBox horizontalLayout m9 s6 [TextEdit m_consoleOutput frameShape=StyledPanel
frameShadow=Sunken verticalScrollBarPolicy=ScrollBarAsNeeded
horizontalScrollBarPolicy=ScrollBarAsNeeded focusPolicy=StrongFocus Expanding/Expanding, VBox
m_buttonsLayout m0 s6 [PushButton m_errorsButton icon=14x14 checkable=true checked=true
toolTip=Displays errors, gap 20x40 Minimum/Expanding, PushButton m_warningsButton icon=14x14
checkable=true checked=true toolTip=Displays warnings, gap 20x40 Minimum/Expanding, PushButton
m_infosButton icon=14x14 checkable=true checked=true toolTip=Displays informations, gap 20x40
Minimum/Expanding, PushButton m_clearButton icon=16x16 toolTip=Clears the console, PushButton
m_saveButton icon=16x16 toolTip=Saves the content of the console]])"_s;
        QCOMPARE(built.split(u", "_s), expected.simplified().split(u", "_s));
    }

    void sourcesColoursAndFilters()
    {
        const struct {
            void (*report)();
            char output; // e(rror), w(arning), i(nfo)
        } sources[] = {
            { [] { std::cerr << "text"; }, 'e' },
            { [] { std::cout << "text"; }, 'i' },
            { [] { std::cout.put('t').put('e').put('x').put('t').put('\n'); }, 'i' },
            { [] { std::thread([] { std::cout << "text"; }).join(); }, 'i' },
            { [] { KnDebugError::post(-1, "text"); }, 'e' },
            { [] { KnDebugError::post(1, "text"); }, 'w' },
            { [] { KnDebugError::post(2, "text"); }, 'i' },
            { [] { KnDebugError::post(3, "text"); }, 'e' },
            { [] { KnError::post("text"); }, 'e' },
            { [] { KnErrorStack::post({ "text" }); }, 'e' },
            { [] { KnMemoryError::post("text"); }, 'e' },
            { [] { std::thread([] { KnReadError::post("text"); }).join(); }, 'e' },
        };
        const QHash<char, QPair<QPushButton*, QString>> classes
            = { { 'e', { m_console->m_errorsButton, u"#800000:text"_s } },
                  { 'w', { m_console->m_warningsButton, u"#808000:text"_s } },
                  { 'i', { m_console->m_infosButton, u"#008000:text"_s } } };
        for (const char off : { ' ', 'e', 'w', 'i' }) {
            QStringList expected;
            click(classes.value(off).first);
            for (const auto& [report, output] : sources) {
                report();
                QCoreApplication::processEvents();
                if (output != off)
                    expected << classes[output].second;
            }
            click(classes.value(off).first);
            QCOMPARE(transcript(), expected.join(u'\n'));
            click(m_console->m_clearButton);
            QCOMPARE(text(), QString());
        }
        QCOMPARE(view()->palette().color(QPalette::Base), QColor(Qt::white));
    }

    void textIsShownAndSavedAsPrinted()
    {
        QStringList shown;
        QStringList plain;
        const auto print = [&shown, &plain](const char* printed) {
            std::cerr << "error";
            std::cout << printed;
            plain << u"error"_s << QString::fromUtf8(printed);
            shown << u"#800000:error"_s;
            for (const QString& line : plain.last().split(u'\n'))
                shown << (line.isEmpty() ? line : u"#008000:"_s + line);
        };
        // The last two are the halves of one character.
        for (const char* printed : { "<b>bold</b>", "a < b && c > d", "&lt;p&gt;",
                 "<!doctype html>", "<?xml?><p/>", "two\nlines", "<p>\n  <i>indented</i>\n",
                 "  blanks \t and\ttabs  ", "\xC3\xBC \xE2\x88\x80", "\xC3", "\xBC" })
            print(printed);
        QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
        const QString selected = view()->textCursor().selectedText();
        for (const char* printed : { "text behind a selection", "<i>mark-up</i> behind it" })
            print(printed);
        std::thread([&print] { print("another thread's"); }).join();
        QTRY_COMPARE(transcript(), shown.join(u'\n'));
        QCOMPARE(view()->textCursor().selectedText(), selected);

        const QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path())); // where the dialog opens
        QFile file(u"out.txt"_s);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(5000));
        file.close();
        QVERIFY(saveAs(QString()));
        QCOMPARE(file.size(), 5000);
        QVERIFY(saveAs(file.fileName()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), plain.join(u'\n').toLatin1());
        QCOMPARE(QDir().entryList(QDir::Files), QStringList(file.fileName()));
    }

    void newTextLeavesAReaderWhereTheyAre()
    {
        std::cout << QByteArray("line\n").repeated(500).constData();
        QScrollBar& bar = *view()->verticalScrollBar();
        QVERIFY(bar.maximum() > 10);
        QCOMPARE(bar.value(), bar.maximum());
        bar.setValue(10);
        std::cout << "more";
        QCOMPARE(bar.value(), 10);
    }

    void aWordThatFillsManyLinesIsShownAtOnceAndWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("long text of short words") << u"eight is "_s.repeated(30000);
        QTest::newRow("lines") << u"line\n"_s.repeated(5000);
        QTest::newRow("a long word") << u"some text "_s + QString(300000, u'x') + u" and more"_s;
        QTest::newRow("blanks that don't break") << u"1\u00a0"_s.repeated(150000);
    }
    void aWordThatFillsManyLinesIsShownAtOnceAndWhole()
    {
        QFETCH(QString, text);
        const bool anywhere = text[1] == u'\u00a0' || text.contains(u'x');
        const std::string printed = text.toStdString();
        std::cout << "before";
        std::thread([&printed] { std::cout << printed << "behind"; }).join();
        std::cerr << printed;
        const auto mode = [this] { return view()->wordWrapMode(); };
        QTRY_VERIFY(view()->toPlainText().endsWith(u"behind"));
        // A view's plain text has ordinary blanks.
        text.replace(u'\u00a0', u' ');
        QVERIFY(view()->toPlainText() == u"before\n"_s + text + u'\n' + text + u"\nbehind"_s);
        QCOMPARE(mode() == QTextOption::WrapAnywhere, anywhere);
        click(m_console->m_clearButton);
        QCOMPARE(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    }

private:
    /// A line for each paragraph: the pieces of one colour behind its name.
    QString transcript() const
    {
        QStringList lines;
        for (QTextBlock block = view()->document()->begin(); block.isValid();
             block = block.next()) {
            lines << QString();
            for (auto it = block.begin(); !it.atEnd(); ++it)
                lines.last() += it.fragment().charFormat().foreground().color().name() + u':'
                    + it.fragment().text();
        }
        return lines.join(u'\n');
    }
    /// Clicks the button and types a file's name into the dialog; an empty one cancels.
    bool saveAs(const QString& fileName)
    {
        const auto act = [fileName](QFileDialog* dialog) {
            QCOMPARE(dialog->windowTitle() + u'|' + dialog->nameFilters().join(u'|'),
                u"Save the content of the console|Console outputs (*.txt)"_s);
            auto* const line = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
            line->setCompleter(nullptr);
            QTest::keyClicks(line, fileName);
            // The question whether to replace the file is asked from within the key press.
            QTimer::singleShot(
                0, dialog, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Y); });
            QTest::keyClick(dialog, fileName.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        };
        return inDialogOpenedBy<QFileDialog>([this] { click(m_console->m_saveButton); }, act);
    }
};

QTEST_MAIN(TestConsoleView)
#include "test_console_view.moc"
