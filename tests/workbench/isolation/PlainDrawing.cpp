// SPDX-License-Identifier: MIT

#include "tests/workbench/isolation/PlainDrawing.h"

#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"

#include <OpenSG/OSGGeometry.h>

namespace {

/// What a node passes on to those below it.
struct Passed
{
    bool isOn = true;
    bool drawsShapes = true;
};

AT_ModelNodeData recordOf(const osg::NodePtr& node, const std::optional<AT_ModelData>& settings)
{
    const AT_ModelNodeData* record =
        settings ? settings->nodeData(AT_ModelNodeKey(TD_nodeName(node))) : nullptr;
    return record ? *record : AT_ModelNodeData();
}

bool isShape(const osg::NodePtr& node)
{
    const osg::NodeCorePtr core = node->getCore();
    return core != osg::NullFC && core->getType().isDerivedFrom(osg::Geometry::getClassType());
}

template <class Rule>
void addShapes(const osg::NodePtr& node, Passed passed, const Rule& rule, QStringList& shapes)
{
    if (TD_SceneGraphUtil::isKeySubnode(node))
        passed = rule(node, passed);
    if (isShape(node) && passed.drawsShapes)
        shapes += TD_nodeName(node);
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        addShapes(node->getChild(i), passed, rule, shapes);
}

} // namespace

QStringList PlainDrawing::shapes(const osg::NodePtr& root,
                                 const std::optional<AT_ModelData>& settings)
{
    QStringList drawn;
    const auto rule = [&](const osg::NodePtr& node, Passed passed) {
        const AT_ModelNodeData record = recordOf(node, settings);
        const bool isOn = passed.isOn && record.visible;
        return Passed{isOn, isOn && record.localVisible};
    };
    addShapes(root, {}, rule, drawn);
    return drawn;
}

QStringList PlainDrawing::isolatedShapes(const osg::NodePtr& root,
                                         const std::optional<AT_ModelData>& settings,
                                         const QSet<QString>& selected)
{
    QStringList drawn;
    const auto rule = [&](const osg::NodePtr& node, Passed passed) {
        if (selected.contains(TD_nodeName(node)))
            return Passed{true, true};
        const AT_ModelNodeData record = recordOf(node, settings);
        const bool isOn = passed.isOn && record.visible;
        return Passed{isOn, isOn && record.localVisible};
    };
    addShapes(root, {.isOn = false, .drawsShapes = true}, rule, drawn);
    return drawn;
}
