// SPDX-License-Identifier: BSD-3-Clause
// A program that shows an empty main window: the rival of bench_start.
#include "FirstFrame.h"

#include <QMainWindow>

int main(int argc, char** argv)
{
    FirstFrame::endProcess();
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1200, 800);
    window.show();
    return QApplication::exec();
}
