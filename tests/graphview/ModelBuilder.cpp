// SPDX-License-Identifier: MIT

#include "tests/graphview/ModelBuilder.h"

#include "host/models/TD_CelVq3d.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QRandomGenerator>
#include <array>

namespace {

template <class Core>
osg::NodePtr createNode()
{
    osg::osgInit(0, nullptr);
    return osg::makeCoredNode<Core>();
}

osg::NodePtr createCorelessNode()
{
    osg::osgInit(0, nullptr);
    return osg::Node::create();
}

/// The nodes of a graph, each before its children.
std::vector<osg::NodeRefPtr> allNodes(const osg::NodePtr& root)
{
    std::vector<osg::NodeRefPtr> nodes;
    if (root != osg::NullFC)
        nodes.emplace_back(root);
    for (std::size_t at = 0; at < nodes.size(); ++at) {
        const osg::NodePtr node = nodes[at];
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
            nodes.emplace_back(node->getChild(i));
    }
    return nodes;
}

/// A node lets go of its children when it dies, and so on downwards. With a reference held of each
/// node and given back from the top, none dies inside the death of another.
void dismantle(TD_CelVq3d* cel)
{
    std::vector<osg::NodeRefPtr> nodes = allNodes(cel->rootNodePtr());
    delete cel;
    for (osg::NodeRefPtr& node : nodes)
        node = osg::NodePtr();
}

ModelBuilder::Name randomName(QRandomGenerator& random)
{
    const int choice = random.bounded(20);
    if (choice == 0)
        return ModelBuilder::noName;
    if (choice == 1)
        return std::string();
    return "part" + std::to_string(random.bounded(12));
}

} // namespace

namespace ModelBuilder {

Part key(const Name& name, const Parts& parts)
{
    return {createNode<osg::KeyTransform>, name, parts};
}

Part transform(const Name& name, const Parts& parts)
{
    return {createNode<osg::Transform>, name, parts};
}

Part group(const Name& name, const Parts& parts)
{
    return {createNode<osg::Group>, name, parts};
}

Part geometry(const Name& name, const Parts& parts)
{
    return {createNode<osg::Geometry>, name, parts};
}

Part coreless(const Name& name, const Parts& parts)
{
    return {createCorelessNode, name, parts};
}

osg::NodePtr build(const Part& part)
{
    const osg::NodePtr node = part.create();
    if (part.name)
        osg::setName(node, *part.name);
    for (const Part& below : part.parts)
        node->addChild(build(below));
    return node;
}

CEL_SharedPtr<TD_CelVq3d> model(const osg::NodePtr& root)
{
    return {new TD_CelVq3d(root), dismantle};
}

CEL_SharedPtr<TD_CelVq3d> model(const Part& root)
{
    return model(build(root));
}

CEL_SharedPtr<TD_CelVq3d> emptyModel()
{
    return model(osg::NodePtr());
}

CEL_SharedPtr<TD_CelVq3d> chain(int links)
{
    osg::NodePtr top = build(geometry(noName));
    for (int link = links - 1; link >= 0; --link) {
        const osg::NodePtr node = build(key("link" + std::to_string(link)));
        node->addChild(top);
        top = node;
    }
    return model(top);
}

CEL_SharedPtr<TD_CelVq3d> randomModel(quint32 seed, int nodes)
{
    QRandomGenerator random(seed);
    const std::array kinds{key, key, key, transform, group, geometry, coreless};
    std::vector<osg::NodePtr> built{build(group("root"))};
    // Of the nodes so far only the latest take children: few make a deep model, many a broad one.
    const int reach = 1 + random.bounded(nodes);
    while (static_cast<int>(built.size()) < nodes) {
        const int known = static_cast<int>(built.size());
        const int parent = known - 1 - random.bounded(std::min(reach, known));
        const auto kind = kinds.at(static_cast<std::size_t>(random.bounded(int(kinds.size()))));
        built.push_back(build(kind(randomName(random), {})));
        built.at(static_cast<std::size_t>(parent))->addChild(built.back());
    }
    return model(built.front());
}

} // namespace ModelBuilder
