// SPDX-License-Identifier: MIT
#pragma once

#include "GltfModel.h"

/// The shapes that the sample models are built of. Every face has vertices and normals of its
/// own, so edges stay sharp.
namespace GltfShapes {

/// A box around the centre whose upper face is scaled by the taper; 1 gives a plain box.
GltfModel::Mesh box(const GltfModel::Vector& center, const GltfModel::Vector& size,
                    double taper = 1.0);

/// An upright cylinder around the centre, or a cone when one radius is 0; sides is 3 or more.
GltfModel::Mesh cylinder(const GltfModel::Vector& center, double lowerRadius, double upperRadius,
                         double height, int sides);

} // namespace GltfShapes
