// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineRows.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/scene/SceneElements.h"
#include "referencehost/session/HostSession.h"

#include <algorithm>

TimelineRows::TimelineRows(HostSession& session, QObject* parent)
    : QObject(parent)
    , _session(session)
{
    const TUSceneChangeManager* changes = session.context().changeManager();
    using Changes = TUSceneChangeManager;
    connect(changes, &Changes::networkChanged, this, &TimelineRows::rebuild);
    connect(changes, &Changes::childrenOrderingChanged, this, &TimelineRows::rebuild);
    connect(changes, &Changes::currentSceneChanged, this, &TimelineRows::rebuild);
    connect(changes, &Changes::nodesChanged, this, &TimelineRows::readExposures);
    connect(changes, &Changes::nodeInstanceNamesChanged, this, &TimelineRows::readNames);
    rebuild();
}

const TimelineRows::Row* TimelineRows::row(int index) const
{
    return index >= 0 && index < count() ? &_rows[index] : nullptr;
}

MO_ElementModule* TimelineRows::element(int index) const
{
    const Row* found = row(index);
    return found ? found->element.get() : nullptr;
}

int TimelineRows::rowOf(const MO_Node* node) const
{
    const int index = _rowOfNode.value(node, -1);
    // A node that is new may have the address of one that is gone.
    return element(index) == node ? index : -1;
}

void TimelineRows::rebuild()
{
    _rows.clear();
    _rowOfNode.clear();
    for (MO_ElementModule* element : elementsOf(_session.currentScene())) {
        _rowOfNode.insert(element, count());
        _rows.push_back({element, element->displayName(), element->exposures()});
    }
    findLastFrame();
    emit changed();
}

void TimelineRows::readExposures(const TUNodeSet& nodes)
{
    bool any = false;
    for (const UT_SharedWeakPtr<MO_Node>& node : nodes) {
        if (const int index = node ? rowOf(node.get()) : -1; index >= 0) {
            _rows[index].exposures = _rows[index].element->exposures();
            any = true;
        }
    }
    if (any) {
        findLastFrame();
        emit changed();
    }
}

void TimelineRows::readNames(const TUNodeSet& nodes)
{
    for (const UT_SharedWeakPtr<MO_Node>& node : nodes) {
        if (const int index = node ? rowOf(node.get()) : -1; index >= 0)
            _rows[index].name = node->displayName();
    }
    emit changed();
}

void TimelineRows::findLastFrame()
{
    _lastFrame = 1;
    for (const Row& row : _rows)
        _lastFrame = std::max(_lastFrame, ExposureEdits::lastFrame(row.exposures));
}
