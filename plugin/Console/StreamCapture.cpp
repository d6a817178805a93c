// SPDX-License-Identifier: BSD-3-Clause
#include "StreamCapture.h"

#include <memory>

namespace {

using Redirector = StdStreamRedirector<char>;

struct Entry {
    std::unique_ptr<Redirector> redirector;
    bool inUse;
};

std::vector<Entry>& entries()
{
    static std::vector<Entry> all;
    return all;
}

} // namespace

Redirector* captureStream(std::ostream& stream, Redirector::Callback callback, void* userData)
{
    for (Entry& entry : entries()) {
        if (entry.inUse || !entry.redirector->serves(stream))
            continue;
        entry.inUse = true;
        entry.redirector->capture(callback, userData);
        return entry.redirector.get();
    }
    entries().push_back({ std::make_unique<Redirector>(stream, callback, userData), true });
    return entries().back().redirector.get();
}

void releaseStream(Redirector* redirector)
{
    for (Entry& entry : entries()) {
        if (entry.redirector.get() != redirector)
            continue;
        redirector->release();
        entry.inUse = false;
    }
}
