// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneCapture.h"

#include "host/attributes/AT_StringAttr.h"
#include "host/factories/MO_ModuleFactory.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_KeyNodeFinders.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_ModuleVisitor.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"
#include "workbench/scenefile/ModelLibrary.h"

#include <QHash>
#include <algorithm>

namespace {

class AllNodes : public MO_ModuleVisitor
{
public:
    using MO_ModuleVisitor::visit;
    void visit(MO_Module* module) override
    {
        if (auto* node = dynamic_cast<MO_Node*>(module))
            nodes.push_back(node);
    }

    std::vector<MO_Node*> nodes;
};

/// How many ports a node has when it is made, by kind.
struct BornPorts
{
    int inputs = 0;
    int outputs = 0;
};

class Capture
{
public:
    Capture(HostSession& session, const ModelLibrary& library)
        : _session(session)
        , _library(library)
    {
    }

    SceneDescription run()
    {
        const TUScene* scene = _session.currentScene();
        if (!scene)
            return {};
        AllNodes all;
        scene->accept(all);
        _description.name = scene->name();
        _description.frame = _session.context().currentFrameInterface()->currentFrame(scene);
        for (std::size_t i = 0; i < all.nodes.size(); ++i)
            _indices.insert(all.nodes[i], static_cast<int>(i));
        for (MO_Node* node : all.nodes)
            addNode(*node);
        for (const MO_Node* node : all.nodes)
            addLinks(*node);
        for (const MO_Node* node : _session.context().selection()->nodes())
            addSelected(*node);
        return _description;
    }

private:
    void addNode(MO_Node& node)
    {
        SceneDescription::Node described;
        described.parent = _indices.value(node.parentGroup(), -1);
        described.kind = node.typeName();
        described.name = node.instanceName();
        described.x = node.x();
        described.y = node.y();
        const BornPorts born = bornPorts(described.kind);
        described.inputs = node.nInPorts() > born.inputs ? node.nInPorts() : 0;
        described.outputs = node.nOutPorts() > born.outputs ? node.nOutPorts() : 0;
        for (auto it = node.attrsBegin(); it != node.attrsEnd(); ++it) {
            if (const auto* text = dynamic_cast<const AT_StringAttr*>(*it))
                described.attributes.push_back(
                    {QStringLiteral("string"), text->meta().keyword(), text->localValue()});
        }
        if (const auto* element = dynamic_cast<const MO_ElementModule*>(&node))
            addElement(*element, described);
        _description.nodes.push_back(std::move(described));
    }

    void addElement(const MO_ElementModule& element, SceneDescription::Node& described)
    {
        described.editable = element.isEditable();
        for (const MO_ElementModule::Exposure& exposure : element.exposures())
            described.exposures.push_back(
                {exposure.firstFrame, exposure.lastFrame, modelIndex(exposure.model)});
        for (const int frame : element.seqMetaFrames())
            described.settings.emplace(frame, *element.seqMeta(frame));
    }

    int modelIndex(const CEL_SharedPtr<TD_CelVq3d>& model)
    {
        if (const auto known = _models.find(model.get()); known != _models.end())
            return *known;
        const ModelLibrary::Origin origin = _library.originOf(model);
        // Models of one file are one model once the scene is opened again.
        const int next = static_cast<int>(_description.models.size());
        const int index = origin.path.isEmpty() ? next : _files.value(origin.path, next);
        if (index == next)
            _description.models.push_back({origin.path, origin.otherPath});
        _models.insert(model.get(), index);
        _files.insert(origin.path, index);
        return index;
    }

    void addLinks(const MO_Node& node)
    {
        for (int output = 0; output < node.nOutPorts(); ++output) {
            for (const MO_Port* input : node.outPort(output)->dstPorts()) {
                const MO_Node* receiver = input->node();
                // Nodes that were taken out keep their links for when they come back.
                if (!_indices.contains(receiver))
                    continue;
                int port = 0;
                while (receiver->inPort(port) != input)
                    ++port;
                _description.links.push_back(
                    {_indices.value(&node), output, _indices.value(receiver), port});
            }
        }
    }

    void addSelected(const MO_Node& node)
    {
        if (!_indices.contains(&node))
            return;
        SceneDescription::Selected selected{_indices.value(&node), {}};
        if (const auto* element = dynamic_cast<const MO_ElementModule*>(&node)) {
            for (const int id : node.selInterface()->subSelectedIds()) {
                // An element knows keys of models that it shows no more.
                AT_ModelNodeKey key;
                if (element->getNodeKeyForSelId(id, key) && shows(*element, key))
                    selected.subnodes += key.name();
            }
        }
        _description.selection.push_back(std::move(selected));
    }

    static bool shows(const MO_ElementModule& element, const AT_ModelNodeKey& key)
    {
        return std::ranges::any_of(element.exposures(), [&key](const auto& exposure) {
            return TD_FindKeyNode()(exposure.model->rootNodePtr(), key) != osg::NullFC;
        });
    }

    BornPorts bornPorts(const QString& kind)
    {
        const auto known = _born.constFind(kind);
        if (known != _born.constEnd())
            return *known;
        const std::unique_ptr<MO_Module> module = MO_ModuleFactorySingleton().create(kind);
        const auto* node = dynamic_cast<const MO_Node*>(module.get());
        const BornPorts born = node ? BornPorts{node->nInPorts(), node->nOutPorts()} : BornPorts{};
        _born.insert(kind, born);
        return born;
    }

    HostSession& _session;
    const ModelLibrary& _library;
    SceneDescription _description;
    QHash<const MO_Node*, int> _indices;
    QHash<const TD_CelVq3d*, int> _models;
    QHash<QString, int> _files;
    QHash<QString, BornPorts> _born;
};

} // namespace

SceneDescription capturedScene(HostSession& session, const ModelLibrary& library)
{
    return Capture(session, library).run();
}
