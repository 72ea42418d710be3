// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/ExposureEdits.h"

#include "host/scene/TUNodeSet.h"

#include <QHash>
#include <QObject>
#include <QString>

class HostSession;

/// What there is to show on the time line: a row for each element of the scene, in the order of
/// the scene, with its name and exposures. It follows the host; the elements are the scene's.
class TimelineRows : public QObject
{
    Q_OBJECT

public:
    struct Row
    {
        /// Null when the element is gone and the host has not told yet.
        UT_SharedWeakPtr<MO_ElementModule> element;
        QString name;
        ExposureEdits::Exposures exposures;
    };

    /// The session is not owned and must outlive the rows.
    TimelineRows(HostSession& session, QObject* parent);

    int count() const { return static_cast<int>(_rows.size()); }
    /// Null when there is no such row.
    const Row* row(int index) const;
    /// The element of the row; null when there is no such row, or the element is gone.
    MO_ElementModule* element(int index) const;
    /// -1 when the node is null or has no row.
    int rowOf(const MO_Node* node) const;
    /// The last frame at which something ends or begins, in any row; at least 1.
    int lastFrame() const { return _lastFrame; }

signals:
    void changed();

private:
    void rebuild();
    void readExposures(const TUNodeSet& nodes);
    void readNames(const TUNodeSet& nodes);
    void findLastFrame();

    HostSession& _session;
    std::vector<Row> _rows;
    QHash<const MO_Node*, int> _rowOfNode;
    int _lastFrame = 1;
};
