// SPDX-License-Identifier: BSD-3-Clause
// The cost of a message in the console against a bare QTextEdit that is given the same setTextColor
// and append, as the text grows. Both views stand in the same form and get their messages in turns.
//
// Usage: bench_console [messages]
#include "CrvConsole.h"
#include "CrvShell.h"

#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QTextDocument>
#include <QTextEdit>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <thread>

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

} // namespace

int main(int argc, char** argv)
{
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

    // The same number again from another thread, by posted events.
    double posted = measure([&] {
        std::thread([&] {
            for (int i = 0; i < messages; ++i)
                printStream(i);
        }).join();
    });
    posted += measure([] { QCoreApplication::sendPostedEvents(); });
    std::printf("the next %d from another thread: console %.0f ns\n", messages, posted / messages);
    const int shown = console.m_consoleOutput->document()->blockCount();
    if (shown != 2 * next)
        std::printf("%d messages were lost\n", 2 * next - shown);

    console.deactivate();
    console.unload();
    return shown == 2 * next ? 0 : 1;
}
