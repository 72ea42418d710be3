// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

/// What marks a scene file.
namespace SceneFormat {

/// Without a dot before it.
inline constexpr QLatin1String extension("subnodes");
inline constexpr QLatin1String name("subnode-scene");
inline constexpr int version = 2;

/// Far more than a network has that people can read; a damaged file may ask for anything.
inline constexpr int mostPorts = 1024;
/// Whoever walks through a scene may do so by recursion.
inline constexpr int deepestGroup = 1000;

} // namespace SceneFormat
