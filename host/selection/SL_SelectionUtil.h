// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

class MO_Node;
class SLB_NodeInterface;
class SL_Selection;

/// Short forms of what is most often done to a selection. A null selection is ignored.
class HOST_EXPORT SL_SelectionUtil
{
public:
    /// The node selected first; null when there is none.
    static MO_Node* getFirstNode(const SL_Selection* selection);
    static void addToSelection(SL_Selection* selection, MO_Node* node);
    /// Takes the node of the interface, and with it the interface, out of the selection.
    static void removeFromSelection(SL_Selection* selection, SLB_NodeInterface* selected);
    static void clear(SL_Selection* selection);
};
