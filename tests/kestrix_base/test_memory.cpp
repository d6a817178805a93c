// SPDX-License-Identifier: BSD-3-Clause
#include "KbMemory.h"
#include "KbString.h"

#ifdef CORVANE_HEADER_OPERATORS
#include "HeaderOperators.h"
#endif

#include <QTest>

#include <cstring>

namespace {

constexpr std::size_t wide = 256;
constexpr std::align_val_t wideAlignment { wide };

/// One kind of block: its allocation and release through the counted allocator, and those of the
/// standard operators that must fit them.
struct Kind {
    void* (*safeNew)(std::size_t size);
    void (*safeDelete)(void* block);
    void* (*standardNew)(std::size_t size);
    void (*standardDelete)(void* block);
    std::size_t alignment = alignof(std::max_align_t);
};

const Kind kinds[] = {
    { &safeMalloc, &safeFree, [](std::size_t size) { return ::operator new(size); },
        [](void* block) { ::operator delete(block); } },
    { &safeMallocArray, &safeFreeArray, [](std::size_t size) { return ::operator new[](size); },
        [](void* block) { ::operator delete[](block); } },
    { [](std::size_t size) { return safeMallocAligned(size, wide); },
        [](void* block) { safeFreeAligned(block, wide); },
        [](std::size_t size) { return ::operator new(size, wideAlignment); },
        [](void* block) { ::operator delete(block, wideAlignment); }, wide },
    { [](std::size_t size) { return safeMallocArrayAligned(size, wide); },
        [](void* block) { safeFreeArrayAligned(block, wide); },
        [](std::size_t size) { return ::operator new[](size, wideAlignment); },
        [](void* block) { ::operator delete[](block, wideAlignment); }, wide },
};

} // namespace

/// Built twice: over the library's operators, and over operators that put a header before each
/// block and end the process when a block without one is freed.
class TestMemory : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void blocksCrossTheBorderAndAreCounted_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<std::size_t>("size");
        for (int i = 0; i < std::ssize(kinds); ++i) {
            for (const std::size_t size : { 0, 1, 100000 })
                QTest::addRow("kind %d of %zu bytes", i, size) << i << size;
        }
    }
    void blocksCrossTheBorderAndAreCounted()
    {
        QFETCH(int, index);
        QFETCH(std::size_t, size);
        const Kind& kind = kinds[index];
        const KbAllocationCount before = allocationCount();
        for (const auto& [take, release] : { std::pair(kind.safeNew, kind.standardDelete),
                 std::pair(kind.standardNew, kind.safeDelete),
                 std::pair(kind.safeNew, kind.safeDelete) }) {
            void* block = take(size);
            QVERIFY(reinterpret_cast<std::uintptr_t>(block) % kind.alignment == 0);
            std::memset(block, 0x5a, size);
            release(block);
        }
        QCOMPARE(allocationCount().calls - before.calls, std::uint64_t(2));
        QCOMPARE(allocationCount().bytes - before.bytes, std::uint64_t(2 * size));
    }

    void reallocKeepsTheContents()
    {
        char* block = static_cast<char*>(safeMalloc(4));
        std::memcpy(block, "abc", 4);
        block = static_cast<char*>(safeRealloc(block, 4, 4000));
        QCOMPARE(static_cast<const char*>(block), "abc");
        ::operator delete(block);
    }

#ifdef CORVANE_HEADER_OPERATORS
    void theLibraryCallsTheHostsOperators()
    {
        const auto before = headerBlockCount();
        safeFree(safeMalloc(8));
        safeFreeAligned(safeMallocAligned(8, wide), wide);
        QCOMPARE(headerBlockCount(), before + 2);
        // What the library makes with its own inlined code comes from here, too.
        KbString text = KbString::fromLatin1(std::string(1000, 'x'));
        QVERIFY(headerBlockCount() > before + 2);
    }
#endif
};

QTEST_APPLESS_MAIN(TestMemory)
#include "test_memory.moc"
