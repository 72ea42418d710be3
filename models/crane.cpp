// SPDX-License-Identifier: MIT
#include "GltfShapes.h"
#include "sample_models.h"

#include <cmath>
#include <numbers>

namespace {

using GltfShapes::box;
using GltfShapes::cylinder;
using Vector = GltfModel::Vector;

constexpr int steps = 16;
constexpr double seconds = 2.0;

/// A swing around the axis that ends as it began, so the animation can be repeated. The phase is
/// a part of a whole swing.
void swing(GltfModel& model, int node, const Vector& axis, double degrees, double phase)
{
    std::vector<double> times;
    std::vector<GltfModel::Quaternion> rotations;
    for (int step = 0; step <= steps; ++step) {
        const double at = static_cast<double>(step) / steps;
        times.push_back(at * seconds);
        rotations.push_back(
            GltfModel::turn(axis, degrees * std::sin(2.0 * std::numbers::pi * (at + phase))));
    }
    model.animateRotation(node, times, rotations);
}

void rise(GltfModel& model, int node, const Vector& base, double height)
{
    std::vector<double> times;
    std::vector<Vector> translations;
    for (int step = 0; step <= steps; ++step) {
        const double at = static_cast<double>(step) / steps;
        times.push_back(at * seconds);
        translations.push_back(
            {base[0], base[1] + height * std::sin(2.0 * std::numbers::pi * at), base[2]});
    }
    model.animateTranslation(node, times, translations);
}

class Crane
{
public:
    Crane()
        : _feathers(_model.addMaterial("Feathers", {0.9, 0.9, 0.92}, 0.1))
        , _tips(_model.addMaterial("Tips", {0.15, 0.16, 0.2}, 0.3))
        , _brass(_model.addMaterial("Brass", {0.8, 0.6, 0.2}, 0.9))
        , _crown(_model.addMaterial("Crown", {0.8, 0.1, 0.1}, 0.0))
    {
    }

    GltfModel build()
    {
        const Vector place{0, 1.2, 0};
        const int crane = _model.addNode("Crane", GltfModel::none);
        const int body =
            part("Body", crane, place, box({0, 0, 0}, {0.3, 0.3, 0.7}, 0.7), _feathers);
        rise(_model, body, place, 0.08);
        part("Tail", body, {0, 0.05, -0.35}, box({0, 0, -0.12}, {0.2, 0.06, 0.26}), _tips);
        addNeck(body);
        addWing("Left", body, 1);
        addWing("Right", body, -1);
        const int legs = _model.addNode("Legs", body);
        addLeg("Left", legs, 0.08);
        addLeg("Right", legs, -0.08);
        return _model;
    }

private:
    int part(const std::string& name, int parent, const Vector& at, const GltfModel::Mesh& mesh,
             int material)
    {
        return _model.addNode(name, parent, at, _model.addMesh(name + "Shape", mesh, material));
    }

    void addNeck(int body)
    {
        int below = body;
        Vector at{0, 0.1, 0.33};
        for (int segment = 1; segment <= 4; ++segment) {
            below = part(
                "NeckSegment" + std::to_string(segment), below, at,
                cylinder({0, 0.08, 0}, 0.06 - 0.006 * segment, 0.054 - 0.006 * segment, 0.16, 10),
                segment % 2 ? _feathers : _brass);
            swing(_model, below, {1, 0, 0}, 8, 0.1 * segment);
            at = {0, 0.16, 0};
        }
        const int head =
            part("Head", below, at, box({0, 0.05, 0.02}, {0.1, 0.1, 0.14}, 0.8), _feathers);
        swing(_model, head, {0, 1, 0}, 25, 0.25);
        part("Crown", head, {0, 0.1, 0}, box({0, 0.01, 0}, {0.06, 0.03, 0.1}, 0.6), _crown);
        const int beak = _model.addNode("Beak", head);
        part("UpperBeak", beak, {0, 0.05, 0.09}, box({0, 0.012, 0.1}, {0.03, 0.02, 0.22}), _brass);
        part("LowerBeak", beak, {0, 0.04, 0.09}, box({0, -0.004, 0.09}, {0.03, 0.016, 0.18}),
             _brass);
    }

    void addWing(const std::string& side, int body, double sign)
    {
        // The drive stands still where it is, yet it moves: only its animation makes it a part.
        const int drive = _model.addNode(side + "WingDrive", body);
        swing(_model, drive, {0, 0, 1}, sign * 6, 0.0);
        const int inner = part(side + "InnerWing", drive, {sign * 0.14, 0.1, 0.05},
                               box({sign * 0.25, 0, 0}, {0.5, 0.04, 0.4}), _feathers);
        swing(_model, inner, {0, 0, 1}, sign * 28, 0.0);
        const int outer = part(side + "OuterWing", inner, {sign * 0.5, 0, 0},
                               box({sign * 0.2, 0, -0.02}, {0.4, 0.03, 0.34}), _feathers);
        swing(_model, outer, {0, 0, 1}, sign * 20, -0.15);
        const int tip = part(side + "PrimaryFeathersTip", outer, {sign * 0.4, 0, 0},
                             box({sign * 0.1, 0, -0.05}, {0.2, 0.02, 0.26}), _tips);
        swing(_model, tip, {0, 0, 1}, sign * 12, -0.25);
    }

    void addLeg(const std::string& side, int legs, double x)
    {
        const int thigh = part(side + "Thigh", legs, {x, -0.15, -0.05},
                               cylinder({0, -0.15, 0}, 0.03, 0.05, 0.3, 10), _feathers);
        const int shank = part(side + "Shank", thigh, {0, -0.3, 0},
                               cylinder({0, -0.25, 0}, 0.015, 0.018, 0.5, 8), _tips);
        part(side + "Foot", shank, {0, -0.5, 0}, box({0, -0.01, 0.04}, {0.1, 0.02, 0.16}), _tips);
    }

    GltfModel _model;
    int _feathers;
    int _tips;
    int _brass;
    int _crown;
};

} // namespace

GltfModel makeCrane()
{
    return Crane().build();
}
