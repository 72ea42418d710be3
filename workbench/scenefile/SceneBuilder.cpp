// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneBuilder.h"

#include "host/attributes/AT_StringAttr.h"
#include "host/factories/MO_ModuleFactory.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"
#include "workbench/scenefile/ModelLibrary.h"
#include "workbench/scenefile/SceneProblems.h"

#include <algorithm>

namespace {

using Problem = SceneProblems::Kind;

std::unique_ptr<MO_Node> nodeOfKind(const QString& kind)
{
    std::unique_ptr<MO_Module> module;
    try {
        module = MO_ModuleFactorySingleton().create(kind);
    } catch (const not_registered&) {
        return nullptr;
    }
    auto* node = dynamic_cast<MO_Node*>(module.get());
    if (node)
        (void)module.release();
    return std::unique_ptr<MO_Node>(node);
}

AT_StringAttr* stringAttr(const MO_Node& node, const QString& keyword)
{
    for (auto it = node.attrsBegin(); it != node.attrsEnd(); ++it) {
        if ((*it)->meta().keyword() == keyword)
            return dynamic_cast<AT_StringAttr*>(*it);
    }
    return nullptr;
}

void addMissingPorts(MO_Node& node, int inputs, int outputs)
{
    while (node.nInPorts() < inputs)
        node.addPort(MO_Port::eInput);
    while (node.nOutPorts() < outputs)
        node.addPort(MO_Port::eOutput);
}

} // namespace

SceneBuilder::SceneBuilder(HostSession& session, ModelLibrary& library, SceneProblems& problems)
    : _session(session)
    , _library(library)
    , _problems(problems)
{
}

SceneBuilder::~SceneBuilder() = default;

void SceneBuilder::build(const SceneDescription& scene, const Models& models)
{
    completeModels(scene, models);
    for (const SceneDescription::Node& node : scene.nodes)
        makeNode(node);
    for (const SceneDescription::Link& described : scene.links)
        link(described);
    enterScene(scene);
}

void SceneBuilder::completeModels(const SceneDescription& scene, const Models& models)
{
    _models = models;
    _models.resize(scene.models.size());
    for (std::size_t i = 0; i < _models.size(); ++i) {
        if (_models[i])
            continue;
        const SceneDescription::Model& missing = scene.models[i];
        _models[i] = _library.placeholder({missing.path, missing.otherPath});
        _problems.add(Problem::MissingModel, missing.path);
    }
}

void SceneBuilder::makeNode(const SceneDescription::Node& described)
{
    std::unique_ptr<MO_Node> made = nodeOfKind(described.kind);
    MO_Node* node = made.get();
    const auto parent = static_cast<std::size_t>(described.parent);
    MO_GroupModule* holder = described.parent < 0 ? nullptr : _groups[parent];
    auto* group = dynamic_cast<MO_GroupModule*>(node);
    _nodes.push_back(node);
    // What is in something that is no group here goes where that would be.
    _groups.push_back(group ? group : holder);
    if (!node) {
        _problems.add(
            Problem::Node,
            tr("\"%1\" is of the unknown kind \"%2\"").arg(described.name, described.kind));
        return;
    }
    if (described.parent >= 0 && _nodes[parent] && _nodes[parent] != holder)
        _problems.add(Problem::Value,
                      tr("\"%1\" is in a node that holds none").arg(described.name));

    node->setInstanceName(described.name);
    node->setX(described.x);
    node->setY(described.y);
    addMissingPorts(*node, described.inputs, described.outputs);
    setAttributes(described, *node);
    fillElement(described, *node);
    if (holder)
        holder->insertNode(std::move(made));
    else
        _top.push_back(std::move(made));
}

void SceneBuilder::setAttributes(const SceneDescription::Node& described, MO_Node& node)
{
    for (const SceneDescription::Attribute& attribute : described.attributes) {
        AT_StringAttr* target = attribute.kind == QLatin1String("string")
                                    ? stringAttr(node, attribute.keyword)
                                    : nullptr;
        if (target)
            target->setLocalValue(attribute.value);
        else
            _problems.add(
                Problem::Value,
                tr("\"%1\" has no attribute \"%2\"").arg(described.name, attribute.keyword));
    }
}

void SceneBuilder::fillElement(const SceneDescription::Node& described, MO_Node& node)
{
    auto* element = dynamic_cast<MO_ElementModule*>(&node);
    if (!element) {
        for (std::size_t i = 0; i < described.exposures.size(); ++i)
            _problems.add(Problem::Exposure, tr("\"%1\" shows no models").arg(described.name));
        if (!described.settings.empty())
            _problems.add(Problem::Setting, tr("\"%1\" has no subnodes").arg(described.name));
        return;
    }
    element->setEditable(described.editable);
    for (const SceneDescription::Exposure& exposure : described.exposures)
        element->exposeModel(exposure.first, exposure.last,
                             _models[static_cast<std::size_t>(exposure.model)]);
    for (const auto& [frame, settings] : described.settings)
        element->setSeqMeta(frame, std::make_unique<AT_ModelData>(settings));
}

void SceneBuilder::link(const SceneDescription::Link& link)
{
    MO_Node* from = _nodes[static_cast<std::size_t>(link.fromNode)];
    MO_Node* to = _nodes[static_cast<std::size_t>(link.toNode)];
    MO_Port* output = from ? from->outPort(link.fromPort) : nullptr;
    MO_Port* input = to ? to->inPort(link.toPort) : nullptr;
    if (!output || !input || input->srcPort())
        _problems.add(Problem::Link, tr("a link has no end, or ends where another does"));
    else
        MO_Port::link(output, input);
}

void SceneBuilder::enterScene(const SceneDescription& scene)
{
    MO_GroupModule& root = *_session.openScene(scene.name).rootGroup();
    SC_SessionContext& context = _session.context();
    TUSceneChangeManager* changes = context.changeManager();
    context.currentFrameInterface()->setCurrentFrame(_session.currentScene(), scene.frame);
    {
        const SL_Selection::BatchSelectionModeScope scope(context.selection());
        for (std::unique_ptr<MO_Node>& node : _top)
            root.insertNode(std::move(node));
        for (MO_Node* node : _nodes)
            changes->emitNodeChanged(node);
        for (const SceneDescription::Selected& selected : scene.selection)
            select(selected);
    }
    changes->notify();
}

void SceneBuilder::select(const SceneDescription::Selected& selected)
{
    MO_Node* node = _nodes[static_cast<std::size_t>(selected.node)];
    if (!node || node->selected()) {
        _problems.add(Problem::Selection, tr("a selected node is not there, or selected twice"));
        return;
    }
    _session.context().selection()->add(node);
    const auto* element = dynamic_cast<const MO_ElementModule*>(node);
    const auto standsIn = [this](const MO_ElementModule::Exposure& exposure) {
        return _library.isPlaceholder(exposure.model);
    };
    for (const QString& key : selected.subnodes) {
        int id = 0;
        if (element && element->getSelIdForNodeKey(AT_ModelNodeKey(key), id))
            node->selInterface()->subSelect(id, true);
        else if (!element || std::ranges::none_of(element->exposures(), standsIn))
            _problems.add(Problem::Selection,
                          tr("\"%1\" has no subnode \"%2\"").arg(node->instanceName(), key));
    }
}
