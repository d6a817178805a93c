// SPDX-License-Identifier: BSD-3-Clause
#include "GuestApplication.h"

#include "CallQueue.h"
#include "Messages.h"

#include <QApplication>

#include <array>
#include <cerrno>
#include <clocale>
#include <string>

namespace {

/// Restores the process's locale, which the application object takes from the environment.
class LocaleKeeper {
public:
    LocaleKeeper()
        : m_locale(std::setlocale(LC_ALL, nullptr))
    {
    }
    ~LocaleKeeper() { std::setlocale(LC_ALL, m_locale.c_str()); }
    Q_DISABLE_COPY_MOVE(LocaleKeeper)

private:
    const std::string m_locale;
};

// The platforms to try, one after the other; empty to leave it to Qt. The last one needs no
// display, while Qt would end the process without one.
std::string platforms()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return {};
    std::string names;
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        names += "xcb;";
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        names += "wayland;";
    return names + "offscreen";
}

} // namespace

void GuestApplication::make()
{
    if (QCoreApplication::instance())
        return;
    const LocaleKeeper keeper;
    // The application object refers to these for as long as it lives.
    static std::string option = "-platform";
    static std::string names = platforms();
    static std::array<char*, 4> arguments { program_invocation_name, option.data(), names.data() };
    static int count = names.empty() ? 1 : 3;
    // Never destroyed: when the process ends, what the object needs may have gone before it.
    static const auto* const application = new QApplication(count, arguments.data());
    if (!names.empty() && QGuiApplication::platformName() == QLatin1String("offscreen"))
        complainToTerminal(QStringLiteral("%1: there is no display, so the inspector isn't seen")
                               .arg(QCoreApplication::applicationName()));
    static_cast<void>(application);
    CallQueue::getInstance().serve();
}
