// SPDX-License-Identifier: BSD-3-Clause
#include "KbMemory.h"
#include "KbName.h"

#ifdef CORVANE_HEADER_OPERATORS
#include "HeaderOperators.h"
#endif

#include <QTest>

#include <csignal>
#include <cstring>
#include <limits>
#include <memory>
#include <new>

#include <sys/wait.h>
#include <unistd.h>

namespace {

/// One kind of block: its allocation and release through the counted allocator, and those of the
/// standard operators that must fit them.
struct Kind {
    void* (*safeNew)(std::size_t size);
    void (*safeDelete)(void* block);
    void* (*standardNew)(std::size_t size);
    void (*standardDelete)(void* block);
    std::size_t alignment;
};

constexpr std::size_t wide = 256;
constexpr std::align_val_t wideAlignment { wide };

} // namespace

Q_DECLARE_METATYPE(Kind)

/// Built twice: over the library's operators, and over operators that put a header before each
/// block and end the process when a block without one is freed.
class TestMemory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void blocksCrossTheBorder_data();
    void blocksCrossTheBorder();
    void reallocKeepsTheContents();
    void callsAndBytesAreCounted();
#ifdef CORVANE_HEADER_OPERATORS
    void ownOperatorsAreUsed();
#else
    void withoutMemoryTheProcessEnds();
#endif
};

void TestMemory::blocksCrossTheBorder_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("plain") << Kind { &safeMalloc, &safeFree,
        [](std::size_t size) { return ::operator new(size); },
        [](void* block) { ::operator delete(block); }, alignof(std::max_align_t) };
    QTest::newRow("array") << Kind { &safeMallocArray, &safeFreeArray,
        [](std::size_t size) { return ::operator new[](size); },
        [](void* block) { ::operator delete[](block); }, alignof(std::max_align_t) };
    QTest::newRow("aligned") << Kind { [](std::size_t size) {
                                          return safeMallocAligned(size, wide);
                                      },
        [](void* block) { safeFreeAligned(block, wide); },
        [](std::size_t size) { return ::operator new(size, wideAlignment); },
        [](void* block) { ::operator delete(block, wideAlignment); }, wide };
    QTest::newRow("aligned array")
        << Kind { [](std::size_t size) { return safeMallocArrayAligned(size, wide); },
               [](void* block) { safeFreeArrayAligned(block, wide); },
               [](std::size_t size) { return ::operator new[](size, wideAlignment); },
               [](void* block) { ::operator delete[](block, wideAlignment); }, wide };
}

void TestMemory::blocksCrossTheBorder()
{
    QFETCH(Kind, kind);
    for (const std::size_t size : { std::size_t(0), std::size_t(1), std::size_t(100000) }) {
        for (const auto& [take, release] : { std::pair(kind.safeNew, kind.standardDelete),
                 std::pair(kind.standardNew, kind.safeDelete),
                 std::pair(kind.safeNew, kind.safeDelete) }) {
            void* block = take(size);
            QVERIFY(block);
            QCOMPARE(reinterpret_cast<std::uintptr_t>(block) % kind.alignment, std::uintptr_t(0));
            std::memset(block, 0x5a, size);
            release(block);
        }
    }
    kind.safeDelete(nullptr);
}

void TestMemory::reallocKeepsTheContents()
{
    char* block = static_cast<char*>(safeRealloc(nullptr, 0, 4));
    std::memcpy(block, "abc", 4);
    block = static_cast<char*>(safeRealloc(block, 4, 4000));
    QCOMPARE(static_cast<const char*>(block), "abc");
    block = static_cast<char*>(safeRealloc(block, 4000, 2));
    QCOMPARE(block[1], 'b');
    ::operator delete(block);
}

void TestMemory::callsAndBytesAreCounted()
{
    const KbAllocationCount before = allocationCount();
    safeFree(safeMalloc(10));
    safeFreeArray(safeMallocArray(20));
    safeFreeAligned(safeMallocAligned(30, wide), wide);
    safeFree(safeRealloc(safeMalloc(1), 1, 40));
    const KbAllocationCount after = allocationCount();
    QCOMPARE(after.calls - before.calls, std::uint64_t(5));
    QCOMPARE(after.bytes - before.bytes, std::uint64_t(101));
}

#ifdef CORVANE_HEADER_OPERATORS

void TestMemory::ownOperatorsAreUsed()
{
    const auto before = headerBlockCount();
    safeFree(safeMalloc(8));
    QCOMPARE(headerBlockCount(), before + 1);
    safeFreeAligned(safeMallocAligned(8, wide), wide);
    QCOMPARE(headerBlockCount(), before + 2);
    // What the library makes with its own inlined code comes from here, too.
    KbString text = KbString::fromLatin1(std::string(1000, 'x'));
    QVERIFY(headerBlockCount() > before + 2);
}

#else

void TestMemory::withoutMemoryTheProcessEnds()
{
    int ends[2] = {};
    QCOMPARE(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        // QTest's handler would print a report of its own.
        std::signal(SIGABRT, SIG_DFL);
        safeMalloc(std::numeric_limits<std::size_t>::max() / 4);
        _exit(0);
    }
    close(ends[1]);
    std::string message(4096, '\0');
    std::size_t length = 0;
    for (ssize_t got = 1; got > 0 && length < message.size(); length += std::size_t(got))
        got = std::max<ssize_t>(read(ends[0], message.data() + length, message.size() - length), 0);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
#ifdef __SANITIZE_ADDRESS__
    // The sanitizer's operators report and end the process themselves.
    QVERIFY(WIFSIGNALED(status) || WEXITSTATUS(status) != 0);
#else
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGABRT);
    QVERIFY2(message.find("Out of memory: 4611686018427387903 bytes") != std::string::npos,
        message.c_str());
#endif
}

#endif

QTEST_APPLESS_MAIN(TestMemory)
#include "test_memory.moc"
