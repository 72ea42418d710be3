// SPDX-License-Identifier: MIT
#include "referencehost/selection/SelectionChanges.h"

#include "host/scene/TUSceneChangeManager.h"

#include <utility>

SelectionChanges::SelectionChanges(TUSceneChangeManager* changeManager)
    : _changeManager(changeManager)
{
}

void SelectionChanges::selectionChanged()
{
    if (_openBatches > 0)
        _selectionChanged = true;
    else
        _changeManager->emitSelectionChanged();
}

void SelectionChanges::subSelectionChanged()
{
    if (_openBatches > 0)
        _subSelectionChanged = true;
    else
        _changeManager->emitSubSelectionChanged();
}

void SelectionChanges::beginBatch()
{
    ++_openBatches;
}

void SelectionChanges::endBatch()
{
    if (--_openBatches > 0)
        return;
    const bool otherNodes = std::exchange(_selectionChanged, false);
    const bool otherSubSelection = std::exchange(_subSelectionChanged, false);
    if (otherNodes)
        _changeManager->emitSelectionChanged();
    if (otherSubSelection)
        _changeManager->emitSubSelectionChanged();
    if (otherNodes || otherSubSelection)
        _changeManager->notify();
}
