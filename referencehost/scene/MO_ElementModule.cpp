// SPDX-License-Identifier: MIT
#include "host/scene/MO_ElementModule.h"

#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ModuleVisitor.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/scene/Drawings.h"
#include "referencehost/scene/SceneWalk.h"
#include "referencehost/scene/SubnodeIds.h"
#include "referencehost/scene/WholeFrame.h"

#include <algorithm>
#include <utility>

namespace {

void noteChange(MO_ElementModule& element)
{
    if (TUSceneChangeManager* changes = changeManagerOf(element))
        changes->emitNodeChanged(&element);
}

} // namespace

struct MO_ElementModule::Private
{
    bool editable = true;
    Drawings drawings;
    SubnodeIds subnodeIds;
    /// By the frame from which they hold.
    std::map<int, std::unique_ptr<AT_ModelData>> settings;
};

MO_ElementModule::MO_ElementModule(const QString& instanceName)
    : MO_Node(instanceName)
    , e(std::make_unique<Private>())
{
    addPort(MO_Port::eInput);
    addPort(MO_Port::eOutput);
}

MO_ElementModule::~MO_ElementModule() = default;

QString MO_ElementModule::typeName() const
{
    return QStringLiteral("ELEMENT");
}

void MO_ElementModule::accept(MO_AbstractModuleVisitor& visitor)
{
    visitor.visit(this);
}

bool MO_ElementModule::isEditable() const
{
    return e->editable;
}

void MO_ElementModule::setEditable(bool editable)
{
    if (std::exchange(e->editable, editable) != editable)
        noteChange(*this);
}

void MO_ElementModule::exposeModel(int firstFrame, int lastFrame,
                                   const CEL_SharedPtr<TD_CelVq3d>& model)
{
    if (!e->drawings.expose(firstFrame, lastFrame, model))
        return;
    if (model)
        e->subnodeIds.add(model->rootNodePtr());
    noteChange(*this);
}

CEL_SharedPtr<TD_CelVq3d> MO_ElementModule::modelAt(double frame) const
{
    const std::optional<int> whole = wholeFrame(frame);
    return whole ? e->drawings.at(*whole) : nullptr;
}

std::vector<MO_ElementModule::Exposure> MO_ElementModule::exposures() const
{
    return e->drawings.exposures();
}

bool MO_ElementModule::getSelIdForNodeKey(const AT_ModelNodeKey& key, int& id) const
{
    return e->subnodeIds.idOf(key, id);
}

bool MO_ElementModule::getNodeKeyForSelId(int id, AT_ModelNodeKey& key) const
{
    return e->subnodeIds.keyOf(id, key);
}

AT_ModelData* MO_ElementModule::seqMeta(double frame) const
{
    const std::optional<int> whole = wholeFrame(frame);
    if (!whole)
        return nullptr;
    const auto after = e->settings.upper_bound(*whole);
    return after == e->settings.begin() ? nullptr : std::prev(after)->second.get();
}

bool MO_ElementModule::frameOfSeqMeta(const AT_ModelData* data, int& frame) const
{
    const auto it = std::ranges::find_if(
        e->settings, [data](const auto& entry) { return entry.second.get() == data; });
    if (it == e->settings.end())
        return false;
    frame = it->first;
    return true;
}

std::vector<int> MO_ElementModule::seqMetaFrames() const
{
    std::vector<int> frames;
    for (const auto& [frame, data] : e->settings)
        frames.push_back(frame);
    return frames;
}

std::unique_ptr<AT_ModelData> MO_ElementModule::setSeqMeta(int frame,
                                                           std::unique_ptr<AT_ModelData> data)
{
    std::unique_ptr<AT_ModelData> previous;
    if (const auto it = e->settings.find(frame); it != e->settings.end()) {
        previous = std::move(it->second);
        e->settings.erase(it);
    }
    const bool changed = data || previous;
    if (data)
        e->settings.emplace(frame, std::move(data));
    if (changed)
        noteChange(*this);
    return previous;
}
