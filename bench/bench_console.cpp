// SPDX-License-Identifier: BSD-3-Clause
// The cost of a message in the console against a bare QTextEdit that is given the same setTextColor
// and append, as the text grows; then a flood of lines from other threads, and lines of ten million
// characters. Both views stand in the same form and get their messages in turns.
//
// Usage: bench_console [messages] [lines of the flood]
#include "CrvConsole.h"
#include "CrvShell.h"
#include "KnReadError.h"

#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QHash>
#include <QMainWindow>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <thread>
#include <vector>

namespace {

class BenchShell : public CrvShell {
public:
    void addDockWidget(QDockWidget* dock, int area) override
    {
        window.addDockWidget(static_cast<Qt::DockWidgetArea>(area), dock);
    }
    void removeDockWidget(QDockWidget* dock) override { window.removeDockWidget(dock); }
    void registerExtension(CrvExtension*, int) override { }
    void unregisterExtension(CrvExtension*) override { }
    void addToolBar(QToolBar*, int) override { }
    void removeToolBar(QToolBar*) override { }

    QMainWindow window;
};

/// The console's form around a view of its own, in a second window.
struct BareView {
    BareView()
    {
        auto* const dock = new QDockWidget(&window);
        auto* const frame = new QFrame(dock);
        form.setupUi(frame);
        dock->setWidget(frame);
        window.addDockWidget(Qt::BottomDockWidgetArea, dock);
    }
    QMainWindow window;
    Ui::m_consoleFrame form;
};

constexpr int chunk = 100;

/// Nanoseconds.
template <class Work>
double measure(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed());
}

QString message(int i) { return QStringLiteral("message %1 of the program").arg(i); }

constexpr int floodThreads = 16;

/// Runs the event loop until the view holds that many lines, and prints what it took and for how
/// long at most a timer, and so input, had to wait.
void runUntil(const QTextEdit& view, int lines, const char* what)
{
    QElapsedTimer total;
    QElapsedTimer turn;
    qint64 longest = 0;
    QEventLoop loop;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &loop, [&] {
        longest = std::max(longest, turn.restart());
        if (view.document()->blockCount() >= lines)
            loop.quit();
    });
    total.start();
    turn.start();
    tick.start(1);
    loop.exec();
    std::printf("%-28s %8.2f s, longest stall %6lld ms\n", what,
        static_cast<double>(total.elapsed()) / 1000, static_cast<long long>(longest));
}

/// Lets the threads print their lines and shows them; returns how many are lost or out of order.
template <class Print>
int flood(const QTextEdit& view, int lines, const char* what, Print print)
{
    std::vector<std::thread> threads;
    threads.reserve(floodThreads);
    for (int thread = 0; thread < floodThreads; ++thread) {
        threads.emplace_back([=] {
            for (int i = 0; i < lines / floodThreads; ++i)
                print(QStringLiteral("%1 %2 of the flood").arg(thread).arg(i));
        });
    }
    runUntil(view, lines, what);
    for (std::thread& thread : threads)
        thread.join();
    QHash<int, int> next;
    int wrong = 0;
    for (QTextBlock line = view.document()->begin(); line.isValid(); line = line.next()) {
        const QStringList words = line.text().split(QLatin1Char(' '));
        wrong += words.value(1).toInt() == next[words[0].toInt()]++ ? 0 : 1;
    }
    return wrong + lines - view.document()->blockCount();
}

void showLongLines(QTextEdit& view)
{
    constexpr int length = 10000000;
    QByteArray dense(length, 'x');
    QByteArray words = dense;
    for (int i = 7; i < length; i += 8)
        words[i] = ' ';
    const struct {
        const char* what;
        const QByteArray& text;
    } lines[] = { { "10 MB with blanks", words }, { "10 MB without a blank", dense },
        { "another one", dense }, { "a short line behind it", "short" } };
    // A console is rarely empty when such a line comes.
    constexpr int linesBefore = 1000;
    for (int i = 0; i < linesBefore; ++i)
        std::cout << "line";
    for (const auto& [what, text] : lines) {
        const std::clock_t start = std::clock();
        QElapsedTimer timer;
        timer.start();
        std::cout << text.constData();
        const double processor = double(std::clock() - start) / CLOCKS_PER_SEC;
        const qint64 shown = timer.restart();
        view.viewport()->repaint();
        std::printf("%-28s %8.2f s (processor %5.2f s), and %lld ms to draw it\n", what,
            static_cast<double>(shown) / 1000, processor, static_cast<long long>(timer.elapsed()));
    }
    const qsizetype all = linesBefore * 5 + 3 * qsizetype(length) + 3 + 5;
    if (view.toPlainText().size() != all)
        std::printf("the long lines are not whole\n");
}

} // namespace

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QApplication application(argc, argv);
    const int messages = argc > 1 ? std::atoi(argv[1]) : 100000;
    BenchShell shell;
    BareView bare;
    CrvConsole console;
    console.load();
    console.activate();
    for (QMainWindow* window : { &shell.window, &bare.window }) {
        window->resize(900, 600);
        window->show();
    }
    QCoreApplication::processEvents();

    const auto printBare = [&](int i) {
        bare.form.m_consoleOutput->setTextColor(Qt::darkGreen);
        bare.form.m_consoleOutput->append(message(i));
    };
    const auto printStream = [&](int i) { std::cout << message(i).toStdString(); };
    std::printf("%10s %12s %12s %7s\n", "messages", "bare ns", "console ns", "ratio");
    double bareTotal = 0;
    double consoleTotal = 0;
    int next = 0;
    for (int part = 0; part < 10; ++part) {
        double bareTime = 0;
        double consoleTime = 0;
        const int end = messages / 10 * (part + 1);
        while (next < end) {
            const int first = next;
            next += chunk;
            const auto all = [first](auto&& print) {
                for (int i = first; i < first + chunk; ++i)
                    print(i);
            };
            bareTime += measure([&] { all(printBare); });
            consoleTime += measure([&] { all(printStream); });
        }
        const double count = messages / 10.0;
        std::printf("%10d %12.0f %12.0f %7.3f\n", next, bareTime / count, consoleTime / count,
            consoleTime / bareTime);
        bareTotal += bareTime;
        consoleTotal += consoleTime;
    }
    std::printf("stream text, ratio over all: %.3f\n", consoleTotal / bareTotal);

    const int shown = console.m_consoleOutput->document()->blockCount();

    const int lines = (argc > 2 ? std::atoi(argv[2]) : 1000000) / floodThreads * floodThreads;
    std::printf("%d lines from %d threads\n", lines, floodThreads);
    console.clear();
    bare.form.m_consoleOutput->clear();
    const int wrong = flood(*console.m_consoleOutput, lines, "  console",
        [](const QString& line) { std::cout << line.toStdString(); });
    const int wrongErrors = [&] {
        console.clear();
        return flood(*console.m_consoleOutput, lines, "  console, kernel errors",
            [](const QString& line) { KnReadError::post(line.toUtf8().constData()); });
    }();
    console.clear();
    QTextEdit* const view = bare.form.m_consoleOutput;
    // Only a tenth, which stalls long enough.
    flood(*view, lines / 10 / floodThreads * floodThreads, "  bare view, a tenth of them",
        [view](const QString& line) {
            QMetaObject::invokeMethod(
                view,
                [view, line] {
                    view->setTextColor(Qt::darkGreen);
                    view->append(line);
                },
                Qt::QueuedConnection);
        });
    bare.form.m_consoleOutput->clear();
    showLongLines(*console.m_consoleOutput);

    console.deactivate();
    console.unload();
    if (shown != next || wrong != 0 || wrongErrors != 0) {
        std::printf("lost or out of order: %d, %d and %d\n", next - shown, wrong, wrongErrors);
        return 1;
    }
    return 0;
}
