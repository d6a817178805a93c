// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramRequest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <fcntl.h>

namespace {

constexpr const char* variable = "CORVANE_RUN_REQUEST";

constexpr QLatin1String optionsKey("options");
constexpr QLatin1String processKey("process");
constexpr QLatin1String outputKey("output");
constexpr QLatin1String offscreenKey("offscreen");

} // namespace

void ProgramRequest::leave() const
{
    const QJsonObject object { { optionsKey, QJsonArray::fromStringList(options) },
        { processKey, process }, { outputKey, output }, { offscreenKey, offscreen } };
    qputenv(variable, QJsonDocument(object).toJson(QJsonDocument::Compact));
}

ProgramRequest ProgramRequest::read()
{
    const QJsonObject object = QJsonDocument::fromJson(qgetenv(variable)).object();
    ProgramRequest request;
    const QJsonArray options = object.value(optionsKey).toArray();
    for (const auto& option : options)
        request.options += option.toString();
    request.process = object.value(processKey).toInteger(-1);
    request.output = object.value(outputKey).toInt(-1);
    request.offscreen = object.value(offscreenKey).toBool();
    return request;
}

void ProgramRequest::remove() const
{
    qunsetenv(variable);
    if (offscreen)
        qunsetenv("QT_QPA_PLATFORM");
    if (output >= 0)
        fcntl(output, F_SETFD, FD_CLOEXEC);
}
