// SPDX-License-Identifier: MIT
#include "host/selection/SL_Selection.h"

#include "host/scene/MO_ElementModule.h"
#include "referencehost/scene/MO_NodePrivate.h"
#include "referencehost/selection/SelectedElement.h"
#include "referencehost/selection/SelectedNode.h"
#include "referencehost/selection/SelectionChanges.h"
#include "referencehost/selection/SelectionMembers.h"

struct SL_Selection::Private
{
    explicit Private(TUSceneChangeManager* changeManager)
        : changes(changeManager)
    {
    }

    static void unlink(MO_Node* node)
    {
        node->d->selection = nullptr;
        node->d->selInterface = nullptr;
    }

    SelectionMembers members;
    SelectionChanges changes;
    unsigned int nextOrderId = 1;
};

SL_Selection::BatchSelectionModeScope::BatchSelectionModeScope(SL_Selection* selection)
    : _selection(selection)
{
    if (_selection)
        _selection->d->changes.beginBatch();
}

SL_Selection::BatchSelectionModeScope::~BatchSelectionModeScope()
{
    if (_selection)
        _selection->d->changes.endBatch();
}

SL_Selection::SL_Selection(TUSceneChangeManager* changeManager)
    : d(std::make_unique<Private>(changeManager))
{
}

SL_Selection::~SL_Selection()
{
    for (const auto& [orderId, selected] : d->members)
        Private::unlink(selected->selectable());
}

bool SL_Selection::empty() const
{
    return d->members.empty();
}

MO_Node* SL_Selection::firstNode() const
{
    return d->members.empty() ? nullptr : d->members.begin()->second->selectable();
}

std::vector<MO_Node*> SL_Selection::nodes() const
{
    std::vector<MO_Node*> selectedNodes;
    selectedNodes.reserve(d->members.size());
    for (const auto& [orderId, selected] : d->members)
        selectedNodes.push_back(selected->selectable());
    return selectedNodes;
}

void SL_Selection::add(MO_Node* node)
{
    if (!node || node->d->selection == this)
        return;
    if (node->d->selection)
        node->d->selection->remove(node);

    const unsigned int orderId = d->nextOrderId++;
    std::unique_ptr<SLB_NodeInterface> selected;
    if (auto* element = dynamic_cast<MO_ElementModule*>(node))
        selected = std::make_unique<SelectedElement>(*element, orderId, d->changes);
    else
        selected = std::make_unique<SelectedNode>(node, orderId);
    node->d->selection = this;
    node->d->selInterface = selected.get();
    d->members.emplace_hint(d->members.end(), orderId, std::move(selected));
    d->changes.selectionChanged();
}

void SL_Selection::remove(MO_Node* node)
{
    if (!node || node->d->selection != this)
        return;
    const SLB_NodeInterface* selected = node->d->selInterface;
    const bool hadSubSelection = selected->hasSubSelection();
    Private::unlink(node);
    d->members.erase(selected->orderId());
    d->changes.selectionChanged();
    if (hadSubSelection)
        d->changes.subSelectionChanged();
}

void SL_Selection::clear()
{
    if (d->members.empty())
        return;
    bool hadSubSelection = false;
    for (const auto& [orderId, selected] : d->members) {
        hadSubSelection = hadSubSelection || selected->hasSubSelection();
        Private::unlink(selected->selectable());
    }
    d->members.clear();
    d->changes.selectionChanged();
    if (hadSubSelection)
        d->changes.subSelectionChanged();
}
