// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRequest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>

#include <fcntl.h>

namespace {

constexpr const char* variable = "CORVANE_RUN_REQUEST";

constexpr QLatin1String optionsKey("options");
constexpr QLatin1String outputKey("output");
constexpr QLatin1String offscreenKey("offscreen");

} // namespace

void ProgramRequest::leave() const
{
    const QJsonObject object { { optionsKey, QJsonArray::fromStringList(options) },
        { outputKey, output }, { offscreenKey, offscreen } };
    qputenv(variable, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

ProgramRequest ProgramRequest::take()
{
    const QJsonObject object = QJsonDocument::fromJson(qgetenv(variable)).object();
    qunsetenv(variable);
    ProgramRequest request;
    for (const auto& option : object.value(optionsKey).toArray())
        request.options += option.toString();
    request.output = object.value(outputKey).toInt(-1);
    request.offscreen = object.value(offscreenKey).toBool();
    // What the program starts doesn't get the stream either.
    if (request.output >= 0)
        fcntl(request.output, F_SETFD, FD_CLOEXEC);
    return request;
}
