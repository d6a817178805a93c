// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvConsole.h"
#include "EditorFixture.h"
#include "KnDebugError.h"
#include "KnReadError.h"
#include "OwnBuffer.h"

#include <QTextBlock>

#include <iostream>
#include <memory>
#include <thread>

/// Base of the console's tests: an active console in the window of a dark desktop, over streams
/// with buffers of the test's own.
class ConsoleFixture : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setPalette(QPalette(Qt::black));
    }
    void init()
    {
        failOnWarnings();
        m_shell = std::make_unique<TestShell>();
        m_shell->window().show();
        m_console = std::make_unique<CrvConsole>();
        m_console->load();
        m_console->activate();
    }
    void cleanup()
    {
        qunsetenv("CORVANE_STDOUT_CAPTURE");
        // Its host forgot to unload it.
        m_console.reset();
        QVERIFY(std::cout.rdbuf() == &m_ownOut && std::cerr.rdbuf() == &m_ownErr);
        m_shell.reset();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

protected:
    QTextEdit* view() const { return m_console->m_consoleOutput; }
    QString text() const { return view()->toPlainText(); }
    static void click(QPushButton* button)
    {
        if (button)
            QTest::mouseClick(button, Qt::LeftButton);
    }

    OwnBuffer m_ownOut { std::cout };
    OwnBuffer m_ownErr { std::cerr };
    std::unique_ptr<TestShell> m_shell;
    std::unique_ptr<CrvConsole> m_console;
};
