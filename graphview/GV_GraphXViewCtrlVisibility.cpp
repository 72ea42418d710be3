// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_TreeWalk.h"
#include "graphview/GV_UiHeaderNode.h"
#include "graphview/GV_UiSgNode.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelCmds.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"

#include <memory>
#include <set>
#include <utility>

namespace {

using eVisibilityState = GV_GraphXViewCtrl::eVisibilityState;

bool recordHasState(const AT_ModelNodeData* record, eVisibilityState state)
{
    const bool visible = record ? record->visible : true;
    return visible == (state == GV_GraphXViewCtrl::eVisible);
}

/// Collects the editable subnodes in the wanted state that are neither selected nor on the path
/// from the header to a selected one.
class UnSelectedVisibilityNodeCollector : public GV_GraphVisitor
{
public:
    UnSelectedVisibilityNodeCollector(const AT_ModelData* data,
                                      const GV_GraphUiInfo::SelectedNodeMap& selectedNodes,
                                      eVisibilityState state)
        : _data(data)
        , _state(state)
    {
        for (const auto& [key, node] : selectedNodes) {
            if (node && node->isSgNode() && _excluded.insert(node).second)
                excludeAncestors(node);
        }
    }

    using GV_GraphVisitor::visit;
    void visit(GV_UiSgNode* node) override
    {
        if (wants(node))
            _collected.insert(node);
    }

    bool wants(const GV_UiNode* node) const
    {
        if (!node->isSgNode() || !node->isEditable() || _excluded.contains(node))
            return false;
        const AT_ModelNodeData* record =
            _data ? _data->nodeData(AT_ModelNodeKey(node->name())) : nullptr;
        return recordHasState(record, _state);
    }

    const std::set<const GV_UiNode*>& collected() const { return _collected; }

private:
    void excludeAncestors(const GV_UiNode* node)
    {
        for (node = node->parent(); node && node->isSgNode(); node = node->parent()) {
            if (node->isEditable() && !_excluded.insert(node).second)
                return;
        }
    }

    const AT_ModelData* _data;
    eVisibilityState _state;
    std::set<const GV_UiNode*> _excluded;
    std::set<const GV_UiNode*> _collected;
};

} // namespace

AT_ModelData* GV_GraphXViewCtrl::currentModelData(const MO_ElementModule* element) const
{
    const int frame =
        _sessionContext->currentFrameInterface()->currentFrame(element->sceneCommon());
    return element->seqMeta(frame);
}

bool GV_GraphXViewCtrl::hasState(eVisibilityState state, const QString& name,
                                 const AT_ModelData* data) const
{
    return recordHasState(data->nodeData(AT_ModelNodeKey(name)), state);
}

bool GV_GraphXViewCtrl::nodeHasState(eVisibilityState state, const GV_UiNode* node) const
{
    const MO_ElementModule* element = node->isHeaderNode()
                                          ? static_cast<const GV_UiHeaderNode*>(node)->model()
                                          : _uiInfo->visibleGraphModelNode();
    if (!element)
        return false;
    const AT_ModelData* data = currentModelData(element);
    return data ? hasState(state, node->name(), data) : state == eVisible;
}

bool GV_GraphXViewCtrl::hasSelectedSubNodeWithState(eVisibilityState state) const
{
    const MO_ElementModule* element = _uiInfo->visibleGraphModelNode();
    const GV_GraphUiInfo::SelectedNodeMap& selectedNodes = std::as_const(*_uiInfo).selectedNodes();
    if (!element || selectedNodes.empty())
        return false;
    const AT_ModelData* data = currentModelData(element);
    if (!data) {
        // Without settings everything is visible, and the first entry stands for the others.
        const GV_UiNode* first = selectedNodes.begin()->second;
        return first && first->isSgNode() && state == eVisible;
    }
    for (const auto& [key, node] : selectedNodes) {
        if (node && node->isSgNode() && hasState(state, node->name(), data))
            return true;
    }
    return false;
}

bool GV_GraphXViewCtrl::hasUnSelectedSubNodeWithState(eVisibilityState state) const
{
    const MO_ElementModule* element = _uiInfo->visibleGraphModelNode();
    if (!element)
        return false;
    const UnSelectedVisibilityNodeCollector collector(
        currentModelData(element), std::as_const(*_uiInfo).selectedNodes(), state);
    // Any node will do, and mostly one of the first does.
    GV_TreeWalk walk(_uiInfo->rootUiNode());
    while (const GV_UiNode* node = walk.next()) {
        if (collector.wants(node))
            return true;
    }
    return false;
}

void GV_GraphXViewCtrl::onSetNodesVisible(bool visible)
{
    MO_ElementModule* element = _uiInfo->visibleGraphModelNode();
    if (!element)
        return;
    std::vector<const GV_UiNode*> nodes;
    for (const auto& [key, node] : std::as_const(*_uiInfo).selectedNodes()) {
        if (node && node->isSgNode())
            nodes.push_back(node);
    }
    setVisible(element, nodes, visible);
}

void GV_GraphXViewCtrl::onSetOtherNodesVisible(bool visible)
{
    MO_ElementModule* element = _uiInfo->visibleGraphModelNode();
    if (!element)
        return;
    UnSelectedVisibilityNodeCollector collector(currentModelData(element),
                                                std::as_const(*_uiInfo).selectedNodes(),
                                                visible ? eHidden : eVisible);
    _uiInfo->accept(collector);
    setVisible(element, {collector.collected().begin(), collector.collected().end()}, visible);
}

void GV_GraphXViewCtrl::setVisible(MO_ElementModule* element,
                                   const std::vector<const GV_UiNode*>& nodes, bool visible)
{
    AT_ModelData* data = currentModelData(element);
    auto command = std::make_unique<AT_ModelCmds::insertNodeDataCmd>(element, data);
    for (const GV_UiNode* node : nodes) {
        const AT_ModelNodeKey key(node->name());
        const AT_ModelNodeData* existing = data ? data->nodeData(key) : nullptr;
        AT_ModelNodeData record = existing ? *existing : AT_ModelNodeData();
        record.visible = visible;
        command->addData(key, record);
    }
    if (command->empty())
        return;
    _sessionContext->commandManager()->execute(command.release(),
                                               visible ? QObject::tr("Show Model Nodes")
                                                       : QObject::tr("Hide Model Nodes"));
}
