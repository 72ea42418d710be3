// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <memory>
#include <vector>

class MO_Node;
class SLB_NodeInterface;
class TUSceneChangeManager;

/// The nodes that the user has selected, in the order of selecting. A node that dies leaves the
/// selection by itself. Changes are noted with the change manager; a batch scope tells them when
/// it ends, and outside a scope whoever makes the change does.
class HOST_EXPORT SL_Selection
{
public:
    /// While a scope is open changes are only collected. When the outermost one ends, each kind of
    /// change that was made is told once, also where the selection came back to what it had been.
    class HOST_EXPORT BatchSelectionModeScope
    {
    public:
        /// A null selection gives a scope that does nothing; any other must outlive the scope.
        explicit BatchSelectionModeScope(SL_Selection* selection);
        ~BatchSelectionModeScope();
        BatchSelectionModeScope(const BatchSelectionModeScope&) = delete;
        BatchSelectionModeScope& operator=(const BatchSelectionModeScope&) = delete;

    private:
        SL_Selection* _selection;
    };

    /// The change manager is not owned and must outlive the selection.
    explicit SL_Selection(TUSceneChangeManager* changeManager);
    ~SL_Selection();
    SL_Selection(const SL_Selection&) = delete;
    SL_Selection& operator=(const SL_Selection&) = delete;

    bool empty() const;
    /// The node selected first; null when there is none.
    MO_Node* firstNode() const;
    /// In the order of selecting; never null.
    std::vector<MO_Node*> nodes() const;

    /// A null node, or one that is in the selection, is ignored. A node that is in another
    /// selection leaves that one.
    void add(MO_Node* node);
    /// A null node, or one that is not in the selection, is ignored.
    void remove(MO_Node* node);
    void clear();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
