// SPDX-License-Identifier: MIT
#include "host/selection/SL_SelectionUtil.h"

#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

MO_Node* SL_SelectionUtil::getFirstNode(const SL_Selection* selection)
{
    return selection ? selection->firstNode() : nullptr;
}

void SL_SelectionUtil::addToSelection(SL_Selection* selection, MO_Node* node)
{
    if (selection)
        selection->add(node);
}

void SL_SelectionUtil::removeFromSelection(SL_Selection* selection, SLB_NodeInterface* selected)
{
    if (selection && selected)
        selection->remove(selected->selectable());
}

void SL_SelectionUtil::clear(SL_Selection* selection)
{
    if (selection)
        selection->clear();
}
