// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRun.h"

#include "ProbedFigures.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned patience = 300; // seconds

/// Milliseconds since any time.
double now()
{
    return std::chrono::duration<double, std::milli>(
        std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

double inMilliseconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

std::string folderOf(pid_t process) { return "/proc/" + std::to_string(process); }

[[noreturn]] void fail(const std::string& name, const char* what)
{
    std::fprintf(stderr, "%s %s\n", name.c_str(), what);
    std::exit(1);
}

} // namespace

ProgramRun::ProgramRun(const Command& command)
    : m_name(command.words.front())
    , m_start(now())
    , m_process(fork())
{
    if (m_process == 0)
        become(command);
    if (m_process < 0)
        fail(m_name, "could not be started");
}

ProgramRun::~ProgramRun()
{
    if (m_process < 0)
        return;
    kill(m_process, SIGKILL);
    waitpid(m_process, nullptr, 0);
}

void ProgramRun::become(const Command& command) const
{
    const std::string home = m_home.path().toStdString();
    for (const char* variable :
        { "HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR" })
        setenv(variable, home.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv(probedFile, probedPath().c_str(), 1);
    if (!command.preload.empty())
        setenv("LD_PRELOAD", command.preload.c_str(), 1);
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO })
        dup2(nowhere, stream);
    // Both hold for whatever the process becomes.
    alarm(patience);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::vector<std::string> texts = command.words;
    std::vector<char*> words;
    words.reserve(texts.size() + 1);
    for (std::string& text : texts)
        words.push_back(text.data());
    words.push_back(nullptr);
    execv(words.front(), words.data());
    _exit(127);
}

RunCost ProgramRun::finish()
{
    int status = 0;
    rusage usage {};
    const bool ended = wait4(m_process, &status, 0, &usage) == m_process;
    const double clock = now() - m_start;
    m_process = -1;
    if (!ended || status != 0)
        fail(m_name, "did not end as it should");
    return { clock, inMilliseconds(usage.ru_utime) + inMilliseconds(usage.ru_stime) };
}

/// Whoever looks at a process that has ended would take it for one at rest.
void ProgramRun::expectLife() const
{
    siginfo_t info {};
    const int options = WEXITED | WNOHANG | WNOWAIT;
    if (waitid(P_PID, static_cast<id_t>(m_process), &info, options) != 0 || info.si_pid != 0)
        fail(m_name, "has ended too early");
}

double ProgramRun::processorTime() const
{
    expectLife();
    clockid_t clock {};
    timespec time {};
    if (clock_getcpuclockid(m_process, &clock) != 0 || clock_gettime(clock, &time) != 0)
        fail(m_name, "has no clock");
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

long ProgramRun::wakeUps() const
{
    long sum = 0;
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(m_process) + "/task")) {
        std::ifstream status(thread.path() / "status");
        std::string word;
        long count = 0;
        while (status >> word && word != "voluntary_ctxt_switches:") { }
        if (status >> count)
            sum += count;
    }
    return sum;
}

bool ProgramRun::hasLoaded(const std::string& name) const
{
    expectLife();
    std::ifstream maps(folderOf(m_process) + "/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find(name) != std::string::npos)
            return true;
    }
    return false;
}

std::string ProgramRun::probedPath() const { return m_home.path().toStdString() + "/probed"; }
