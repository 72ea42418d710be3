// SPDX-License-Identifier: MIT
#include "SceneOutline.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <utility>

QByteArray SceneOutline::kindOf(const osg::NodePtr& node)
{
    const osg::FieldContainerType& type = node->getCore()->getType();
    if (type.isDerivedFrom(osg::KeyTransform::getClassType()))
        return "key";
    if (type.isDerivedFrom(osg::Transform::getClassType()))
        return "transform";
    if (type.isDerivedFrom(osg::Group::getClassType()))
        return "group";
    return type.isDerivedFrom(osg::Geometry::getClassType()) ? "geometry" : "unknown";
}

QByteArray SceneOutline::nameOf(const osg::NodePtr& node)
{
    return QByteArray(osg::getName(node));
}

QByteArrayList SceneOutline::lines(const osg::NodePtr& root)
{
    QByteArrayList all;
    QList<std::pair<osg::NodePtr, int>> pending{{root, 0}};
    while (!pending.isEmpty()) {
        const auto [node, depth] = pending.takeLast();
        const QByteArray name = nameOf(node);
        all += QByteArray(depth, '.') + kindOf(node) + (name.isNull() ? "" : " ") + name;
        for (osg::UInt32 i = node->getNChildren(); i-- > 0;)
            pending.append({node->getChild(i), depth + 1});
    }
    return all;
}

QList<osg::NodePtr> SceneOutline::nodes(const osg::NodePtr& root)
{
    QList<osg::NodePtr> all;
    QList<osg::NodePtr> pending{root};
    while (!pending.isEmpty()) {
        const osg::NodePtr node = pending.takeLast();
        all += node;
        for (osg::UInt32 i = node->getNChildren(); i-- > 0;)
            pending.append(node->getChild(i));
    }
    return all;
}

osg::NodePtr SceneOutline::find(const osg::NodePtr& root, const QByteArray& name)
{
    for (const osg::NodePtr& node : nodes(root)) {
        if (nameOf(node) == name)
            return node;
    }
    return osg::NullFC;
}
