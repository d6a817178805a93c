// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvConsole.h"
#include "TestShell.h"

#include <QTest>

/// An active console in a window.
class ConsoleHarness {
public:
    ConsoleHarness()
    {
        m_shell.window().show();
        m_console.load();
        m_console.activate();
    }
    ~ConsoleHarness()
    {
        m_console.deactivate();
        m_console.unload();
    }
    ConsoleHarness(const ConsoleHarness&) = delete;
    ConsoleHarness& operator=(const ConsoleHarness&) = delete;

    CrvConsole& console() { return m_console; }
    TestShell& shell() { return m_shell; }
    void click(const char* button)
    {
        QTest::mouseClick(
            m_shell.window().findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    }

private:
    TestShell m_shell;
    CrvConsole m_console;
};
