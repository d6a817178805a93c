// SPDX-License-Identifier: BSD-3-Clause
#include "HeaderOperators.h"
#include "KbMemory.h"
#include "ModuleRun.h"

#include <QTest>

/// The module in a process whose operators are its own. Memory crosses the border both ways, so
/// that an allocator which goes past those operators ends the process.
class TestModuleOperators : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void memoryComesFromTheProcess();
};

void TestModuleOperators::memoryComesFromTheProcess()
{
    ModuleRun run(QStringLiteral(CORVANE_MODULE_FILE));
    for (int i = 0; i < 3; ++i) {
        const std::uint64_t blocks = headerBlockCount();
        const std::uint64_t counted = allocationCount().calls;
        QVERIFY(run.load());
        QVERIFY(allocationCount().calls > counted);
        QVERIFY(headerBlockCount() - blocks >= allocationCount().calls - counted);
        run.use(true);
        run.unload();
    }
}

QTEST_MAIN(TestModuleOperators)
#include "test_module_operators.moc"
