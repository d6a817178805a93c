// SPDX-License-Identifier: BSD-3-Clause

// The library's allocations go to the kernel's counted allocator, which takes its memory from the
// process's own operators: what is allocated here may be freed outside, and the other way round.

#include "KbMemory.h"

#include <new>

void* operator new(std::size_t size) { return safeMalloc(size); }

void* operator new[](std::size_t size) { return safeMallocArray(size); }

void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return safeMalloc(size); }

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return safeMallocArray(size);
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return safeMallocAligned(size, static_cast<std::size_t>(alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return safeMallocArrayAligned(size, static_cast<std::size_t>(alignment));
}

void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return safeMallocAligned(size, static_cast<std::size_t>(alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return safeMallocArrayAligned(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* block) noexcept { safeFree(block); }

void operator delete[](void* block) noexcept { safeFreeArray(block); }

void operator delete(void* block, std::size_t) noexcept { safeFree(block); }

void operator delete[](void* block, std::size_t) noexcept { safeFreeArray(block); }

void operator delete(void* block, const std::nothrow_t&) noexcept { safeFree(block); }

void operator delete[](void* block, const std::nothrow_t&) noexcept { safeFreeArray(block); }

void operator delete(void* block, std::align_val_t alignment) noexcept
{
    safeFreeAligned(block, static_cast<std::size_t>(alignment));
}

void operator delete[](void* block, std::align_val_t alignment) noexcept
{
    safeFreeArrayAligned(block, static_cast<std::size_t>(alignment));
}

void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept
{
    safeFreeAligned(block, static_cast<std::size_t>(alignment));
}

void operator delete[](void* block, std::size_t, std::align_val_t alignment) noexcept
{
    safeFreeArrayAligned(block, static_cast<std::size_t>(alignment));
}

void operator delete(void* block, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    safeFreeAligned(block, static_cast<std::size_t>(alignment));
}

void operator delete[](void* block, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    safeFreeArrayAligned(block, static_cast<std::size_t>(alignment));
}
