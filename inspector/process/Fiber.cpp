// SPDX-License-Identifier: BSD-3-Clause
#include "Fiber.h"

#include <sys/mman.h>
#include <unistd.h>

#include <new>
#include <utility>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/asan_interface.h>
#include <sanitizer/common_interface_defs.h>
#include <sanitizer/lsan_interface.h>
#endif

namespace {

// As much as the main thread usually has; what isn't touched takes no memory.
constexpr std::size_t stackSize = 8UL << 20U;

Fiber* entering = nullptr; // what runs for the first time; its entry gets no pointer

std::size_t pageSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

void* mapStack()
{
    void* const memory = mmap(nullptr, stackSize + pageSize(), PROT_READ | PROT_WRITE,
        MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    // Whoever runs off the end is to notice, rather than its neighbour in memory.
    mprotect(memory, pageSize(), PROT_NONE);
    return memory;
}

} // namespace

Fiber::Fiber(std::function<void()> body)
    : m_body(std::move(body))
    , m_memory(mapStack())
{
    getcontext(&m_own);
    m_own.uc_stack.ss_sp = static_cast<char*>(m_memory) + pageSize();
    m_own.uc_stack.ss_size = stackSize;
    makecontext(&m_own, &Fiber::enter, 0);
#ifdef __SANITIZE_ADDRESS__
    // What only this stack points to isn't lost.
    __lsan_register_root_region(m_own.uc_stack.ss_sp, stackSize);
#endif
}

Fiber::~Fiber()
{
#ifdef __SANITIZE_ADDRESS__
    __lsan_unregister_root_region(m_own.uc_stack.ss_sp, stackSize);
    __asan_unpoison_memory_region(m_own.uc_stack.ss_sp, stackSize);
#endif
    munmap(m_memory, stackSize + pageSize());
}

void Fiber::enter()
{
    Fiber* const fiber = entering;
    fiber->arrive(nullptr);
    fiber->m_body();
    fiber->m_finished = true;
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_start_switch_fiber(nullptr, fiber->m_callerStack, fiber->m_callerStackSize);
#endif
    setcontext(&fiber->m_caller);
}

void Fiber::resume()
{
    m_running = true;
    entering = this;
#ifdef __SANITIZE_ADDRESS__
    void* fakeStack = nullptr;
    __sanitizer_start_switch_fiber(&fakeStack, m_own.uc_stack.ss_sp, stackSize);
    swapcontext(&m_caller, &m_own);
    __sanitizer_finish_switch_fiber(fakeStack, nullptr, nullptr);
#else
    swapcontext(&m_caller, &m_own);
#endif
    m_running = false;
}

void Fiber::suspend()
{
#ifdef __SANITIZE_ADDRESS__
    void* fakeStack = nullptr;
    __sanitizer_start_switch_fiber(&fakeStack, m_callerStack, m_callerStackSize);
    swapcontext(&m_own, &m_caller);
    arrive(fakeStack);
#else
    swapcontext(&m_own, &m_caller);
#endif
}

// What the address sanitizer is told on this stack after a switch to it.
void Fiber::arrive([[maybe_unused]] void* fakeStack)
{
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_finish_switch_fiber(fakeStack, &m_callerStack, &m_callerStackSize);
#endif
}
