// SPDX-License-Identifier: MIT

#include "benchmarks/SampleGraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int deepestRigLevel = 30;
constexpr int mostRigChildren = 4;

/// Names of the lengths that riggers give: most fit a box, some have to be shortened.
std::string nameOf(int index)
{
    static constexpr std::array<const char*, 8> parts{
        "arm_",    "L_hand_",           "spine_", "R_foot_",
        "finger_", "L_shoulder_blade_", "jaw_",   "eyelid_upper_"};
    return parts[static_cast<std::size_t>(index) % parts.size()] + std::to_string(index);
}

osg::NodePtr newNode(bool isShape, bool isGroup, const char* name)
{
    osg::NodePtr node;
    if (isShape)
        node = osg::makeCoredNode<osg::Geometry>();
    else if (isGroup)
        node = osg::makeCoredNode<osg::Group>();
    else
        node = osg::makeCoredNode<osg::KeyTransform>();
    osg::setName(node, name);
    return node;
}

struct Placed
{
    int parent;
    int level;
};

/// The parent of each node, parents before children.
std::vector<Placed> rigPlaces(int nodes, std::mt19937& random)
{
    std::vector<Placed> places{{-1, 0}};
    std::vector<int> open{0};
    while (static_cast<int>(places.size()) < nodes) {
        const std::size_t pick = random() % open.size();
        const int parent = open[pick];
        open[pick] = open.back();
        open.pop_back();
        const int level = places[static_cast<std::size_t>(parent)].level + 1;
        int children = 1 + static_cast<int>(random() % mostRigChildren);
        // The last open branch must fork, or the tree would end before it is large enough.
        if (open.empty())
            children = mostRigChildren;
        for (; children > 0 && static_cast<int>(places.size()) < nodes; --children) {
            if (level < deepestRigLevel)
                open.push_back(static_cast<int>(places.size()));
            places.push_back({parent, level});
        }
    }
    return places;
}

std::vector<Placed> placesOf(Shape shape, int nodes)
{
    std::mt19937 random(20260101U);
    if (shape == Shape::Rig)
        return rigPlaces(nodes, random);
    std::vector<Placed> places{{-1, 0}};
    for (int i = 1; i < nodes; ++i)
        places.push_back(shape == Shape::Flat ? Placed{0, 1} : Placed{i - 1, i});
    return places;
}

} // namespace

osg::NodeRefPtr sampleGraph(Shape shape, int nodes)
{
    const std::vector<Placed> places = placesOf(shape, nodes);
    std::vector<bool> isInner(places.size(), false);
    for (const Placed& place : places) {
        if (place.parent >= 0)
            isInner[static_cast<std::size_t>(place.parent)] = true;
    }
    std::vector<osg::NodePtr> made;
    made.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        constexpr std::size_t groupEvery = 8;
        const bool isRig = shape == Shape::Rig;
        const osg::NodePtr node =
            newNode(isRig && !isInner[i], isRig && i % groupEvery == groupEvery - 1,
                    nameOf(static_cast<int>(i)).c_str());
        if (places[i].parent >= 0)
            made[static_cast<std::size_t>(places[i].parent)]->addChild(node);
        made.push_back(node);
    }
    return osg::NodeRefPtr(made.front());
}

osg::NodeRefPtr firstNodesOf(const osg::NodePtr& root, int nodes)
{
    struct Pending
    {
        osg::NodePtr copiedParent;
        osg::NodePtr node;
    };
    osg::NodeRefPtr copiedRoot;
    std::vector<Pending> pending{{osg::NodePtr(), root}};
    for (int copied = 0; copied < nodes && !pending.empty(); ++copied) {
        Pending next = pending.back();
        pending.pop_back();
        const osg::FieldContainerType& type = next.node->getCore()->getType();
        const osg::NodePtr copy =
            newNode(type == osg::Geometry::getClassType(), type == osg::Group::getClassType(),
                    osg::getName(next.node));
        if (next.copiedParent == osg::NullFC)
            copiedRoot = osg::NodeRefPtr(copy);
        else
            next.copiedParent->addChild(copy);
        for (osg::UInt32 i = next.node->getNChildren(); i > 0; --i)
            pending.push_back({copy, next.node->getChild(i - 1)});
    }
    return copiedRoot;
}
