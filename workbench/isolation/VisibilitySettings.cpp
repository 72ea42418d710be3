// SPDX-License-Identifier: MIT

#include "workbench/isolation/VisibilitySettings.h"

#include "host/models/TD_KeyNodeFinders.h"
#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"

#include <set>

namespace {

AT_ModelNodeData recordOf(const AT_ModelData& settings, const AT_ModelNodeKey& key)
{
    const AT_ModelNodeData* record = settings.nodeData(key);
    return record ? *record : AT_ModelNodeData();
}

AT_ModelNodeKey keyOf(const osg::NodePtr& node)
{
    return AT_ModelNodeKey(TD_nodeName(node));
}

struct Pending
{
    osg::NodePtr node;
    bool isWithinSelected;
};

std::set<AT_ModelNodeKey> keysAbove(const osg::NodePtr& root,
                                    const std::set<AT_ModelNodeKey>& selected)
{
    std::set<AT_ModelNodeKey> above;
    std::set<osg::NodePtr> known;
    for (const AT_ModelNodeKey& key : selected) {
        osg::NodePtr node = TD_FindParentKeyNode()(TD_FindKeyNode()(root, key));
        while (node != osg::NullFC && known.insert(node).second) {
            above.insert(keyOf(node));
            node = TD_FindParentKeyNode()(node);
        }
    }
    return above;
}

} // namespace

AT_ModelData VisibilitySettings::isolated(const std::optional<AT_ModelData>& held,
                                          const osg::NodePtr& root,
                                          const std::vector<AT_ModelNodeKey>& keys)
{
    AT_ModelData settings = held.value_or(AT_ModelData());
    if (root == osg::NullFC)
        return settings;
    std::set<AT_ModelNodeKey> selected;
    for (const AT_ModelNodeKey& key : keys) {
        if (TD_FindKeyNode()(root, key) != osg::NullFC)
            selected.insert(key);
    }
    const std::set<AT_ModelNodeKey> above = keysAbove(root, selected);

    std::vector<Pending> pending = {{root, false}};
    while (!pending.empty()) {
        const Pending next = pending.back();
        pending.pop_back();
        const AT_ModelNodeKey key = keyOf(next.node);
        const bool isSubnode = TD_SceneGraphUtil::isKeySubnode(next.node);
        const bool isSelected = isSubnode && selected.contains(key);
        const bool leadsToSelected = isSubnode && above.contains(key);
        const bool isOnWithin = next.isWithinSelected && recordOf(settings, key).visible;
        if (isSubnode) {
            const AT_ModelNodeData present = recordOf(settings, key);
            AT_ModelNodeData record = present;
            record.visible = isSelected || leadsToSelected || isOnWithin;
            if (isSelected)
                record.localVisible = true;
            else if (record.visible && !isOnWithin)
                record.localVisible = false;
            if (!(record == present))
                settings.setNodeData(key, record);
        }
        // Below the others nothing is drawn, or everything as it was.
        if (!leadsToSelected && next.node != root)
            continue;
        std::vector<osg::NodePtr> children;
        TD_FindChildrenKeyNode::getChildren(next.node, children);
        for (const osg::NodePtr& child : children)
            pending.push_back({child, isOnWithin || isSelected});
    }
    return settings;
}

std::optional<AT_ModelData> VisibilitySettings::restored(const std::optional<AT_ModelData>& now,
                                                         const std::optional<AT_ModelData>& before)
{
    const AT_ModelData none;
    const AT_ModelData& was = before ? *before : none;
    AT_ModelData settings = now.value_or(AT_ModelData());
    for (const auto& [key, record] : was.records()) {
        AT_ModelNodeData next = recordOf(settings, key);
        next.visible = record.visible;
        next.localVisible = record.localVisible;
        settings.setNodeData(key, next);
    }
    const AT_ModelData::Records records = settings.records();
    for (const auto& [key, record] : records) {
        if (was.nodeData(key))
            continue;
        AT_ModelNodeData next = record;
        next.visible = true;
        next.localVisible = true;
        if (next == AT_ModelNodeData())
            settings.removeNodeData(key);
        else
            settings.setNodeData(key, next);
    }
    if (!before && settings.records().empty())
        return std::nullopt;
    return settings;
}
