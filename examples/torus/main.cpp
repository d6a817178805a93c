// SPDX-License-Identifier: BSD-3-Clause
#include "TorusWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    TorusWindow window;
    window.show();
    return QApplication::exec();
}
