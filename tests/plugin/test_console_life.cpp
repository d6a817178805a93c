// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleHarness.h"
#include "EditorFixture.h"
#include "KnDebugError.h"
#include "KnGLError.h"
#include "KnReadError.h"

#include <QMutex>
#include <QTextDocument>

#include <atomic>
#include <iostream>
#include <thread>

namespace {

/// Takes the place of a stream's own buffer and keeps what goes there, a line a block.
class OwnBuffer : public std::streambuf {
public:
    explicit OwnBuffer(std::ostream& stream)
        : m_stream(stream)
        , m_previous(stream.rdbuf(this))
    {
    }
    ~OwnBuffer() override { m_stream.rdbuf(m_previous); }
    QStringList take()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_lines, {});
    }

protected:
    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        const QMutexLocker lock(&m_mutex);
        m_lines << QString::fromUtf8(text, count);
        return count;
    }

private:
    std::ostream& m_stream;
    std::streambuf* m_previous;
    QMutex m_mutex;
    QStringList m_lines;
};

void keepSilent(const KnError*, void*) { }

} // namespace

class TestConsoleLife : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }
    void cleanup() { qunsetenv("CORVANE_STDOUT_CAPTURE"); }

    void everythingIsBackAsItWas_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<bool>("captured");
        QTest::newRow("default") << QByteArray() << true;
        QTest::newRow("on") << QByteArray("1") << true;
        QTest::newRow("off") << QByteArray("0") << false;
    }
    void everythingIsBackAsItWas()
    {
        QFETCH(QByteArray, setting);
        QFETCH(bool, captured);
        qputenv("CORVANE_STDOUT_CAPTURE", setting);
        int data = 0;
        const KnErrorCallback readHandler = KnReadError::getHandlerCallback();
        KnReadError::setHandlerCallback(nullptr, nullptr);
        KnGLError::setHandlerCallback(&keepSilent, &data);
        {
            OwnBuffer ownOut(std::cout);
            OwnBuffer ownErr(std::cerr);
            TestShell shell;
            shell.window().show();
            CrvConsole console;
            // l(oad), a(ctivate), h(ide), s(how), d(eactivate), u(nload)
            const QHash<char, void (CrvConsole::*)()> steps
                = { { 'l', &CrvConsole::load }, { 'a', &CrvConsole::activate },
                      { 'h', &CrvConsole::hide }, { 's', &CrvConsole::show },
                      { 'd', &CrvConsole::deactivate }, { 'u', &CrvConsole::unload } };
            for (const char* order : { "lu", "ladu", "lashsdahdasdu", "lu", "ladadadu" }) {
                shell.calls().clear();
                for (const char* step = order; *step; ++step) {
                    (console.*steps[*step])();
                    const bool loaded = *step != 'u';
                    const bool active = console.isActive();
                    QCOMPARE(std::cout.rdbuf() == &ownOut, !(active && captured));
                    QCOMPARE(std::cerr.rdbuf() == &ownErr, !(active && captured));
                    QCOMPARE(KnReadError::getHandlerCallback() == nullptr, !loaded);
                    QCOMPARE(KnGLError::getHandlerCallback() == &keepSilent, !loaded);
                    QCOMPARE(KnGLError::getHandlerData() == &data, !loaded);
                    std::cout << "print";
                    QCOMPARE(ownOut.take().isEmpty(), active && captured);
                    if (!loaded)
                        continue;
                    // The kernel's messages arrive from load to unload, whatever the dock does.
                    console.clear();
                    KnReadError::post("read");
                    KnGLError::post(1, "gl");
                    QCoreApplication::processEvents();
                    QCOMPARE(console.m_consoleOutput->document()->blockCount(), 2);
                    QCOMPARE(console.m_consoleOutput->isVisible(), active && console.isShown());
                }
                QCOMPARE(shell.calls().join(u'|'),
                    QStringList(QByteArrayView(order).count('a'),
                        QStringLiteral("registerExtension Console 1|addDockWidget Console 8|"
                                       "removeDockWidget Console|unregisterExtension Console"))
                        .join(u'|'));
                QCOMPARE(QApplication::topLevelWidgets().size(), 1);
            }
        }
        KnGLError::setHandlerCallback(readHandler, nullptr);
        KnReadError::setHandlerCallback(readHandler, nullptr);
    }

    void theViewSurvivesDeactivation()
    {
        ConsoleHarness harness;
        std::cout << "kept";
        harness.console().deactivate();
        harness.console().activate();
        QCOMPARE(harness.console().m_consoleOutput->toPlainText(), QStringLiteral("kept"));
    }

    void whatStillWaitsAtUnloadShowsInNoView()
    {
        ConsoleHarness harness;
        CrvConsole& console = harness.console();
        std::thread([] {
            KnReadError::post("late");
            std::cout << "late";
        }).join();
        console.deactivate();
        console.unload();
        const auto postLate = [&console] {
            QCoreApplication::postEvent(
                &console, new CrvConsole::ConsoleEvent(QStringLiteral("late")));
        };
        postLate();
        QCoreApplication::processEvents();
        postLate();
        console.load();
        console.activate();
        // Not a message at all.
        QCoreApplication::postEvent(&console, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        QCOMPARE(console.m_consoleOutput->toPlainText(), QString());
        std::cout << "new";
        QCOMPARE(console.m_consoleOutput->toPlainText(), QStringLiteral("new"));
    }

    /// Threads report and print while the user interface thread does the same, filters, clears,
    /// deactivates and activates: each message comes out once, in the view or on the stream's own
    /// buffer, and those of one thread in the view in their order.
    void everyMessageOfEveryThreadIsCounted()
    {
        constexpr int threadCount = 3;
        constexpr int messageCount = 600;
        OwnBuffer ownOut(std::cout);
        OwnBuffer ownErr(std::cerr);
        ConsoleHarness harness;
        CrvConsole& console = harness.console();
        const auto printAll = [](int thread, int i) {
            const std::string number = std::to_string(thread) + ' ' + std::to_string(i);
            std::cout << "out" + number;
            std::cerr << "err" + number;
            KnReadError::post(("read" + number).c_str());
            KnDebugError::post(1, ("warning" + number).c_str());
        };
        std::atomic<int> running = threadCount;
        std::atomic<int> printed = 0;
        std::vector<std::thread> threads;
        for (int thread = 1; thread <= threadCount; ++thread) {
            threads.emplace_back([&running, &printed, &printAll, thread] {
                for (int i = 0; i < messageCount; ++i) {
                    printAll(thread, i);
                    // Not done before this thread has been through all of its steps.
                    while (printed < i / 2)
                        std::this_thread::yield();
                }
                --running;
            });
        }

        QHash<QString, QList<int>> seen;
        QHash<QString, int> lastInView;
        const auto count = [&seen](const QString& line) {
            const QStringList parts = line.split(u' ');
            seen[parts.value(0)] << parts.value(1).toInt();
        };
        const auto countView = [&] {
            const QString text = console.m_consoleOutput->toPlainText();
            for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
                count(line);
                const QString source = line.section(u' ', 0, 0);
                QVERIFY(lastInView.value(source, -1) < seen[source].last());
                lastInView[source] = seen[source].last();
            }
            harness.click("m_clearButton");
            QCOMPARE(console.m_consoleOutput->toPlainText(), QString());
        };
        do {
            printAll(0, printed++);
            if (printed % 10 == 0)
                QCoreApplication::processEvents();
            if (printed % 50 == 0 && console.isActive())
                harness.click("m_warningsButton");
            if (printed % 40 == 0 && console.isActive())
                countView();
            if (printed % 30 == 0)
                console.isActive() ? console.deactivate() : console.activate();
        } while (running > 0);
        for (std::thread& thread : threads)
            thread.join();
        if (!console.isActive())
            console.activate();
        QCoreApplication::processEvents();
        countView();
        const QStringList ownLines = ownOut.take() + ownErr.take();
        for (const QString& line : ownLines)
            count(line);

        for (auto it = seen.begin(); it != seen.end(); ++it) {
            QList<int>& numbers = it.value();
            std::sort(numbers.begin(), numbers.end());
            QCOMPARE(std::adjacent_find(numbers.begin(), numbers.end()), numbers.end());
            const int expected = it.key().endsWith(u'0') ? printed.load() : messageCount;
            // Those of the class that was filtered by turns are fewer.
            if (it.key().startsWith(QStringLiteral("warning")))
                QVERIFY(numbers.size() <= expected);
            else
                QVERIFY2(numbers.size() == expected, qPrintable(it.key()));
        }
        QCOMPARE(seen.size(), 4 * (threadCount + 1));
        QVERIFY(!ownLines.isEmpty());
    }

    void aFloodLosesNothing()
    {
        constexpr int perThread = 5000;
        ConsoleHarness harness;
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([] {
                for (int i = 0; i < perThread; ++i)
                    KnReadError::post("message");
            });
        }
        for (int i = 0; i < 4 * perThread; ++i)
            std::cout << "message";
        for (std::thread& thread : threads)
            thread.join();
        QCoreApplication::processEvents();
        QCOMPARE(harness.console().m_consoleOutput->document()->blockCount(), 8 * perThread);
    }
};

QTEST_MAIN(TestConsoleLife)
#include "test_console_life.moc"
