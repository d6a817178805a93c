// SPDX-License-Identifier: BSD-3-Clause
#include "KnError.h"

#include <cstdio>
#include <mutex>
#include <utility>

namespace {

constexpr int maxNesting = 16; // how deep errors posted by callbacks may nest

/// What all handlers share. One lock serves them all and is held while a callback runs. That is how
/// a change of handler can promise that the former callback has finished; with a lock for each
/// class, two callbacks that post errors of each other's class would deadlock.
struct Shared {
    std::recursive_mutex mutex;
    int nesting = 0;
};

/// Outlives all static objects, whose destructors may report errors.
Shared& shared()
{
    static Shared& instance = *new Shared;
    return instance;
}

} // namespace

KnErrorCallback KnErrorHandler::getCallback() const
{
    const std::lock_guard lock(shared().mutex);
    return m_callback;
}

void* KnErrorHandler::getData() const
{
    const std::lock_guard lock(shared().mutex);
    return m_data;
}

void KnErrorHandler::set(KnErrorCallback callback, void* data)
{
    const std::lock_guard lock(shared().mutex);
    m_callback = callback;
    m_data = data;
}

void KnErrorHandler::call(const KnError& error)
{
    Shared& state = shared();
    const std::lock_guard lock(state.mutex);
    // Taken out first: the callback may change the handler.
    const KnErrorCallback callback = m_callback;
    void* const data = m_data;
    if (!callback)
        return;
    if (state.nesting >= maxNesting) {
        writeToStandardError(&error, nullptr);
        return;
    }
    ++state.nesting;
    callback(&error, data);
    --state.nesting;
}

void KnErrorHandler::writeToStandardError(const KnError* error, void*)
{
    std::string line = error->getObjectType().getName().getString().toUtf8();
    line += ": ";
    for (const char c : error->getDebugString().toUtf8())
        c == '\n' ? line += " | " : line += c;
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

KN_ERROR_HANDLER_SOURCE(KnError)

KnType KnError::getClassTypeId()
{
    static const KnType type = KnType::create("Error", KnType());
    return type;
}

KnType KnError::getObjectType() const { return getClassTypeId(); }

KnError::KnError(KbString text)
    : m_text(std::move(text))
{
}

void KnError::post(const KbString& text) { handler().call(KnError(text)); }
