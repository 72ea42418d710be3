// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/TimelineRows.h"

#include <optional>

/// Where the user is on the time line: a current row, and in it perhaps a selected exposure. The
/// current row's element is selected in the host, and an element that gets selected there brings
/// the current row with it. The exposure is known by its frames, so it is found again after edits.
class TimelineCursor : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned; both must outlive the cursor.
    TimelineCursor(HostSession& session, const TimelineRows& rows, QObject* parent);

    /// -1 when there is no current row.
    int row() const { return _rows.rowOf(_element.get()); }
    /// The index of the selected exposure in its row; -1 when none is selected.
    int exposure() const;
    /// Null when none is selected; valid until the rows change.
    const ExposureEdits::Exposure* selected() const;

    /// Makes the row current and its element the only selected node; a row that does not exist
    /// changes nothing. No exposure is selected then.
    void goToRow(int row);
    /// Adds the row's element to the selected nodes, or takes it away.
    void toggleRow(int row);
    /// Goes by as many rows, down for a positive number, and stays within the rows.
    void stepRow(int rows);
    /// Selects the exposure of the current row that covers the frame, or nothing.
    void selectAt(int frame);
    /// Selects the next exposure of the current row, or the previous one for -1; without a
    /// selected one, the nearest to the current frame on that side.
    void stepExposure(int direction);

signals:
    void changed();

private:
    const TimelineRows::Row* currentRow() const { return _rows.row(row()); }
    void setCurrent(int row);
    void followSelection();
    void followRows();
    std::optional<int> frameOfSelected() const;
    void remember();

    HostSession& _session;
    const TimelineRows& _rows;
    UT_SharedWeakPtr<MO_ElementModule> _element;
    /// A frame of the selected exposure.
    std::optional<int> _frame;
    /// What it was when that was last told. The model is only compared, never used.
    int _first = 0;
    int _last = 0;
    const TD_CelVq3d* _model = nullptr;
};
