// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/scenefile/SceneDescription.h"

#include <QByteArray>

/// The scene file of the description. Its members stand in a fixed order, so that files that differ
/// little have little difference, and what is needed to make sense of the rest comes first. Models
/// are named relative to the folder that the file is meant for, unless that is empty.
QByteArray sceneText(const SceneDescription& scene, const QString& folder);
