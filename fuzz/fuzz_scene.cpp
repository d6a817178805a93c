// SPDX-License-Identifier: BSD-3-Clause
#include "FuzzTarget.h"
#include "KnReadError.h"
#include "SceneReader.h"
#include "SceneWriter.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace {

/// A scene, or no value and a reason.
std::optional<KnNodePtr> readScene(std::string_view json)
{
    SceneReader reader;
    KnNodePtr root = reader.readText(
        QByteArray(json.data(), static_cast<qsizetype>(json.size())), QStringLiteral("scene"));
    require(bool { root } == reader.errorText().isEmpty(), "a scene and an error, or neither");
    if (!root)
        return std::nullopt;
    return root;
}

std::string sceneText(const KnNodePtr& root)
{
    return SceneWriter().toJson(*root.get()).toStdString();
}

} // namespace

/// A scene file is refused as a whole, with a reason, or it survives being saved.
void fuzzInput(std::string_view input)
{
    KnReadError::setHandlerCallback(nullptr, nullptr);
    if (const std::optional<KnNodePtr> root = readScene(input))
        requireFixedPoint(*root, sceneText, readScene);
}
