// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

/// Brings the JSON of scene files of earlier versions to the current one, step by step.
class SceneUpgrade
{
public:
    /// From version 1, in which a scene was a list of elements, each with one model that was shown
    /// on all frames and a list of subnodes that were off. Whatever is not as it should be is
    /// passed on as it is, for the reader to find.
    static QJsonObject fromVersion1(const QJsonObject& scene);
};
