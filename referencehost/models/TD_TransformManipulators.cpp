// SPDX-License-Identifier: MIT
#include "host/models/TD_TransformManipulators.h"

#include "host/commands/CO_MacroCommand.h"
#include "host/scene/MO_ElementModule.h"
#include "host/selection/SLB_ManipContext.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "referencehost/models/SetSubnodeSettings.h"
#include "referencehost/scene/WholeFrame.h"

#include <utility>

namespace {

/// Records a command that changes the records of the sub-selected subnodes, if that changes any.
void recordChange(const SLB_ManipContext& context, SLB_NodeInterface* selected,
                  const SetSubnodeSettings::Change& change)
{
    const auto* node = dynamic_cast<const SLB_NodeWith3DSubNode*>(selected);
    auto* element = node ? dynamic_cast<MO_ElementModule*>(node->selectable()) : nullptr;
    const std::optional<int> frame = wholeFrame(context.frame());
    if (!element || !context.macro() || !frame)
        return;
    std::vector<AT_ModelNodeKey> keys;
    for (const int id : node->subSelectedIds()) {
        AT_ModelNodeKey key;
        if (node->subNodeKey(id, key))
            keys.push_back(key);
    }
    const AT_ModelData* held = element->seqMeta(*frame);
    if (SetSubnodeSettings::changed(held, keys, change) == (held ? *held : AT_ModelData()))
        return;
    context.macro()->append(new SetSubnodeSettings(element, *frame, std::move(keys), change));
}

} // namespace

TD_Module3dTransformManipulator::~TD_Module3dTransformManipulator() = default;

TD_NodeWith3DSubNodeManipulator::~TD_NodeWith3DSubNodeManipulator() = default;

void TD_NodeWith3DSubNodeManipulator::setVisible(const SLB_ManipContext& context,
                                                 SLB_NodeInterface* selected, bool visible)
{
    recordChange(context, selected,
                 [visible](AT_ModelNodeData& record) { record.visible = visible; });
}

void TD_NodeWith3DSubNodeManipulator::setLocalVisible(const SLB_ManipContext& context,
                                                      SLB_NodeInterface* selected, bool visible)
{
    recordChange(context, selected,
                 [visible](AT_ModelNodeData& record) { record.localVisible = visible; });
}

void TD_NodeWith3DSubNodeManipulator::createSubNodeTransformations(const SLB_ManipContext& context,
                                                                   SLB_NodeInterface* selected)
{
    recordChange(context, selected,
                 [](AT_ModelNodeData& record) { record.hasTransformation = true; });
}

TD_Module3dTransformManipulator*
TD_Transformation3dUtil::createTransformation3dManipulator(SLB_NodeInterface* selected)
{
    return dynamic_cast<SLB_NodeWith3DSubNode*>(selected) ? new TD_NodeWith3DSubNodeManipulator
                                                          : nullptr;
}
