// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/TimelineCursor.h"

#include <QCoreApplication>

/// The edits of the selected exposure, each one undo step. What is not possible, such as any edit
/// of a locked element, does nothing. Afterwards the edited exposure is the selected one.
class ExposureCommands
{
    Q_DECLARE_TR_FUNCTIONS(ExposureCommands)

public:
    /// None is owned; all must outlive the commands.
    ExposureCommands(HostSession& session, const TimelineRows& rows, TimelineCursor& cursor);

    /// Whether an element is there in the row that may not be edited.
    bool isLocked(int row) const;
    /// Whether there is a selected exposure that may be edited.
    bool canEdit() const;
    bool canSplit() const;
    bool canExtend() const;
    bool canHold() const;
    bool canDuplicate() const;

    void clear();
    /// In two, at the current frame.
    void split();
    /// To all frames from its first one on.
    void extendToEnd();
    /// On the current frame, and no other.
    void hold();
    void duplicateAfter();
    void moveBy(int frames);
    void moveFirstBy(int frames);
    /// An open end has no frame to be moved from, so an earlier one begins at the current frame.
    void moveLastBy(int frames);

    /// Shows the model from the frame up to the next exposure of the row.
    void show(int row, int frame, const ExposureEdits::Model& model, const QString& title);
    /// Gives the row these exposures and selects the one at the frame. False when that changes
    /// nothing or is not allowed.
    bool apply(int row, const ExposureEdits::Exposures& exposures, const QString& name, int frame);

    static QString moveName() { return tr("Move Drawing"); }
    static QString trimName() { return tr("Trim Drawing"); }

private:
    const ExposureEdits::Exposures& exposures() const;
    void apply(const ExposureEdits::Exposures& exposures, const QString& name, int frame);

    HostSession& _session;
    const TimelineRows& _rows;
    TimelineCursor& _cursor;
};
