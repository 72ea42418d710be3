// SPDX-License-Identifier: MIT
#pragma once

#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "referencehost/selection/OrderedIds.h"

class MO_ElementModule;
struct AT_ModelNodeData;
class SelectionChanges;

/// A selected 3D model element with the subnodes that are selected in it. Owned by the selection,
/// whose changes it reports.
class SelectedElement : public SLB_NodeWith3DSubNode
{
public:
    /// Both references must outlive this object, save that a dying element may be taken out last.
    SelectedElement(MO_ElementModule& element, unsigned int orderId, SelectionChanges& changes);

    unsigned int orderId() const override;
    MO_Node* selectable() const override;

    bool hasSubSelection() const override;
    bool isSubSelected(int id) const override;
    const std::vector<int>& subSelectedIds() const override;
    void subSelect(int id, bool additive) override;
    void subDeselect(int id) override;
    void clearSubSelection() override;

    int subNodeId(const AT_ModelNodeKey& key) const override;
    bool subNodeKey(int id, AT_ModelNodeKey& key) const override;
    bool subNodeVisibility(double frame, int id, std::uint32_t& state) const override;
    bool subNodeLocalVisibility(double frame, int id, std::uint32_t& state) const override;
    bool subNodeTransformation(double frame, int id, std::uint32_t& state) const override;

private:
    /// The settings of the subnode, its record or what holds without one; false when the id is
    /// unknown.
    bool settingsOf(double frame, int id, AT_ModelNodeData& settings) const;

    MO_ElementModule& _element;
    // While the element dies it is only a node any more, and must not be asked to become one.
    MO_Node* _node;
    unsigned int _orderId;
    SelectionChanges& _changes;
    OrderedIds _ids;
};
