// SPDX-License-Identifier: BSD-3-Clause
#include "KbMemory.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

std::atomic<std::uint64_t> allocations { 0 };
std::atomic<std::uint64_t> bytes { 0 };

/// Gets a block from one of the operators and counts it; if there is none, it ends the process.
///
/// It calls the throwing forms rather than those that take std::nothrow. The throwing ones are what
/// a process with operators of its own replaces; only the standard library's own nothrow forms are
/// sure to call them.
template <class New>
void* counted(std::size_t size, New take)
{
    void* block = nullptr;
    try {
        block = take();
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "Out of memory: %zu bytes were asked for\n", size);
        std::abort();
    }
    allocations.fetch_add(1, std::memory_order_relaxed);
    bytes.fetch_add(size, std::memory_order_relaxed);
    return block;
}

} // namespace

void* safeMalloc(std::size_t size)
{
    return counted(size, [=] { return ::operator new(size); });
}

void* safeRealloc(void* block, std::size_t oldSize, std::size_t newSize)
{
    void* moved = safeMalloc(newSize);
    if (block) {
        std::memcpy(moved, block, std::min(oldSize, newSize));
        safeFree(block);
    }
    return moved;
}

void safeFree(void* block) noexcept { ::operator delete(block); }

void* safeMallocArray(std::size_t size)
{
    return counted(size, [=] { return ::operator new[](size); });
}

void safeFreeArray(void* block) noexcept { ::operator delete[](block); }

void* safeMallocAligned(std::size_t size, std::size_t alignment)
{
    return counted(size, [=] { return ::operator new(size, std::align_val_t(alignment)); });
}

void safeFreeAligned(void* block, std::size_t alignment) noexcept
{
    ::operator delete(block, std::align_val_t(alignment));
}

void* safeMallocArrayAligned(std::size_t size, std::size_t alignment)
{
    return counted(size, [=] { return ::operator new[](size, std::align_val_t(alignment)); });
}

void safeFreeArrayAligned(void* block, std::size_t alignment) noexcept
{
    ::operator delete[](block, std::align_val_t(alignment));
}

KbAllocationCount allocationCount() noexcept
{
    return { allocations.load(std::memory_order_relaxed), bytes.load(std::memory_order_relaxed) };
}
