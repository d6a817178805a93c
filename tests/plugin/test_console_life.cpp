// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleHarness.h"
#include "EditorFixture.h"
#include "KnDebugError.h"
#include "KnGLError.h"
#include "KnReadError.h"
#include "OwnBuffer.h"

#include <atomic>
#include <iostream>
#include <thread>

using namespace Qt::StringLiterals;

class TestConsoleLife : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void everythingIsBackAsItWas_data()
    {
        QTest::addColumn<QByteArray>("setting");
        for (const char* setting : { "", "1", "0" })
            QTest::newRow(setting) << QByteArray(setting);
    }
    void everythingIsBackAsItWas()
    {
        QFETCH(QByteArray, setting);
        qputenv("CORVANE_STDOUT_CAPTURE", setting);
        int data = 0;
        const KnErrorCallback handler = [](const KnError*, void*) {};
        const KnErrorCallback before = KnReadError::getHandlerCallback();
        KnReadError::setHandlerCallback(nullptr, nullptr);
        KnGLError::setHandlerCallback(handler, &data);
        OwnBuffer ownOut(std::cout);
        OwnBuffer ownErr(std::cerr);
        TestShell shell;
        shell.window().show();
        CrvConsole console;
        // l(oad), a(ctivate), h(ide), s(how), d(eactivate), u(nload)
        const QHash<char, void (CrvConsole::*)()> steps = { { 'l', &CrvConsole::load },
            { 'a', &CrvConsole::activate }, { 'h', &CrvConsole::hide }, { 's', &CrvConsole::show },
            { 'd', &CrvConsole::deactivate }, { 'u', &CrvConsole::unload } };
        for (const char step : QByteArray("luladulashsdahdasdululadadadu")) {
            (console.*steps[step])();
            const bool loaded = step != 'u';
            const bool captured = console.isActive() && setting != "0";
            QCOMPARE(QList<bool>({ std::cout.rdbuf() != &ownOut, std::cerr.rdbuf() != &ownErr,
                         KnReadError::getHandlerCallback() != nullptr,
                         KnGLError::getHandlerCallback() != handler,
                         KnGLError::getHandlerData() != &data }),
                QList<bool>({ captured, captured, loaded, loaded, loaded }));
            if (!loaded)
                continue;
            // The kernel's messages arrive from load to unload, whatever the dock does.
            console.clear();
            KnReadError::post("read");
            KnGLError::post(1, "gl");
            QCoreApplication::processEvents();
            QCOMPARE(console.m_consoleOutput->document()->blockCount(), 2);
            QCOMPARE(console.m_consoleOutput->isVisible(), console.isActive() && console.isShown());
        }
        QCOMPARE(shell.calls(),
            QStringList({ u"registerExtension Console 1"_s, u"addDockWidget Console 8"_s,
                u"removeDockWidget Console"_s, u"unregisterExtension Console"_s })
                * 1);
        KnGLError::setHandlerCallback(before, nullptr);
        KnReadError::setHandlerCallback(before, nullptr);
        qunsetenv("CORVANE_STDOUT_CAPTURE");
    }

    void whatStillWaitsAtUnloadShowsInNoView()
    {
        ConsoleHarness harness;
        CrvConsole& console = harness.console;
        std::thread([] {
            KnReadError::post("late");
            std::cout << "late";
        }).join();
        console.deactivate();
        console.unload();
        const auto postLate = [&console] {
            QCoreApplication::postEvent(&console, new CrvConsole::ConsoleEvent(u"late"_s));
        };
        postLate();
        QCoreApplication::processEvents();
        postLate();
        console.load();
        console.activate();
        // Not a message at all.
        QCoreApplication::postEvent(&console, new QEvent(QEvent::User));
        QCoreApplication::processEvents();
        QCOMPARE(harness.text(), QString());
        std::cout << "new";
        console.deactivate();
        console.activate();
        QCOMPARE(harness.text(), u"new"_s);
    }

    /// Threads report and print while the user interface thread does the same, filters, clears,
    /// deactivates and activates: each message comes out once, in the view or on the stream's own
    /// buffer, and those of one thread in the view in their order.
    void everyMessageOfEveryThreadIsCounted()
    {
        constexpr int count = 600;
        const std::string sources[] = { "out", "err", "read", "warning" };
        OwnBuffer ownOut(std::cout);
        OwnBuffer ownErr(std::cerr);
        ConsoleHarness harness;
        CrvConsole& console = harness.console;
        std::atomic<int> printed = 0;
        const auto print = [&](int thread, int i) {
            const std::string number = ' ' + std::to_string(thread) + ' ' + std::to_string(i);
            std::cout << sources[0] + number;
            std::cerr << sources[1] + number;
            KnReadError::post((sources[2] + number).c_str());
            KnDebugError::post(1, (sources[3] + number).c_str());
        };
        std::vector<std::thread> threads;
        for (int thread = 1; thread < 4; ++thread) {
            threads.emplace_back([&, thread] {
                for (int i = 0; i < count; ++i) {
                    print(thread, i);
                    // Not done before this thread has been through all of its steps.
                    while (printed < i)
                        std::this_thread::yield();
                }
            });
        }

        QStringList seen;
        QHash<QString, int> last;
        const auto takeView = [&] {
            for (const QString& line : harness.text().split(u'\n', Qt::SkipEmptyParts)) {
                int& number = *last.tryInsert seen << line;
            }
            ConsoleHarness::click(console.m_clearButton);
        };
    }
};

QTEST_MAIN(TestConsoleLife)
#include "test_console_life.moc"
