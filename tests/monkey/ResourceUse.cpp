// SPDX-License-Identifier: BSD-3-Clause
#include "ResourceUse.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QWidget>

#include <malloc.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double kilobyte = 1024.0;

double heap()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / kilobyte;
}

double residentMemory()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * double(sysconf(_SC_PAGESIZE)) / kilobyte;
}

double openFiles()
{
    const QDir::Filters all = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
    return double(QDir(u"/proc/self/fd"_s).entryList(all).size());
}

/// All that somebody owns who can be found: windows, and what belongs to the application.
QSet<QObject*> objects()
{
    QSet<QObject*> found;
    QObjectList owners { qApp };
    for (QWidget* widget : QApplication::allWidgets())
        owners += widget;
    for (QObject* owner : std::as_const(owners)) {
        found += owner;
        for (QObject* object : owner->findChildren<QObject*>())
            found += object;
    }
    return found;
}

} // namespace

const std::array<ResourceUse::Kind, ResourceUse::count>& ResourceUse::kinds()
{
    static const std::array<Kind, count> kinds {
        Kind { "heap", "kB", 1024.0 },
        Kind { "resident", "kB", 8192.0 },
        Kind { "files", "", 1.0 },
        Kind { "timers", "", 1.0 },
        Kind { "widgets", "", 5.0 },
        Kind { "objects", "", 20.0 },
    };
    return kinds;
}

ResourceUse ResourceUse::now()
{
    malloc_trim(0);
    const QSet<QObject*> found = objects();
    qsizetype timers = 0;
    for (QObject* object : found)
        timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
    ResourceUse use;
    use.m_values = { heap(), residentMemory(), openFiles(), double(timers),
        double(QApplication::allWidgets().size()), double(found.size()) };
    return use;
}

QString ResourceUse::text() const
{
    QStringList parts;
    for (std::size_t i = 0; i < count; ++i)
        parts += u"%1 %2%3"_s.arg(QLatin1String(kinds()[i].name))
                     .arg(m_values[i], 0, 'f', 0)
                     .arg(QLatin1String(kinds()[i].unit));
    return parts.join(u", "_s);
}

double ResourceUse::growth(const std::vector<ResourceUse>& samples, std::size_t kind)
{
    if (samples.size() < 2)
        return 0.0;
    const double last = double(samples.size() - 1);
    double sum = 0.0;
    for (const ResourceUse& sample : samples)
        sum += sample.m_values[kind];
    const double mean = sum / double(samples.size());
    double along = 0.0;
    double spread = 0.0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double x = double(i) - last / 2.0;
        along += x * (samples[i].m_values[kind] - mean);
        spread += x * x;
    }
    return along / spread * last;
}
