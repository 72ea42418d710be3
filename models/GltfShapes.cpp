// SPDX-License-Identifier: MIT
#include "GltfShapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using Vector = GltfModel::Vector;

Vector difference(const Vector& a, const Vector& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Vector sum(const Vector& a, const Vector& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

Vector cross(const Vector& a, const Vector& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double length(const Vector& a)
{
    return std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]);
}

/// Corners run counter-clockwise as seen from outside.
void addFace(GltfModel::Mesh& mesh, const std::vector<Vector>& corners)
{
    // The first edge of a cone's side may have no length, the diagonals always have one.
    Vector normal =
        corners.size() == 4
            ? cross(difference(corners[2], corners[0]), difference(corners[3], corners[1]))
            : cross(difference(corners[1], corners[0]), difference(corners[2], corners[0]));
    const double scale = length(normal);
    for (double& component : normal)
        component /= scale;
    const auto first = static_cast<std::uint16_t>(mesh.positions.size());
    for (const Vector& corner : corners) {
        mesh.positions.push_back(corner);
        mesh.normals.push_back(normal);
    }
    for (std::size_t i = 2; i < corners.size(); ++i) {
        mesh.indices.push_back(first);
        mesh.indices.push_back(static_cast<std::uint16_t>(first + i - 1));
        mesh.indices.push_back(static_cast<std::uint16_t>(first + i));
    }
}

/// Both rings run counter-clockwise as seen from above and have equally many corners.
GltfModel::Mesh prism(const std::vector<Vector>& lower, const std::vector<Vector>& upper)
{
    GltfModel::Mesh mesh;
    addFace(mesh, upper);
    addFace(mesh, std::vector<Vector>(lower.rbegin(), lower.rend()));
    for (std::size_t i = 0; i < lower.size(); ++i) {
        const std::size_t next = (i + 1) % lower.size();
        addFace(mesh, {lower[i], lower[next], upper[next], upper[i]});
    }
    return mesh;
}

} // namespace

GltfModel::Mesh GltfShapes::box(const Vector& center, const Vector& size, double taper)
{
    const auto ring = [&](double y, double scale) {
        const double x = size[0] / 2 * scale;
        const double z = size[2] / 2 * scale;
        return std::vector<Vector>{sum(center, {-x, y, z}), sum(center, {x, y, z}),
                                   sum(center, {x, y, -z}), sum(center, {-x, y, -z})};
    };
    return prism(ring(-size[1] / 2, 1.0), ring(size[1] / 2, taper));
}

GltfModel::Mesh GltfShapes::cylinder(const Vector& center, double lowerRadius, double upperRadius,
                                     double height, int sides)
{
    // A ring of no size would have no normal; a thousandth of the other one looks the same.
    const double least = std::max(lowerRadius, upperRadius) / 1000.0;
    const auto ring = [&](double y, double radius) {
        std::vector<Vector> corners;
        for (int side = 0; side < sides; ++side) {
            const double angle = -2.0 * std::numbers::pi * side / sides;
            const double r = std::max(radius, least);
            corners.push_back(sum(center, {r * std::cos(angle), y, r * std::sin(angle)}));
        }
        return corners;
    };
    return prism(ring(-height / 2, lowerRadius), ring(height / 2, upperRadius));
}
