// SPDX-License-Identifier: BSD-3-Clause
#include "PlatformFault.h"

#include <csignal>
#include <cstring>

#include <dlfcn.h>
#include <ucontext.h>
#include <unistd.h>

namespace {

struct sigaction before = {};

/// Whether the faulty instruction is the platform's.
bool isOffscreen(const void* context)
{
#if defined(__x86_64__)
    const auto* const state = static_cast<const ucontext_t*>(context);
    Dl_info file = {};
    return dladdr(reinterpret_cast<void*>(state->uc_mcontext.gregs[REG_RIP]), &file) != 0
        && file.dli_fname && std::strstr(file.dli_fname, "libqoffscreen");
#else
    return !context;
#endif
}

void handle(int, siginfo_t*, void* context)
{
    if (isOffscreen(context))
        _exit(PlatformFault::status);
    // Whoever was there before, a sanitizer perhaps, gets it when the instruction is tried again.
    sigaction(SIGSEGV, &before, nullptr);
}

} // namespace

void PlatformFault::ignore()
{
    struct sigaction action = {};
    action.sa_sigaction = handle;
    action.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &action, &before);
}
