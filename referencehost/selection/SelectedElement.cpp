// SPDX-License-Identifier: MIT
#include "referencehost/selection/SelectedElement.h"

#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "referencehost/selection/SelectionChanges.h"

SelectedElement::SelectedElement(MO_ElementModule& element, unsigned int orderId,
                                 SelectionChanges& changes)
    : _element(element)
    , _node(&element)
    , _orderId(orderId)
    , _changes(changes)
{
}

unsigned int SelectedElement::orderId() const
{
    return _orderId;
}

MO_Node* SelectedElement::selectable() const
{
    return _node;
}

bool SelectedElement::hasSubSelection() const
{
    return !_ids.empty();
}

bool SelectedElement::isSubSelected(int id) const
{
    return _ids.contains(id);
}

const std::vector<int>& SelectedElement::subSelectedIds() const
{
    return _ids.list();
}

void SelectedElement::subSelect(int id, bool additive)
{
    AT_ModelNodeKey key;
    if (!subNodeKey(id, key))
        return;
    const bool isThere = _ids.contains(id);
    if (isThere && (additive || _ids.list().size() == 1))
        return;
    if (!additive)
        _ids.clear();
    _ids.add(id);
    _changes.subSelectionChanged();
}

void SelectedElement::subDeselect(int id)
{
    if (!_ids.contains(id))
        return;
    _ids.remove(id);
    _changes.subSelectionChanged();
}

void SelectedElement::clearSubSelection()
{
    if (_ids.empty())
        return;
    _ids.clear();
    _changes.subSelectionChanged();
}

int SelectedElement::subNodeId(const AT_ModelNodeKey& key) const
{
    int id = -1;
    _element.getSelIdForNodeKey(key, id);
    return id;
}

bool SelectedElement::subNodeKey(int id, AT_ModelNodeKey& key) const
{
    return _element.getNodeKeyForSelId(id, key);
}

bool SelectedElement::settingsOf(double frame, int id, AT_ModelNodeData& settings) const
{
    AT_ModelNodeKey key;
    if (!subNodeKey(id, key))
        return false;
    const AT_ModelData* data = _element.seqMeta(frame);
    const AT_ModelNodeData* record = data ? data->nodeData(key) : nullptr;
    settings = record ? *record : AT_ModelNodeData();
    return true;
}

bool SelectedElement::subNodeVisibility(double frame, int id, std::uint32_t& state) const
{
    AT_ModelNodeData settings;
    if (!settingsOf(frame, id, settings))
        return false;
    state = settings.visible ? 0 : 1;
    return true;
}

bool SelectedElement::subNodeLocalVisibility(double frame, int id, std::uint32_t& state) const
{
    AT_ModelNodeData settings;
    if (!settingsOf(frame, id, settings))
        return false;
    state = settings.localVisible ? 0 : 1;
    return true;
}

bool SelectedElement::subNodeTransformation(double frame, int id, std::uint32_t& state) const
{
    AT_ModelNodeData settings;
    if (!settingsOf(frame, id, settings))
        return false;
    state = settings.hasTransformation ? 1 : 0;
    return true;
}
