// SPDX-License-Identifier: BSD-3-Clause
// What the inspector costs the program that it lives in: a host of 10,000 nodes that writes 1,000
// fields a frame, 60 frames a second. The rival is the same host without any inspector
// (bench_live_bare), run in turns with it. Processor times are those of the whole process.
//
// Usage: bench_live [frames of a measurement] [seconds of nodes that come and go]
#include "CrvInspector.h"
#include "CrvServices.h"
#include "KnFieldSensor.h"
#include "KnSFields.h"
#include "LiveHost.h"
#include "Timing.h"

#include <QApplication>
#include <QTreeView>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr int pollMilliseconds = 12;

/// Microseconds a frame of the host without an inspector.
double bareFrame(const std::string& program, int frames)
{
    double result = 0;
    if (std::FILE* const pipe = popen((program + "_bare " + std::to_string(frames)).c_str(), "r")) {
        if (std::fscanf(pipe, "%lf", &result) != 1)
            result = 0;
        pclose(pipe);
    }
    return result;
}

void print(const char* what, double microseconds, double bare)
{
    const double extra = microseconds - bare;
    std::printf("%-44s %9.1f us a frame, bare %7.1f, more by %8.1f us, %6.2f %% of 1/60 s\n", what,
        microseconds, bare, extra, extra * 1e-4 / LiveHost::frameSeconds);
}

/// A node whose fields all change in each frame.
class Gauge : public KnNode {
    KN_NODE(Gauge)
    static constexpr int count = 10;
    std::array<KnSFFloat, count> values;
};

KN_NODE_SOURCE(Gauge, KnNode)

Gauge::Gauge()
{
    for (int i = 0; i < count; ++i)
        addField(fieldData(), ("value" + std::to_string(i)).c_str(), values[std::size_t(i)]);
}

/// Counts what a sensor of the selected node sees, and how late.
class Refreshes {
public:
    explicit Refreshes(KnField* field)
        : m_sensor(&Refreshes::run, this)
    {
        m_sensor.attach(field);
    }

    /// The field has been written.
    void written()
    {
        if (std::exchange(m_waits, true))
            return;
        m_since = std::chrono::steady_clock::now();
    }
    int count() const { return m_count; }
    /// In milliseconds, from a write to the run that shows it.
    double latest() const { return m_latest; }

private:
    static void run(void* data, KnSensor*)
    {
        auto* const self = static_cast<Refreshes*>(data);
        ++self->m_count;
        self->m_waits = false;
        const std::chrono::duration<double, std::milli> late
            = std::chrono::steady_clock::now() - self->m_since;
        self->m_latest = std::max(self->m_latest, late.count());
    }

    KnFieldSensor m_sensor;
    std::chrono::steady_clock::time_point m_since;
    double m_latest = 0;
    int m_count = 0;
    bool m_waits = false;
};

class Bench {
public:
    Bench(std::string program, int frames, int seconds)
        : m_program(std::move(program))
        , m_frames(frames)
        , m_seconds(seconds)
    {
    }

    void run()
    {
        neverOpened();
        CrvInspector::makeApplication();
        CrvInspector inspector(&m_host.root());
        inspector.show();
        settle();
        nothingSelectedChanges();
        selectedNodeChanges();
        nodesComeAndGo(*inspector.window());
        openedAndClosed(inspector);
    }

private:
    static void poll() { CrvInspector::poll(pollMilliseconds); }
    void settle()
    {
        LiveHost::run(60, [this] { frame(); });
    }
    void frame()
    {
        m_host.step();
        poll();
    }
    double bare() const { return bareFrame(m_program, m_frames); }

    void neverOpened()
    {
        const CrvInspector inspector(&m_host.root());
        double linked = 1e9;
        double without = 1e9;
        // The least of several: what disturbs a run only adds to it.
        for (int i = 0; i < 5; ++i) {
            without = std::min(without, bare());
            linked = std::min(linked, 1e6 * LiveHost::run(m_frames, [this] { m_host.step(); }));
        }
        print("linked, never opened", linked, without);
    }

    void nothingSelectedChanges()
    {
        CrvServices::getInstance()->selectNode(nullptr);
        settle();
        const double without = bare();
        print("open, nothing selected changes", 1e6 * LiveHost::run(m_frames, [this] { frame(); }),
            without);
    }

    void selectedNodeChanges()
    {
        auto* const gauge = new Gauge;
        m_host.root().addChild(gauge);
        CrvServices::getInstance()->selectField(gauge->values.data());
        settle();
        Refreshes refreshes(gauge->values.data());
        const double without = bare();
        float value = 0;
        const double used = LiveHost::run(m_frames, [&] {
            m_host.step();
            value += 0.25F;
            for (KnSFFloat& field : gauge->values)
                field.setValue(value);
            refreshes.written();
            poll();
        });
        print("open on a node whose ten fields change", 1e6 * used, without);
        std::printf("    %.1f refreshes a second, at most %.1f ms late\n",
            refreshes.count() / (m_frames * LiveHost::frameSeconds), refreshes.latest());
        CrvServices::getInstance()->selectNode(nullptr);
    }

    void nodesComeAndGo(const QWidget& window)
    {
        // Group by group, as a person does: what a view opens at once, it marks down to the leaves.
        auto* const tree = window.findChild<QTreeView*>(QStringLiteral("sceneTree"));
        const QModelIndex root = tree->model()->index(0, 0);
        for (int row = 0; row < tree->model()->rowCount(root); ++row)
            tree->expand(tree->model()->index(row, 0, root));
        settle();
        const int frames = static_cast<int>(m_seconds / LiveHost::frameSeconds);
        constexpr int nodes = 167; // 10,000 a second
        KnGroup& group = m_host.group(0);
        const auto turn = [&] {
            for (int i = 0; i < nodes; ++i)
                group.insertChild(new KnTransform, i);
            poll();
            for (int i = 0; i < nodes; ++i)
                group.removeChild(0);
        };
        LiveHost::run(120, turn);
        const long memory = residentMemory();
        const double used = LiveHost::run(frames, turn);
        std::printf("%-44s %9.1f us a frame, %.1f %% of a core, memory %+ld KiB in %d s\n",
            "10,000 nodes come and go a second", 1e6 * used, 100 * used / LiveHost::frameSeconds,
            residentMemory() - memory, m_seconds);
    }

    void openedAndClosed(CrvInspector& inspector)
    {
        const auto openAndClose = [&inspector] {
            inspector.close();
            poll();
            inspector.show();
            poll();
        };
        for (int i = 0; i < 50; ++i)
            openAndClose();
        const long memory = residentMemory();
        for (int i = 0; i < 200; ++i)
            openAndClose();
        inspector.close();
        poll();
        std::printf(
            "%-44s memory %+ld KiB\n", "opened and closed 200 times", residentMemory() - memory);
        const double without = bare();
        print("closed", 1e6 * LiveHost::run(m_frames, [this] { frame(); }), without);
    }

    LiveHost m_host;
    const std::string m_program;
    const int m_frames;
    const int m_seconds;
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Bench(argv[0], argc > 1 ? std::atoi(argv[1]) : 600, argc > 2 ? std::atoi(argv[2]) : 10).run();
}
