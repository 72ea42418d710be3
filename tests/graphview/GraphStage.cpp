// SPDX-License-Identifier: MIT

#include "tests/graphview/GraphStage.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "tests/graphview/ShownModels.h"

GraphStage::GraphStage()
{
    _session.openScene(QStringLiteral("scene"));
}

GraphStage::~GraphStage() = default;

std::unique_ptr<GV_GraphXViewQt> GraphStage::newView()
{
    auto view = std::make_unique<GV_GraphXViewQt>(context().actionManager(), nullptr, &context());
    view->init(new GV_GraphXViewCtrl(view.get(), &context()));
    return view;
}

GV_GraphXViewQt& GraphStage::view()
{
    if (!_view)
        _view = newView();
    return *_view;
}

GV_GraphUiInfo& GraphStage::graph()
{
    return *view().controller()->uiInfo();
}

MO_ElementModule& GraphStage::addElement(const QString& name,
                                         const CEL_SharedPtr<TD_CelVq3d>& model, int firstFrame,
                                         int lastFrame)
{
    auto element = std::make_unique<MO_ElementModule>(name);
    MO_ElementModule& added = *element;
    scene().rootGroup()->insertNode(std::move(element));
    added.exposeModel(firstFrame, lastFrame, model);
    notify();
    return added;
}

MO_ElementModule& GraphStage::addElement(const QString& name)
{
    return addElement(name, robotModel());
}

MO_ElementModule& GraphStage::addEmptyElement(const QString& name)
{
    return addElement(name, CEL_SharedPtr<TD_CelVq3d>());
}

MO_Node& GraphStage::addPeg(const QString& name)
{
    MO_Node* peg = scene().rootGroup()->insertNode(std::make_unique<MO_PegModule>(name));
    notify();
    return *peg;
}

void GraphStage::remove(MO_Node& node)
{
    node.parentGroup()->takeNode(&node).reset();
    notify();
}

void GraphStage::select(const std::vector<MO_Node*>& nodes)
{
    const SL_Selection::BatchSelectionModeScope scope(context().selection());
    context().selection()->clear();
    for (MO_Node* node : nodes)
        context().selection()->add(node);
}

void GraphStage::subSelect(const MO_ElementModule& element, const QStringList& names)
{
    const SL_Selection::BatchSelectionModeScope scope(context().selection());
    for (const QString& name : names) {
        int id = 0;
        if (element.getSelIdForNodeKey(AT_ModelNodeKey(name), id))
            element.selInterface()->subSelect(id, true);
        else
            qWarning("There is no subnode '%s'.", qUtf8Printable(name));
    }
}

void GraphStage::goToFrame(int frame)
{
    context().currentFrameInterface()->setCurrentFrame(&scene(), frame);
}

void GraphStage::setVisible(MO_ElementModule& element, const QStringList& names, bool visible,
                            int frame)
{
    const AT_ModelData* held = element.seqMeta(frame);
    auto data = held ? std::make_unique<AT_ModelData>(*held) : std::make_unique<AT_ModelData>();
    for (const QString& name : names) {
        AT_ModelNodeData record;
        record.visible = visible;
        data->setNodeData(AT_ModelNodeKey(name), record);
    }
    element.setSeqMeta(frame, std::move(data));
    notify();
}

void GraphStage::notify()
{
    context().changeManager()->notify();
}

GV_UiNode* GraphStage::node(const QString& name)
{
    for (GV_UiNode* node : preOrder(graph().rootUiNode())) {
        if (node->name() == name)
            return node;
    }
    return nullptr;
}

QStringList GraphStage::selectedNames()
{
    QStringList names;
    for (const auto& [key, node] : graph().selectedNodes())
        names.append(key.nodeName);
    names.sort();
    return names;
}

QStringList GraphStage::headers()
{
    std::vector<const GV_UiNode*> nodes;
    const int visibleIx = graph().headerNodes(nodes);
    QStringList names;
    for (const GV_UiNode* node : nodes) {
        const bool visible = static_cast<int>(names.size()) == visibleIx;
        names.append(visible ? QLatin1Char('[') + node->name() + QLatin1Char(']') : node->name());
    }
    return names;
}

CEL_SharedPtr<TD_CelVq3d> robotModel()
{
    using namespace ModelBuilder;
    return model(key("body", {key("arm", {shapedKey("hand")}), shapedKey("leg")}));
}

ModelBuilder::Part shapedKey(const ModelBuilder::Name& name)
{
    return ModelBuilder::key(name, {ModelBuilder::geometry(ModelBuilder::noName)});
}
