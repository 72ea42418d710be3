// SPDX-License-Identifier: MIT
#include "GltfShapes.h"
#include "sample_models.h"

namespace {

using GltfShapes::box;
using GltfShapes::cylinder;

struct Materials
{
    int shell;
    int joint;
    int glass;
    int rubber;
};

/// Adds parts whose mesh has their own name, which is what most modelling programs write.
struct Builder
{
    GltfModel model;
    Materials materials;

    int part(const std::string& name, int parent, const GltfModel::Vector& at,
             const GltfModel::Mesh& mesh, int material)
    {
        return model.addNode(name, parent, at, model.addMesh(name + "Shape", mesh, material));
    }
};

void addFinger(Builder& b, const std::string& name, int parent, double x, double length)
{
    b.part(name, parent, {x, -0.11, 0.02}, box({0, -length / 2, 0}, {0.025, length, 0.03}, 1.2),
           b.materials.joint);
}

/// Side is 1 for left, where x grows, and -1 for right.
void addArm(Builder& b, const std::string& side, int torso, double sign)
{
    const Materials& m = b.materials;
    const int group = b.model.addNode(side + "Arm", torso);
    const int shoulder = b.part(side + "Shoulder", group, {sign * 0.32, 0.42, 0},
                                box({0, 0, 0}, {0.18, 0.16, 0.2}, 0.8), m.shell);
    b.model.setRotation(shoulder, GltfModel::turn({0, 0, 1}, sign * 12));
    const int upperArm = b.part(side + "UpperArm", shoulder, {sign * 0.02, -0.1, 0},
                                box({0, -0.13, 0}, {0.11, 0.26, 0.12}, 1.15), m.shell);
    const int elbow = b.part(side + "Elbow", upperArm, {0, -0.29, 0},
                             cylinder({0, 0, 0}, 0.06, 0.06, 0.1, 12), m.joint);
    b.model.setRotation(elbow, GltfModel::turn({1, 0, 0}, -20));
    const int forearm = b.part(side + "Forearm", elbow, {0, -0.04, 0},
                               box({0, -0.13, 0}, {0.1, 0.26, 0.1}, 1.25), m.shell);
    const int wrist = b.part(side + "Wrist", forearm, {0, -0.28, 0},
                             cylinder({0, 0, 0}, 0.035, 0.035, 0.05, 12), m.joint);
    const int hand = b.part(side + "Hand", wrist, {0, -0.03, 0},
                            box({0, -0.05, 0.01}, {0.06, 0.11, 0.12}), m.shell);
    const int fingers = b.model.addNode(side + "HandFingers", hand);
    addFinger(b, side + "Thumb", fingers, sign * -0.045, 0.07);
    addFinger(b, side + "IndexFinger", fingers, sign * -0.012, 0.1);
    addFinger(b, side + "MiddleFingerWithPressureSensor", fingers, sign * 0.02, 0.11);
}

void addLeg(Builder& b, const std::string& side, int lowerBody, double sign)
{
    const Materials& m = b.materials;
    const int group = b.model.addNode(side + "Leg", lowerBody);
    const int thigh = b.part(side + "Thigh", group, {sign * 0.14, -0.1, 0},
                             box({0, -0.18, 0}, {0.15, 0.36, 0.17}, 1.1), m.shell);
    const int knee = b.part(side + "HydraulicKneeJoint", thigh, {0, -0.4, 0},
                            cylinder({0, 0, 0}, 0.07, 0.07, 0.1, 12), m.joint);
    const int shin = b.part(side + "Shin", knee, {0, -0.05, 0},
                            box({0, -0.18, 0}, {0.12, 0.36, 0.14}, 1.2), m.shell);
    const int ankle = b.part(side + "Ankle", shin, {0, -0.39, 0},
                             cylinder({0, 0, 0}, 0.05, 0.05, 0.06, 12), m.joint);
    const int foot = b.part(side + "Foot", ankle, {0, -0.03, 0.03},
                            box({0, -0.04, 0}, {0.13, 0.08, 0.22}, 0.7), m.rubber);
    b.part(side + "Toes", foot, {0, -0.05, 0.11}, box({0, 0, 0.04}, {0.13, 0.06, 0.09}, 0.8),
           m.rubber);
}

void addHead(Builder& b, int torso)
{
    const Materials& m = b.materials;
    const int neck =
        b.part("Neck", torso, {0, 0.52, 0}, cylinder({0, 0.04, 0}, 0.07, 0.06, 0.1, 12), m.joint);
    const int head =
        b.part("Head", neck, {0, 0.09, 0}, box({0, 0.14, 0}, {0.28, 0.28, 0.26}, 0.85), m.shell);
    const int face = b.model.addNode("Face", head);
    b.part("LeftEye", face, {0.07, 0.17, 0.125}, box({0, 0, 0}, {0.05, 0.04, 0.03}), m.glass);
    b.part("RightEye", face, {-0.07, 0.17, 0.125}, box({0, 0, 0}, {0.05, 0.04, 0.03}), m.glass);
    b.part("Jaw", face, {0, 0.04, 0.12}, box({0, 0, 0.01}, {0.16, 0.05, 0.05}), m.joint);
    const int antenna = b.part("AntennaBase", head, {0.1, 0.28, 0},
                               cylinder({0, 0.02, 0}, 0.025, 0.02, 0.04, 8), m.joint);
    b.part("AntennaTip", antenna, {0, 0.04, 0}, cylinder({0, 0.08, 0}, 0.008, 0.0, 0.16, 8),
           m.glass);
}

} // namespace

GltfModel makeRobot()
{
    Builder b;
    b.materials.shell = b.model.addMaterial("Shell", {0.85, 0.55, 0.15}, 0.2);
    b.materials.joint = b.model.addMaterial("Joint", {0.35, 0.38, 0.42}, 0.8);
    b.materials.glass = b.model.addMaterial("Glass", {0.2, 0.75, 0.9}, 0.0);
    b.materials.rubber = b.model.addMaterial("Rubber", {0.12, 0.12, 0.13}, 0.0);

    const int robot = b.model.addNode("Robot", GltfModel::none);
    const int hips = b.part("Hips", robot, {0, 1.1, 0}, box({0, 0, 0}, {0.36, 0.18, 0.22}, 0.9),
                            b.materials.joint);
    const int upperBody = b.model.addNode("UpperBody", hips);
    const int torso = b.part("Torso", upperBody, {0, 0.1, 0},
                             box({0, 0.25, 0}, {0.34, 0.5, 0.24}, 1.4), b.materials.shell);
    b.part("ChestPanel", torso, {0, 0.32, 0.16}, box({0, 0, 0}, {0.24, 0.18, 0.03}),
           b.materials.glass);
    b.part("BackpackPowerUnit", torso, {0, 0.28, -0.2}, box({0, 0, 0}, {0.28, 0.34, 0.12}, 0.8),
           b.materials.joint);
    addHead(b, torso);
    addArm(b, "Left", torso, 1);
    addArm(b, "Right", torso, -1);
    const int lowerBody = b.model.addNode("LowerBody", hips);
    addLeg(b, "Left", lowerBody, 1);
    addLeg(b, "Right", lowerBody, -1);
    return b.model;
}
