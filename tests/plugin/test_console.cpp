// SPDX-License-Identifier: BSD-3-Clause
#include "CrvConsole.h"
#include "EditorFixture.h"
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"
#include "KnReadError.h"
#include "OwnBuffer.h"

#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTimer>

#include <iostream>
#include <thread>

using namespace Qt::StringLiterals;

/// An active console in the window of a dark desktop.
class TestConsole : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setPalette(QPalette(Qt::black));
    }
    void init()
    {
        failOnWarnings();
        m_shell = std::make_unique<TestShell>();
        m_shell->window().show();
        m_console = std::make_unique<CrvConsole>();
        m_console->load();
        m_console->activate();
    }
    void cleanup()
    {
        qunsetenv("CORVANE_STDOUT_CAPTURE");
        // Its host forgot to unload it.
        m_console.reset();
        QVERIFY(std::cout.rdbuf() == &m_ownOut && std::cerr.rdbuf() == &m_ownErr);
        m_shell.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
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
            { [] { KnDebugError::post(0, "text"); }, 'e' },
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
        for (const QPushButton* button : m_shell->window().findChildren<QPushButton*>())
            QVERIFY2(!button->icon().isNull(), qPrintable(button->objectName()));
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
        print("text behind a selection");
        QCOMPARE(transcript(), shown.join(u'\n'));

        const QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path())); // where the dialog opens
        QFile file(u"out.txt"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        saveAs(QString());
        QCOMPARE(file.size(), 5000);
        saveAs(file.fileName());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), plain.join(u'\n').toLatin1());
        QCOMPARE(QDir().entryList(QDir::Files), QStringList(file.fileName()));
    }

    void whatThePrintingOfAMessagePrintsComesBehindIt()
    {
        connect(view(), &QTextEdit::textChanged, this, [this] {
            disconnect(view(), nullptr, this, nullptr);
            std::cerr << "second";
        });
        std::cout << "first";
        QTRY_COMPARE(text(), u"first\nsecond"_s);
    }

    void everythingIsBackAsItWas()
    {
        m_console->deactivate();
        m_console->unload();
        const KnErrorCallback handler = [](const KnError*, void*) {};
        KnReadError::setHandlerCallback(nullptr, nullptr);
        KnGLError::setHandlerCallback(handler, this);
        // l(oad), a(ctivate), h(ide), s(how), d(eactivate), u(nload)
        const QHash<char, void (CrvConsole::*)()> steps = { { 'l', &CrvConsole::load },
            { 'a', &CrvConsole::activate }, { 'h', &CrvConsole::hide }, { 's', &CrvConsole::show },
            { 'd', &CrvConsole::deactivate }, { 'u', &CrvConsole::unload } };
        // The digits set the preference.
        const QByteArray order("luladulashsdahdasdu1lulahsdadu0lahsdadadu");
        for (const char step : order) {
            if (!steps.contains(step)) {
                qputenv("CORVANE_STDOUT_CAPTURE", QByteArray(1, step));
                continue;
            }
            (*m_console.*steps[step])();
            const bool loaded = step != 'u';
            const bool captured = m_console->isActive() && qgetenv("CORVANE_STDOUT_CAPTURE") != "0";
            QCOMPARE(QList<bool>({ std::cout.rdbuf() != &m_ownOut, std::cerr.rdbuf() != &m_ownErr,
                         KnReadError::getHandlerCallback() != nullptr,
                         KnGLError::getHandlerCallback() != handler,
                         KnGLError::getHandlerData() != this }),
                QList<bool>({ captured, captured, loaded, loaded, loaded }));
            if (!loaded)
                continue;
            // The kernel's messages arrive from load to unload, whatever the dock does.
            m_console->clear();
            KnReadError::post("read");
            KnGLError::post(1, "gl");
            QCoreApplication::processEvents();
            QCOMPARE(view()->document()->blockCount(), 2);
            QCOMPARE(view()->isVisible(), m_console->isActive() && m_console->isShown());
        }
        QCOMPARE(m_shell->calls().join(u'|'),
            QStringList(order.count('a') + 1,
                u"registerExtension Console 1|addDockWidget Console 8|"
                "removeDockWidget Console|unregisterExtension Console"_s)
                .join(u'|'));
    }

    void whatStillWaitsAtUnloadShowsInNoView()
    {
        std::thread([] {
            KnReadError::post("late");
            std::cout << "late";
        }).join();
        m_console->deactivate();
        m_console->unload();
        for (int i = 0; i < 2; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::postEvent(m_console.get(), new CrvConsole::ConsoleEvent(u"late"_s));
        }
        m_console->load();
        m_console->activate();
        // Not a message at all.
        QCoreApplication::postEvent(m_console.get(), new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        std::cout << "new";
        m_console->deactivate();
        m_console->activate();
        QCOMPARE(text(), u"new"_s);
    }

    /// Threads report and print while the user interface thread filters, clears, deactivates and
    /// activates: each message comes out once, in the view or on the stream's own buffer, and those
    /// of one thread in the view in their order.
    void everyMessageOfEveryThreadIsCounted()
    {
        constexpr int messageCount = 600;
        m_ownOut.writes.clear();
        m_ownErr.writes.clear();
        std::atomic<int> rounds = 0;
        const auto print = [](const std::string& thread, int i) {
            const std::string message = thread + ' ' + std::to_string(i);
            std::cout << "out " + message;
            std::cerr << "err " + message;
            KnReadError::post(("read " + message).c_str());
            KnDebugError::post(1, ("warning " + message).c_str());
        };
        std::vector<std::thread> threads;
        for (const char* thread : { "A", "B", "C" }) {
            threads.emplace_back([&rounds, print, thread] {
                for (int i = 0; i < messageCount; ++i) {
                    print(thread, i);
                    // Not done before this thread has been through all of its steps.
                    while (rounds < i)
                        std::this_thread::yield();
                }
            });
        }

        QStringList seen;
        QHash<QString, int> next;
        const auto takeView = [&] {
            QCoreApplication::processEvents();
            for (const QString& line : text().split(u'\n', Qt::SkipEmptyParts)) {
                const int number = line.section(u' ', 2).toInt();
                QVERIFY(number >= std::exchange(next[line.section(u' ', 0, 1)], number + 1));
                seen << line;
            }
            click(m_console->m_clearButton);
        };
        for (; rounds < messageCount; ++rounds) {
            print("own", rounds);
            if (rounds % 50 == 0)
                m_console->m_warningsButton->toggle();
            if (rounds % 40 == 0 && m_console->isActive())
                takeView();
            if (rounds % 30 == 0)
                m_console->isActive() ? m_console->deactivate() : m_console->activate();
        }
        for (std::thread& thread : threads)
            thread.join();
        if (!m_console->isActive())
            m_console->activate();
        takeView();

        QVERIFY(!m_ownOut.writes.empty() && !m_ownErr.writes.empty());
        m_ownOut.writes.insert(
            m_ownOut.writes.end(), m_ownErr.writes.begin(), m_ownErr.writes.end());
        for (const std::string& line : m_ownOut.writes)
            seen << QString::fromStdString(line);
        // Some of the class that was filtered by turns are missing.
        seen.removeIf([](const QString& line) { return line.startsWith("warning"_L1); });
        QCOMPARE(seen.removeDuplicates(), 0);
        QCOMPARE(seen.size(), 3 * 4 * messageCount);
    }

private:
    QTextEdit* view() const { return m_console->m_consoleOutput; }
    QString text() const { return view()->toPlainText(); }
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
    static void click(QPushButton* button)
    {
        if (button)
            QTest::mouseClick(button, Qt::LeftButton);
    }
    /// Clicks the button and types a file's name into the dialog; an empty one cancels.
    void saveAs(const QString& fileName)
    {
        QTimer::singleShot(0, this, [fileName] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle() + u'|' + dialog->nameFilters().join(u'|'),
                u"Save the content of the console|Console outputs (*.txt)"_s);
            auto* const line = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
            line->setCompleter(nullptr);
            QTest::keyClicks(line, fileName);
            // The question whether to replace the file is asked from within the key press.
            QTimer::singleShot(
                0, dialog, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Y); });
            QTest::keyClick(dialog, fileName.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        click(m_console->m_saveButton);
    }

    OwnBuffer m_ownOut { std::cout };
    OwnBuffer m_ownErr { std::cerr };
    std::unique_ptr<TestShell> m_shell;
    std::unique_ptr<CrvConsole> m_console;
};

QTEST_MAIN(TestConsole)
#include "test_console.moc"
