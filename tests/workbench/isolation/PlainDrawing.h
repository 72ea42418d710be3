// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelData.h"

#include <OpenSG/OSGNode.h>
#include <QSet>
#include <QStringList>
#include <optional>

/// What is drawn of a model, said plainly and by recursion: the names of its shapes, in the order
/// of the tree.
namespace PlainDrawing {

QStringList shapes(const osg::NodePtr& root, const std::optional<AT_ModelData>& settings);

/// What is to be drawn once these subnodes are isolated: their own shapes, and below them what
/// their settings leave on. Shapes above all subnodes have no settings, so they stay.
QStringList isolatedShapes(const osg::NodePtr& root, const std::optional<AT_ModelData>& settings,
                           const QSet<QString>& selected);

} // namespace PlainDrawing
