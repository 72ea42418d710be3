// SPDX-License-Identifier: MIT
#pragma once

class TUSceneChangeManager;

/// Passes on what changed in a selection. Outside a batch every change is noted with the change
/// manager as it comes. A batch holds the notes back, and at its end tells each kind of change that
/// there was, also where the selection came back to what it had been: whoever cleared and set it
/// again relies on hearing of it. Part of a selection.
class SelectionChanges
{
public:
    /// The change manager is not owned and must outlive this object.
    explicit SelectionChanges(TUSceneChangeManager* changeManager);

    void selectionChanged();
    void subSelectionChanged();

    void beginBatch();
    void endBatch();

private:
    TUSceneChangeManager* _changeManager;
    int _openBatches = 0;
    bool _selectionChanged = false;
    bool _subSelectionChanged = false;
};
