// SPDX-License-Identifier: BSD-3-Clause
#include "ModuleRun.h"

#include <QLabel>
#include <QTest>

#include <iostream>

/// The module file, linked so that it can be unmapped: whatever still pointed into it would end the
/// process.
class TestModuleUnmapping : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unloadedFileIsGoneAndNotMissed();
};

void TestModuleUnmapping::unloadedFileIsGoneAndNotMissed()
{
    QTest::failOnWarning(
        QRegularExpression(QStringLiteral("^(?!This plugin does not support propagateSizeHints)")));
    ModuleRun run(QStringLiteral(CORVANE_MODULE_FILE));
    for (int i = 0; i < 200; ++i) {
        QVERIFY(run.load());
        QVERIFY(run.isMapped());
        run.use(i == 0);
        if (QTest::currentTestFailed())
            return;
        run.unload();
        QVERIFY(!run.isMapped());
    }

    std::cout << "text behind the last unmapping" << std::endl;
    std::cerr << "and on the other stream" << std::endl;
    QLabel label(QStringLiteral("a widget of the process's own"));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QTest::keyClick(&run.shell().window(), Qt::Key_Tab);
    settle();
}

QTEST_MAIN(TestModuleUnmapping)
#include "test_module_unmapping.moc"
