// SPDX-License-Identifier: MIT
#include "referencehost/models/SetSubnodeSettings.h"

#include <utility>

SetSubnodeSettings::SetSubnodeSettings(MO_ElementModule* element, int frame,
                                       std::vector<AT_ModelNodeKey> keys, Change change)
    : _element(element)
    , _frame(frame)
    , _keys(std::move(keys))
    , _change(std::move(change))
{
}

AT_ModelData SetSubnodeSettings::changed(const AT_ModelData* held,
                                         const std::vector<AT_ModelNodeKey>& keys,
                                         const Change& change)
{
    AT_ModelData settings = held ? *held : AT_ModelData();
    for (const AT_ModelNodeKey& key : keys) {
        const AT_ModelNodeData* existing = settings.nodeData(key);
        AT_ModelNodeData record = existing ? *existing : AT_ModelNodeData();
        const AT_ModelNodeData before = record;
        change(record);
        if (!(record == before))
            settings.setNodeData(key, record);
    }
    return settings;
}

bool SetSubnodeSettings::empty() const
{
    return !_element.get();
}

bool SetSubnodeSettings::execute()
{
    if (empty())
        return false;
    _other = std::make_unique<AT_ModelData>(changed(_element->seqMeta(_frame), _keys, _change));
    return swap();
}

bool SetSubnodeSettings::undo()
{
    return swap();
}

bool SetSubnodeSettings::redo()
{
    return swap();
}

bool SetSubnodeSettings::swap()
{
    if (empty())
        return false;
    _other = _element->setSeqMeta(_frame, std::move(_other));
    return true;
}
