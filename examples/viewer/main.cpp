// SPDX-License-Identifier: BSD-3-Clause
// A program of somebody's own, with a scene that moves. Its window holds an inspector, which F12
// opens: a member, and a call of `show`.
#include "ViewerWindow.h"

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

constexpr int usageError = 2;

// A picture needs no display, so none is opened. That has to be settled before there is an
// application object, and with it before anything reads the command line.
void drawOffscreen(int argc, char** argv)
{
    const bool takesPicture = std::any_of(argv, argv + argc, [](const char* argument) {
        return std::string_view(argument).substr(0, 9) == "--picture";
    });
    if (takesPicture)
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int fail(const QString& error)
{
    std::fprintf(stderr, "%s\n", qPrintable(error));
    return usageError;
}

} // namespace

int main(int argc, char** argv)
{
    drawOffscreen(argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"corvane_viewer"_s);
    QApplication::setApplicationDisplayName(u"Orrery"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows the planets, and lets you inspect them with F12."_s);
    parser.addHelpOption();
    const QCommandLineOption inspector(u"inspector"_s, u"Opens the inspector at the start."_s);
    const QCommandLineOption frames(u"frames"_s, u"Ends after so many frames."_s, u"count"_s);
    const QCommandLineOption picture(u"picture"_s,
        u"Draws the window, and the inspector if it is opened, into a PNG file, and ends."_s,
        u"file"_s);
    parser.addOptions({ inspector, frames, picture });
    parser.process(application);

    ViewerWindow window;
    if (parser.isSet(frames)) {
        const int count = parser.value(frames).toInt();
        if (count <= 0)
            return fail(u"--frames takes a number from 1 on"_s);
        window.endAfter(count);
    }
    window.show();
    if (parser.isSet(inspector))
        window.showInspector();
    if (parser.isSet(picture)) {
        const QString file = parser.value(picture);
        return window.takePicture(file) ? 0 : fail(u"%1 could not be written"_s.arg(file));
    }
    return QApplication::exec();
}
