// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstddef>
#include <cstdint>

/// Calls and bytes that went through the counted allocator since the process started.
struct KbAllocationCount {
    std::uint64_t calls = 0; ///< successful allocations
    std::uint64_t bytes = 0; ///< sum of the requested sizes
};

/// The counted allocator. It hands out what the process's own `operator new` gives and returns
/// it to the matching `operator delete`, with no header and no pool, so that a block may be
/// allocated through here and freed by code that knows only the standard operators, and the
/// other way round. When memory is out, every function writes a line to standard error and
/// aborts. All of them may be called from any thread.
void* safeMalloc(std::size_t size);
/// Moves a block to a new size. `oldSize` is the size that the block was requested with, since
/// the blocks carry no header; a null block is allocated anew.
void* safeRealloc(void* block, std::size_t oldSize, std::size_t newSize);
/// Null is allowed.
void safeFree(void* block) noexcept;

/// The array forms pair with `operator new[]` and `operator delete[]`.
void* safeMallocArray(std::size_t size);
void safeFreeArray(void* block) noexcept;

/// The over-aligned forms; `alignment` is a power of two in bytes and must be the same again
/// when the block is freed.
void* safeMallocAligned(std::size_t size, std::size_t alignment);
void safeFreeAligned(void* block, std::size_t alignment) noexcept;
void* safeMallocArrayAligned(std::size_t size, std::size_t alignment);
void safeFreeArrayAligned(void* block, std::size_t alignment) noexcept;

KbAllocationCount allocationCount() noexcept;
