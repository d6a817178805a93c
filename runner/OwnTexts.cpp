// SPDX-License-Identifier: BSD-3-Clause
#include "OwnTexts.h"

#include "OwnFiles.h"

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <vector>

#include <dlfcn.h>
#include <link.h>

namespace {

struct Range {
    std::uintptr_t begin;
    std::uintptr_t end;
};

using Ranges = std::vector<Range>;

// Any thread may ask, also while others are found; the former ones are few and small, and stay.
std::atomic<const Ranges*> ownRanges = nullptr;

int addFile(dl_phdr_info* file, std::size_t, void* ranges)
{
    if (!isOwnFile(file->dlpi_name))
        return 0;
    for (int i = 0; i < file->dlpi_phnum; ++i) {
        const auto& segment = file->dlpi_phdr[i];
        if (segment.p_type == PT_LOAD) {
            const std::uintptr_t begin = file->dlpi_addr + segment.p_vaddr;
            static_cast<Ranges*>(ranges)->push_back({ begin, begin + segment.p_memsz });
        }
    }
    return 0;
}

bool isOwn(const void* address)
{
    const auto place = reinterpret_cast<std::uintptr_t>(address);
    const Ranges* const ranges = ownRanges;
    return ranges && std::any_of(ranges->begin(), ranges->end(), [place](const Range& range) {
        return place >= range.begin && place < range.end;
    });
}

QString ownText(const char* text, int number)
{
    QString own = QString::fromUtf8(text);
    if (number >= 0)
        own.replace(QLatin1String("%n"), QString::number(number));
    return own;
}

} // namespace

void OwnTexts::findFiles()
{
    auto* const ranges = new Ranges;
    dl_iterate_phdr(&addFile, ranges);
    ownRanges = ranges;
}

// These two stand in for Qt's, with its names.

QString QMetaObject::tr(const char* s, const char* c, int n) const
{
    using Translate = QString (*)(const QMetaObject*, const char*, const char*, int);
    static const auto original
        = reinterpret_cast<Translate>(dlsym(RTLD_NEXT, "_ZNK11QMetaObject2trEPKcS1_i"));
    return isOwn(this) ? ownText(s, n) : original(this, s, c, n);
}

QString QCoreApplication::translate(
    const char* context, const char* key, const char* disambiguation, int n)
{
    using Translate = QString (*)(const char*, const char*, const char*, int);
    static const auto original = reinterpret_cast<Translate>(
        dlsym(RTLD_NEXT, "_ZN16QCoreApplication9translateEPKcS1_S1_i"));
    return isOwn(context) ? ownText(key, n) : original(context, key, disambiguation, n);
}
