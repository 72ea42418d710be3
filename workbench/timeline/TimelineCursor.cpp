// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineCursor.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"
#include "workbench/timeline/SceneFrame.h"

#include <algorithm>

TimelineCursor::TimelineCursor(HostSession& session, const TimelineRows& rows, QObject* parent)
    : QObject(parent)
    , _session(session)
    , _rows(rows)
{
    connect(session.context().changeManager(), &TUSceneChangeManager::selectionChanged, this,
            &TimelineCursor::followSelection);
    connect(&rows, &TimelineRows::changed, this, &TimelineCursor::followRows);
    followSelection();
}

int TimelineCursor::exposure() const
{
    const TimelineRows::Row* current = currentRow();
    return current && _frame ? ExposureEdits::indexAt(current->exposures, *_frame) : -1;
}

const ExposureEdits::Exposure* TimelineCursor::selected() const
{
    const int index = exposure();
    return index >= 0 ? &currentRow()->exposures[index] : nullptr;
}

void TimelineCursor::setCurrent(int row)
{
    if (row != this->row())
        _frame.reset();
    _element = UT_SharedWeakPtr<MO_ElementModule>(_rows.element(row));
}

void TimelineCursor::goToRow(int row)
{
    MO_ElementModule* element = _rows.element(row);
    if (!element)
        return;
    setCurrent(row);
    _frame.reset();
    {
        SL_Selection* selection = _session.context().selection();
        const SL_Selection::BatchSelectionModeScope scope(selection);
        // What stays selected keeps its sub-selection, so only the differences are made.
        for (MO_Node* node : selection->nodes()) {
            if (node != element)
                selection->remove(node);
        }
        selection->add(element);
    }
    remember();
    emit changed();
}

void TimelineCursor::toggleRow(int row)
{
    MO_ElementModule* element = _rows.element(row);
    if (!element)
        return;
    setCurrent(row);
    {
        SL_Selection* selection = _session.context().selection();
        const SL_Selection::BatchSelectionModeScope scope(selection);
        if (element->selected())
            selection->remove(element);
        else
            selection->add(element);
    }
    remember();
    emit changed();
}

void TimelineCursor::stepRow(int rows)
{
    const int current = row();
    if (_rows.count() > 0)
        goToRow(current < 0 ? 0 : std::clamp(current + rows, 0, _rows.count() - 1));
}

void TimelineCursor::selectAt(int frame)
{
    const TimelineRows::Row* current = currentRow();
    _frame.reset();
    if (current && ExposureEdits::indexAt(current->exposures, frame) >= 0)
        _frame = frame;
    remember();
    emit changed();
}

void TimelineCursor::stepExposure(int direction)
{
    const TimelineRows::Row* current = currentRow();
    if (!current)
        return;
    int index = exposure();
    if (index >= 0) {
        index += direction;
    } else {
        const int frame = SceneFrame::current(_session);
        const bool within = ExposureEdits::indexAt(current->exposures, frame) >= 0;
        index = ExposureEdits::firstReaching(current->exposures, frame) -
                (direction < 0 && !within ? 1 : 0);
    }
    if (index >= 0 && index < static_cast<int>(current->exposures.size()))
        selectAt(current->exposures[index].firstFrame);
}

void TimelineCursor::followSelection()
{
    if (row() < 0 || !_element->selected()) {
        for (const MO_Node* node : _session.context().selection()->nodes()) {
            if (const int selectedRow = _rows.rowOf(node); selectedRow >= 0)
                setCurrent(selectedRow);
        }
    }
    remember();
    emit changed();
}

void TimelineCursor::followRows()
{
    if (exposure() < 0)
        _frame = frameOfSelected();
    followSelection();
}

/// A frame of what the selected exposure has become, when it does not cover its frame any more: an
/// undo may have moved it back. Nothing when it is gone.
std::optional<int> TimelineCursor::frameOfSelected() const
{
    const TimelineRows::Row* current = currentRow();
    if (!current || !_frame)
        return std::nullopt;
    const ExposureEdits::Exposures& all = current->exposures;
    const int count = static_cast<int>(all.size());
    for (int i = ExposureEdits::firstReaching(all, _first); i < count && all[i].firstFrame <= _last;
         ++i) {
        if (all[i].model.get() == _model)
            return all[i].firstFrame;
    }
    return std::nullopt;
}

void TimelineCursor::remember()
{
    if (const ExposureEdits::Exposure* shown = selected()) {
        _first = shown->firstFrame;
        _last = shown->lastFrame;
        _model = shown->model.get();
    }
}
