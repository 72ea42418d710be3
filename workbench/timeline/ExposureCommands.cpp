// SPDX-License-Identifier: MIT
#include "workbench/timeline/ExposureCommands.h"

#include "host/commands/CO_CommandManager.h"
#include "host/scene/SC_SessionContext.h"
#include "referencehost/commands/SetExposures.h"
#include "referencehost/session/HostSession.h"
#include "workbench/timeline/SceneFrame.h"

#include <algorithm>

using ExposureEdits::Exposure;
using ExposureEdits::Exposures;

namespace {

int sum(int frame, int frames)
{
    return static_cast<int>(
        std::clamp<long long>(static_cast<long long>(frame) + frames, 0, ExposureEdits::openEnd));
}

} // namespace

ExposureCommands::ExposureCommands(HostSession& session, const TimelineRows& rows,
                                   TimelineCursor& cursor)
    : _session(session)
    , _rows(rows)
    , _cursor(cursor)
{
}

bool ExposureCommands::isLocked(int row) const
{
    const MO_ElementModule* element = _rows.element(row);
    return element && !element->isEditable();
}

bool ExposureCommands::canEdit() const
{
    return _cursor.selected() && !isLocked(_cursor.row());
}

bool ExposureCommands::canSplit() const
{
    const int frame = SceneFrame::current(_session);
    const Exposure* selected = _cursor.selected();
    return canEdit() && selected->firstFrame < frame && frame <= selected->lastFrame;
}

bool ExposureCommands::canExtend() const
{
    return canEdit() && !ExposureEdits::isOpen(*_cursor.selected());
}

bool ExposureCommands::canHold() const
{
    const int frame = SceneFrame::current(_session);
    const Exposure* selected = _cursor.selected();
    return canEdit() && selected->firstFrame <= frame && frame <= selected->lastFrame &&
           selected->firstFrame != selected->lastFrame;
}

bool ExposureCommands::canDuplicate() const
{
    return canExtend();
}

void ExposureCommands::clear()
{
    if (canEdit())
        apply(ExposureEdits::cleared(exposures(), _cursor.exposure()), tr("Clear Drawing"),
              _cursor.selected()->firstFrame);
}

void ExposureCommands::split()
{
    const int frame = SceneFrame::current(_session);
    if (canSplit())
        apply(ExposureEdits::split(exposures(), _cursor.exposure(), frame), tr("Split Drawing"),
              frame);
}

void ExposureCommands::extendToEnd()
{
    if (canExtend())
        apply(ExposureEdits::withLast(exposures(), _cursor.exposure(), ExposureEdits::openEnd),
              tr("Extend Drawing to End"), _cursor.selected()->firstFrame);
}

void ExposureCommands::hold()
{
    if (!canHold())
        return;
    const int frame = SceneFrame::current(_session);
    const int index = _cursor.exposure();
    const Exposures begun = ExposureEdits::withFirst(exposures(), index, frame);
    apply(ExposureEdits::withLast(begun, index, frame), tr("Hold Drawing on One Frame"), frame);
}

void ExposureCommands::duplicateAfter()
{
    if (canDuplicate())
        apply(ExposureEdits::duplicatedAfter(exposures(), _cursor.exposure()),
              tr("Duplicate Drawing"), _cursor.selected()->lastFrame + 1);
}

void ExposureCommands::moveBy(int frames)
{
    if (!canEdit())
        return;
    const Exposure& selected = *_cursor.selected();
    apply(ExposureEdits::moved(exposures(), _cursor.exposure(), frames), moveName(),
          selected.firstFrame + ExposureEdits::reach(selected, frames));
}

void ExposureCommands::moveFirstBy(int frames)
{
    if (!canEdit())
        return;
    const Exposure& selected = *_cursor.selected();
    apply(ExposureEdits::withFirst(exposures(), _cursor.exposure(),
                                   sum(std::max(selected.firstFrame, 1), frames)),
          trimName(), selected.lastFrame);
}

void ExposureCommands::moveLastBy(int frames)
{
    if (!canEdit())
        return;
    const Exposure& selected = *_cursor.selected();
    const bool open = ExposureEdits::isOpen(selected);
    if (open && frames > 0)
        return;
    const int last = open ? SceneFrame::current(_session) : sum(selected.lastFrame, frames);
    apply(ExposureEdits::withLast(exposures(), _cursor.exposure(), last), trimName(),
          selected.firstFrame);
}

void ExposureCommands::show(int row, int frame, const ExposureEdits::Model& model,
                            const QString& title)
{
    const TimelineRows::Row* shown = _rows.row(row);
    if (!shown || !model || ExposureEdits::indexAt(shown->exposures, frame) >= 0)
        return;
    const int last = ExposureEdits::lastEmptyFrame(shown->exposures, frame);
    apply(row, ExposureEdits::exposed(shown->exposures, frame, last, model),
          tr("Show \"%1\"").arg(title), frame);
}

bool ExposureCommands::apply(int row, const Exposures& exposures, const QString& name, int frame)
{
    MO_ElementModule* element = _rows.element(row);
    if (!element || !element->isEditable())
        return false;
    const bool changed =
        _session.context().commandManager()->execute(new SetExposures(element, exposures), name);
    if (changed && _rows.element(_cursor.row()) == element)
        _cursor.selectAt(frame);
    return changed;
}

const Exposures& ExposureCommands::exposures() const
{
    return _rows.row(_cursor.row())->exposures;
}

void ExposureCommands::apply(const Exposures& exposures, const QString& name, int frame)
{
    apply(_cursor.row(), exposures, name, frame);
}
