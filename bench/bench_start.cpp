// SPDX-License-Identifier: BSD-3-Clause
// How long the program takes from its start to the first painted frame, as a process of its own,
// against one that shows an empty main window (bench_start_bare), in turns.
//
// Usage: bench_start [turns]
#include "CrvInspectorProgram.h"
#include "FirstFrame.h"
#include "Timing.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr const char* asProgram = "--as-program";

/// Runs a process to its end and gives the milliseconds of processor time that it took.
double run(const char* program, const char* argument)
{
    const pid_t child = fork();
    if (child == 0) {
        execl(program, program, argument, nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fprintf(stderr, "%s did not show its window\n", program);
        std::exit(1);
    }
    const auto inMilliseconds = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return inMilliseconds(usage.ru_utime) + inMilliseconds(usage.ru_stime);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], asProgram) == 0) {
        FirstFrame::endProcess();
        argv[1] = nullptr;
        return CrvInspectorProgram::run(1, argv);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // As on the first start, whatever the person at this machine has set.
    const QTemporaryDir home;
    for (const char* variable : { "HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME" })
        qputenv(variable, home.path().toLocal8Bit());

    const std::string bare = std::string(argv[0]) + "_bare";
    std::vector<double> ourTimes;
    std::vector<double> rivalTimes;
    const auto ours = [&] { ourTimes.push_back(run(argv[0], asProgram)); };
    const auto rival = [&] { rivalTimes.push_back(run(bare.c_str(), nullptr)); };
    // Once, so that the files are in memory.
    ours();
    rival();
    const TimePair byClock = compareInTurns(numberArgument(argc, argv, 1, 31), ours, rival);
    printTimes("to the first frame, by the clock", byClock);
    printTimes("processor time", { median(ourTimes), median(rivalTimes) });
    return 0;
}
