// SPDX-License-Identifier: BSD-3-Clause
// What `corvane --run` costs a program that others wrote: its start, its rest, and a look at all of
// its objects. Every run is a process of its own with a fresh home.
//
// Usage: bench_program [turns] [program]
#include "ProbedFigures.h"
#include "ProgramRun.h"
#include "Timing.h"

#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>

#include <unistd.h>

namespace {

constexpr const char* defaultProgram = "designer";
constexpr const char* objectOfDefault = "MDIWindow"; // its main window
constexpr const char* asEmptyProgram = "--as-empty-program";
constexpr int longestIdle = 20; // seconds, one for each turn
constexpr double frame = 1000.0 / 60; // milliseconds

Command inspected(std::vector<std::string> words, const std::string& preload = {},
    const std::vector<std::string>& options = {})
{
    words.insert(words.begin(), "--run");
    words.insert(words.begin(), options.begin(), options.end());
    words.insert(words.begin(), CORVANE_PROGRAM);
    return { std::move(words), preload };
}

/// The same command in all turns.
struct Contender {
    Command command;
    std::vector<RunCost> costs = {};

    void run() { costs.push_back(ProgramRun(command).finish()); }
    double median(double RunCost::*part) const
    {
        std::vector<double> times;
        for (const RunCost& cost : costs)
            times.push_back(cost.*part);
        return ::median(times);
    }
};

/// Up to the first painted frame of the program's own window.
class Start {
public:
    Start(const std::string& program, const std::string& self)
        : m_bare { { { program }, firstFrame } }
        , m_loaded { { { program }, firstFrameAndLibrary } }
        , m_inspected { inspected({ program }, firstFrame) }
        , m_empty { { { self, asEmptyProgram }, firstFrame } }
        , m_emptyLoaded { { { self, asEmptyProgram }, firstFrameAndLibrary } }
        , m_emptyInspected { inspected({ self, asEmptyProgram }, firstFrame) }
    {
    }

    void run()
    {
        for (Contender* const contender :
            { &m_bare, &m_loaded, &m_inspected, &m_empty, &m_emptyLoaded, &m_emptyInspected })
            contender->run();
    }
    /// What was run so far doesn't count: it has brought the files into memory.
    void forget()
    {
        for (Contender* const contender :
            { &m_bare, &m_loaded, &m_inspected, &m_empty, &m_emptyLoaded, &m_emptyInspected })
            contender->costs.clear();
    }

    void print(const char* title, double RunCost::*part) const
    {
        std::printf("to the first frame, %s\n", title);
        const double bare = m_bare.median(part);
        const double empty = m_empty.median(part);
        printTimes("with corvane --run", { m_inspected.median(part), bare });
        printTimes("with its library alone", { m_loaded.median(part), bare });
        printTimes("empty, with corvane --run", { m_emptyInspected.median(part), empty });
        printTimes("empty, with its library alone", { m_emptyLoaded.median(part), empty });
        printBeyond("corvane --run", m_inspected, m_emptyInspected, part);
        printBeyond("its library", m_loaded, m_emptyLoaded, part);
    }

private:
    // Preloaded in the empty program, too, for the cost of preloading it.
    static constexpr const char* firstFrame = CORVANE_FIRST_FRAME_PROBE;
    static constexpr const char* firstFrameAndLibrary
        = CORVANE_FIRST_FRAME_PROBE ":" CORVANE_RUN_LIBRARY;

    /// What a start takes longer than in the program that does nothing but load Qt's libraries;
    /// turn by turn, since the machine may be busier in one than in another.
    void printBeyond(const char* of, const Contender& ours, const Contender& loading,
        double RunCost::*part) const
    {
        std::vector<double> percents;
        for (std::size_t i = 0; i < ours.costs.size(); ++i) {
            const double own = loading.costs[i].*part - m_empty.costs[i].*part;
            const double bare = m_bare.costs[i].*part;
            percents.push_back(100 * (ours.costs[i].*part - own - bare) / bare);
        }
        std::printf("  beyond the loading of %s: %+.1f %%\n", of, median(percents));
    }

    Contender m_bare;
    Contender m_loaded;
    Contender m_inspected;
    Contender m_empty; // a program that ends at once
    Contender m_emptyLoaded;
    Contender m_emptyInspected;
};

void rest(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }

/// Programs that do nothing, side by side, so that what disturbs the machine meets all of them.
void measureIdle(const std::string& program, bool isDefault, int seconds)
{
    using namespace std::chrono_literals;
    struct Idler {
        const char* title;
        bool isInspected;
        std::unique_ptr<ProgramRun> run;
        double time = 0;
        long wakeUps = 0;
    };
    std::vector<Idler> idlers;
    const auto add = [&idlers](const char* title, bool isInspected, const Command& command) {
        idlers.push_back({ title, isInspected, std::make_unique<ProgramRun>(command) });
    };
    add("plain", false, { { program }, {} });
    add("inspected", true, inspected({ program }));
    // A node that has none of the program's properties.
    add("nothing of it on the screen", true,
        inspected({ program }, {}, { "--select", "Objects without a parent" }));
    if (isDefault)
        add("its main window selected", true,
            inspected({ program }, {}, { "--select", objectOfDefault }));

    // The inspector's window is there when it has loaded the plug-in; all is quiet when a second
    // goes by with hardly any work.
    constexpr double quiet = 20; // milliseconds a second
    for (const Idler& idler : idlers) {
        while (idler.isInspected && !idler.run->hasLoaded("ubn_corvane_extender_base"))
            rest(50ms);
        double before = 0;
        do {
            before = idler.run->processorTime();
            rest(1s);
        } while (idler.run->processorTime() - before > quiet);
    }
    for (Idler& idler : idlers) {
        idler.time = idler.run->processorTime();
        idler.wakeUps = idler.run->wakeUps();
    }
    rest(std::chrono::seconds(seconds));
    std::printf("idle, for %d seconds\n", seconds);
    for (const Idler& idler : idlers) {
        std::printf("  %-34s %10.3f ms a second, wakes up %.2f times a second, %.0f ms until "
                    "then\n",
            idler.title, (idler.run->processorTime() - idler.time) / seconds,
            static_cast<double>(idler.run->wakeUps() - idler.wakeUps) / seconds, idler.time);
    }
}

/// The run in the middle.
void printObject(const char* what, std::vector<OpenedObject> runs)
{
    const auto middle = runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2);
    std::nth_element(runs.begin(), middle, runs.end(),
        [](const auto& left, const auto& right) { return left.time < right.time; });
    std::printf("  %s, %s with %d fields: %.3f ms, %.1f %% of a frame\n", what,
        middle->className.c_str(), middle->fields, middle->time, 100 * middle->time / frame);
}

void measureObjects(const std::string& program, int turns)
{
    std::vector<double> bare;
    std::vector<double> first;
    std::vector<double> again;
    std::vector<OpenedObject> largest;
    std::vector<OpenedObject> slowest;
    ProbedFigures figures;
    for (int turn = 0; turn < turns; ++turn) {
        ProgramRun run({ { program }, CORVANE_OBJECT_PROBE });
        run.finish();
        if (!(std::ifstream(run.probedPath()) >> figures)) {
            std::fprintf(stderr, "the probe has found nothing in %s\n", program.c_str());
            std::exit(1);
        }
        bare.push_back(figures.bare);
        first.push_back(figures.first);
        again.push_back(figures.again);
        largest.push_back(figures.largest);
        slowest.push_back(figures.slowest);
    }
    std::printf("all objects: %d with %d fields, rival %d properties\n", figures.objects,
        figures.fields, figures.properties);
    printTimes("opened for the first time", { median(first), median(bare) });
    printTimes("opened again by fresh nodes", { median(again), median(bare) });
    printObject("the one with the most fields", largest);
    printObject("the slowest of all", slowest);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], asEmptyProgram) == 0) {
        // Names Qt's widgets, so that they are loaded as they are for any program of Qt's.
        _exit(qApp ? 1 : 0);
    }
    const QString name = QString::fromLocal8Bit(argc > 2 ? argv[2] : defaultProgram);
    QString file = QStandardPaths::findExecutable(name);
    if (file.isEmpty())
        file = QStandardPaths::findExecutable(
            name, { QLibraryInfo::path(QLibraryInfo::BinariesPath) });
    if (file.isEmpty()) {
        std::printf("%s isn't installed, so there is nothing to measure\n", qPrintable(name));
        return 0;
    }
    const std::string program = QFileInfo(file).canonicalFilePath().toStdString();
    const int turns = numberArgument(argc, argv, 1, 15);

    Start start(program, std::filesystem::canonical("/proc/self/exe"));
    start.run();
    start.forget();
    for (int turn = 0; turn < turns; ++turn)
        start.run();
    start.print("by the clock", &RunCost::clock);
    start.print("processor time", &RunCost::processor);
    measureIdle(program, name == QLatin1String(defaultProgram), std::min(turns, longestIdle));
    measureObjects(program, turns);
    return 0;
}
