// SPDX-License-Identifier: BSD-3-Clause
#include "HeaderOperators.h"

#include <atomic>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

constexpr std::uint64_t liveMark = 0x6c697665626c6f63;
constexpr std::uint64_t deadMark = 0x64656164626c6f63;

std::atomic<std::uint64_t> blockCount { 0 };

/// Stands right before the block; what lies before it pads to the block's alignment.
struct Header {
    void* start; // what malloc gave
    std::uint64_t mark;
};

void* allocate(std::size_t size, std::size_t alignment = alignof(std::max_align_t))
{
    auto* const start = static_cast<char*>(std::malloc(size + sizeof(Header) + alignment));
    if (!start)
        std::abort();
    const auto address = reinterpret_cast<std::uintptr_t>(start) + sizeof(Header);
    char* const block = start + sizeof(Header) + (alignment - address % alignment) % alignment;
    new (block - sizeof(Header)) Header { start, liveMark };
    ++blockCount;
    return block;
}

void release(void* block)
{
    if (!block)
        return;
    auto* const header = reinterpret_cast<Header*>(static_cast<char*>(block) - sizeof(Header));
    if (header->mark != liveMark) {
        std::fputs("operator delete got a block that operator new did not make\n", stderr);
        std::abort();
    }
    header->mark = deadMark;
    std::free(header->start);
}

} // namespace

std::uint64_t headerBlockCount() { return blockCount; }

// The forms that aren't here call these.
void* operator new(std::size_t size) { return allocate(size); }
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete(void* block, std::align_val_t) noexcept { release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { release(block); }
