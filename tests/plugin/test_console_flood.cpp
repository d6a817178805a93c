// SPDX-License-Identifier: BSD-3-Clause
#include "ConsoleFixture.h"

#include <QTimer>

using namespace Qt::StringLiterals;

/// Messages that come faster than they can be shown, from several threads and from the view itself.
class TestConsoleFlood : public ConsoleFixture {
    Q_OBJECT
private Q_SLOTS:
    void whatThePrintingOfAMessagePrintsComesBehindIt()
    {
        // Inside of the change, where the document takes no other.
        QObject once;
        connect(view()->document(), &QTextDocument::contentsChange, &once, [this, &once] {
            disconnect(view()->document(), nullptr, &once, nullptr);
            const QString before = text();
            std::cerr << "second";
            QCOMPARE(text(), before);
        });
        std::cout << "first";
        std::cout << "third";
        QCOMPARE(text(), u"first\nsecond\nthird"_s);
        connect(view(), &QTextEdit::textChanged, &once, [this, &once] {
            disconnect(view(), nullptr, &once, nullptr);
            std::cerr << "fifth";
        });
        std::cout << "fourth";
        QTRY_VERIFY(text().endsWith(u"\nfourth\nfifth"));
    }

    /// Threads print and report so much that the view is far behind: the user interface may wait
    /// for them all the same, takes input between two slices, and shows each message in its order.
    void aFloodLeavesRoomForInput()
    {
        constexpr int messageCount = 5000;
        std::vector<std::jthread> threads;
        for (const char thread : { 'A', 'B' }) {
            threads.emplace_back([thread] {
                for (int i = 0; i < messageCount; ++i) {
                    const std::string message = thread + std::to_string(i);
                    if (i % 4 == 0)
                        std::cout << message;
                    else
                        KnReadError::post(message.c_str());
                }
            });
        }
        threads.clear();
        QList<int> shown;
        QTimer input;
        connect(&input, &QTimer::timeout, this, [this, &shown] {
            if (shown.isEmpty())
                KnReadError::post("last");
            shown << view()->document()->blockCount();
        });
        input.start();
        QTRY_COMPARE(view()->document()->blockCount(), 2 * messageCount + 1);
        QVERIFY2(
            shown.size() > 2 && shown[1] < messageCount, qPrintable(QString::number(shown[0])));
        QStringList lines = text().split(u'\n');
        QCOMPARE(lines.takeLast(), u"last"_s);
        QHash<QChar, int> next;
        for (const QString& line : lines)
            QCOMPARE(line.mid(1).toInt(), next[line[0]]++);

        // Somebody has seen enough.
        for (int i = 0; i < messageCount; ++i)
            KnReadError::post("error");
        click(m_console->m_clearButton);
        connect(&input, &QTimer::timeout, m_console->m_errorsButton, [this, &input] {
            if (view()->document()->blockCount() > 1) {
                input.stop();
                click(m_console->m_errorsButton);
                std::thread([] { std::cout << "info"; }).join();
            }
        });
        QTRY_VERIFY(text().endsWith(u"info"_s));
        QVERIFY(view()->document()->blockCount() < messageCount);
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
        std::vector<std::jthread> threads;
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
        threads.clear();
        if (!m_console->isActive())
            m_console->activate();
        QCoreApplication::postEvent(m_console.get(), new CrvConsole::ConsoleEvent(u"end"_s));
        QTRY_VERIFY(text().endsWith(u"end"));
        takeView();
        QCOMPARE(seen.takeLast(), u"end"_s);

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
};

QTEST_MAIN(TestConsoleFlood)
#include "test_console_flood.moc"
