// SPDX-License-Identifier: BSD-3-Clause
#include "KnWriteThread.h"

#include "KnDebugError.h"

#include <atomic>
#include <thread>

namespace {

std::atomic<std::thread::id>& writer()
{
    static std::atomic<std::thread::id> id; // that of no thread: anybody may write
    return id;
}

} // namespace

void KnWriteThread::setCurrent() { writer() = std::this_thread::get_id(); }

void KnWriteThread::reset() { writer() = std::thread::id(); }

bool KnWriteThread::isCurrent()
{
    const std::thread::id id = writer();
    return id == std::thread::id() || id == std::this_thread::get_id();
}

void KnWriteThread::check()
{
#ifndef NDEBUG
    if (!isCurrent())
        KnDebugError::post(
            KnDebugError::Error, "The scene was written outside the thread of the user interface");
#endif
}
