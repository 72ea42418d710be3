// SPDX-License-Identifier: MIT
#include "host/models/AT_ModelCmds.h"

#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/scene/SceneWalk.h"

#include <optional>
#include <utility>

namespace {

constexpr int FirstFrame = 1;

void exchangeRecord(AT_ModelData& settings, const AT_ModelNodeKey& key,
                    std::optional<AT_ModelNodeData>& held)
{
    std::optional<AT_ModelNodeData> previous;
    if (const AT_ModelNodeData* record = settings.nodeData(key))
        previous = *record;
    if (held)
        settings.setNodeData(key, *held);
    else
        settings.removeNodeData(key);
    held = previous;
}

} // namespace

namespace AT_ModelCmds {

/// The other state: what the records, and the settings as a whole, turn into when swapped. Settings
/// are known by their frame, because undoing their creation and redoing it makes new ones.
struct insertNodeDataCmd::Private
{
    UT_SharedWeakPtr<MO_ElementModule> element;
    int frame = FirstFrame;
    std::map<AT_ModelNodeKey, std::optional<AT_ModelNodeData>> records;
    bool settingsAbsent = false;

    AT_ModelData* settings() const
    {
        AT_ModelData* data = element->seqMeta(frame);
        int setAt = 0;
        const bool heldFromEarlier = !element->frameOfSeqMeta(data, setAt) || setAt != frame;
        return heldFromEarlier ? nullptr : data;
    }
};

insertNodeDataCmd::insertNodeDataCmd(MO_Node* element, AT_ModelData* data)
    : d(std::make_unique<Private>())
{
    auto* target = dynamic_cast<MO_ElementModule*>(element);
    if (target && (!data || target->frameOfSeqMeta(data, d->frame)))
        d->element = target;
}

insertNodeDataCmd::~insertNodeDataCmd() = default;

void insertNodeDataCmd::addData(const AT_ModelNodeKey& key, const AT_ModelNodeData& data)
{
    d->records.insert_or_assign(key, data);
}

bool insertNodeDataCmd::empty() const
{
    return d->records.empty() || d->element.isNull();
}

bool insertNodeDataCmd::execute()
{
    if (empty())
        return false;
    const bool wereAbsent = !d->settings();
    if (wereAbsent)
        d->element->setSeqMeta(d->frame, std::make_unique<AT_ModelData>());

    AT_ModelData& settings = *d->settings();
    for (auto& [key, held] : d->records)
        exchangeRecord(settings, key, held);

    // Records that others put there meanwhile outweigh an exact return.
    if (d->settingsAbsent && settings.records().empty())
        d->element->setSeqMeta(d->frame, nullptr);
    d->settingsAbsent = wereAbsent;
    if (TUSceneChangeManager* changes = changeManagerOf(*d->element.get()))
        changes->emitNodeChanged(d->element.get());
    return true;
}

} // namespace AT_ModelCmds
