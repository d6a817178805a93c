// SPDX-License-Identifier: BSD-3-Clause
#include "CommandLine.h"
#include "FuzzTarget.h"

#include <optional>

namespace {

std::optional<CommandLine> parse(std::string_view text)
{
    QStringList arguments { QStringLiteral("corvane") };
    for (const std::string_view line : linesOf(text))
        arguments << QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
    CommandLine commandLine = CommandLine::parse(arguments);
    require((commandLine.request == CommandLine::Request::Error) != commandLine.error.isEmpty(),
        "refused without a reason, or the other way round");
    if (commandLine.request != CommandLine::Request::Run)
        return std::nullopt;
    return commandLine;
}

/// Arguments that ask for the same, one a line.
std::string argumentsText(const CommandLine& commandLine)
{
    QStringList arguments;
    const auto add = [&](const char* option, const QString& value) {
        if (!value.isEmpty())
            arguments << QLatin1String(option) + value;
    };
    add("--profile=", commandLine.profile);
    add("--profiles=", commandLine.profilesFile);
    add("--select=", commandLine.selection);
    add("--picture=", commandLine.picture);
    for (const QString& plugin : commandLine.plugins)
        add("--plugin=", plugin);
    arguments << commandLine.toolkitArguments << QStringLiteral("--");
    if (!commandLine.scene.isEmpty())
        arguments << commandLine.scene;
    return arguments.join(u'\n').toStdString();
}

} // namespace

/// One argument a line.
void fuzzInput(std::string_view input)
{
    if (const std::optional<CommandLine> commandLine = parse(input))
        requireFixedPoint(*commandLine, argumentsText, parse);
}
