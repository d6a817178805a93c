// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLatin1String>

/// What the reader and the writer of scene files agree on.
namespace SceneFormat {

inline constexpr QLatin1String name("corvane-scene");
inline constexpr int version = 1;
/// Levels of children below the root. Qt's parser stops at 1024 brackets inside each other, and a
/// node takes two.
inline constexpr int maxDepth = 400;

namespace Key {
inline constexpr QLatin1String format("format");
inline constexpr QLatin1String version("version");
inline constexpr QLatin1String root("root");
inline constexpr QLatin1String roots("roots"); // instead, if there are several
inline constexpr QLatin1String type("type");
inline constexpr QLatin1String name("name");
inline constexpr QLatin1String fields("fields");
inline constexpr QLatin1String children("children");
inline constexpr QLatin1String value("value");
inline constexpr QLatin1String ignored("ignored");
} // namespace Key

} // namespace SceneFormat
