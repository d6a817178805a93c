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
        shell.window().show();
        console.load();
        console.activate();
    }
    ~ConsoleHarness()
    {
        console.deactivate();
        console.unload();
    }

    QTextEdit* view() const { return console.m_consoleOutput; }
    QString text() const { return view()->toPlainText(); }
    static void click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

    TestShell shell;
    CrvConsole console;
};
