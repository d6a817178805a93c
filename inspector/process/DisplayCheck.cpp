// SPDX-License-Identifier: BSD-3-Clause
#include "DisplayCheck.h"

#include <QLibrary>
#include <QStringList>

#include <algorithm>

namespace {

// The platform plug-ins are linked with these libraries; the program needs them for a moment, and
// only where there are such plug-ins.

bool xAnswers([[maybe_unused]] const QString& name)
{
    if (name.isEmpty() && qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    using Connect = void* (*)(const char* name, int* screen);
    using HasError = int (*)(void* connection);
    using Disconnect = void (*)(void* connection);
    QLibrary library(QStringLiteral("xcb"), 1);
    const auto connect = reinterpret_cast<Connect>(library.resolve("xcb_connect"));
    const auto hasError = reinterpret_cast<HasError>(library.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<Disconnect>(library.resolve("xcb_disconnect"));
    if (!connect || !hasError || !disconnect)
        return false;
    void* const connection
        = connect(name.isEmpty() ? nullptr : name.toLocal8Bit().constData(), nullptr);
    const bool works = hasError(connection) == 0;
    disconnect(connection);
    return works;
}

bool waylandAnswers()
{
    // A connection that was handed down serves only once, so that trying would use it up.
    if (!qEnvironmentVariableIsEmpty("WAYLAND_SOCKET"))
        return true;
    const QString socket = qEnvironmentVariable("WAYLAND_DISPLAY");
    // About a folder that isn't known, the library would print a complaint.
    if (!socket.startsWith(u'/') && qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return false;
    if (socket.isEmpty() && qgetenv("XDG_SESSION_TYPE") != "wayland")
        return false;
    using Connect = void* (*)(const char* name);
    using Disconnect = void (*)(void* display);
    QLibrary library(QStringLiteral("wayland-client"), 0);
    const auto connect = reinterpret_cast<Connect>(library.resolve("wl_display_connect"));
    const auto disconnect = reinterpret_cast<Disconnect>(library.resolve("wl_display_disconnect"));
    void* const display = connect && disconnect ? connect(nullptr) : nullptr;
    if (display)
        disconnect(display);
    return display != nullptr;
}

bool isUsable(const QString& platform, const QString& name)
{
    if (platform.startsWith(QLatin1String("xcb")))
        return xAnswers(name);
    return !platform.startsWith(QLatin1String("wayland")) || waylandAnswers();
}

} // namespace

bool displayAnswers(const QString& platform, const QString& name)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (platform.isEmpty())
        return xAnswers(name) || waylandAnswers();
    // A list names them in the order in which they are tried.
    const QStringList platforms = platform.split(u';', Qt::SkipEmptyParts);
    return std::any_of(platforms.begin(), platforms.end(),
        [&](const QString& each) { return isUsable(each, name); });
#else
    Q_UNUSED(platform);
    Q_UNUSED(name);
    return true;
#endif
}
