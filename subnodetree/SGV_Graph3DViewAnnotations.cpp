// SPDX-License-Identifier: MIT

#include "host/attributes/AT_StringAttr.h"
#include "host/models/TD_Model3DUtils.h"
#include "host/scene/MO_BaseContext.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_Port.h"
#include "host/scene/MO_TypeKeys.h"
#include "host/scene/SC_SessionContext.h"
#include "host/selection/SL_SelectionUtil.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_GraphModel.h"

#include <algorithm>

namespace {

/// The attribute that names the subnode which a kinematic output follows; null when there is none.
const AT_StringAttr* subnodeNameOf(const MO_Node& node)
{
    static const QString keyword = QStringLiteral("Sub_Node_Name");
    for (auto attr = node.attrsBegin(); attr != node.attrsEnd(); ++attr) {
        const auto* text = dynamic_cast<const AT_StringAttr*>(*attr);
        if (text && text->meta().keyword() == keyword)
            return text;
    }
    return nullptr;
}

void addConnection(SGV_GraphModel::ConnectionsData& connections, const MO_Node& node)
{
    if (node.typeName() != STRING_KEY_3D_KINEMATIC_OUTPUT)
        return;
    const AT_StringAttr* subnodeName = subnodeNameOf(node);
    const AT_ModelNodeKey key(subnodeName ? subnodeName->localValue() : QString());
    if (key.empty())
        return;
    QString& text = connections[key];
    text = text.isEmpty() ? node.instanceName() : text + QStringLiteral(", ") + node.instanceName();
}

quint32 stateOf(const AT_ModelNodeData& record)
{
    quint32 state = 0;
    if (!record.visible)
        state |= SGV_GraphItem::Disabled;
    if (!record.localVisible)
        state |= SGV_GraphItem::ShapeHidden;
    return state;
}

} // namespace

void SGV_Graph3DView::updateNetworkConnectionsData()
{
    const MO_Node* node = firstNode();
    if (!node)
        return;
    SGV_GraphModel::ConnectionsData connections;
    for (int i = 0; i < node->nOutPorts(); ++i) {
        const MO_Port* port = node->outPort(i);
        if (!port)
            continue;
        for (const MO_Port* destination : port->realDstPorts())
            addConnection(connections, *destination->node());
    }
    _model->setConnectionsData(connections);
}

void SGV_Graph3DView::updateVisibilityData()
{
    const MO_Node* node = firstNode();
    if (!node)
        return;
    const AT_ModelData* settings = TD_Model3DUtils::getModelMetadata(frameContext(*node), node);
    if (!settings)
        return;
    SGV_GraphModel::VisibilityData states;
    for (const auto& [key, record] : settings->records())
        states[key] = stateOf(record);
    _model->setVisibilityData(states);
}
