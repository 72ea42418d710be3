// SPDX-License-Identifier: MIT
#include "workbench/files/SceneChanges.h"

#include "host/commands/CO_CommandManager.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"

#include <QUndoStack>
#include <utility>

namespace {

QUndoStack& historyOf(HostSession& session)
{
    return *session.context().commandManager()->history();
}

} // namespace

SceneChanges::SceneChanges(HostSession& session, Fingerprint fingerprint, QObject* parent)
    : QObject(parent)
    , _session(session)
    , _fingerprint(std::move(fingerprint))
{
    const TUSceneChangeManager* changes = session.context().changeManager();
    using Changes = TUSceneChangeManager;
    connect(changes, &Changes::networkChanged, this, &SceneChanges::noteContent);
    connect(changes, &Changes::childrenOrderingChanged, this, &SceneChanges::noteContent);
    connect(changes, &Changes::nodesChanged, this, &SceneChanges::noteContent);
    connect(changes, &Changes::nodeInstanceNamesChanged, this, &SceneChanges::noteContent);
    connect(changes, &Changes::currentSceneChanged, this, &SceneChanges::setUnmodified);
    // The host hears of each step first, and has told what it changed when this hears of it.
    connect(&historyOf(session), &QUndoStack::indexChanged, this, &SceneChanges::noteHistory);
    setUnmodified();
}

void SceneChanges::setUnmodified()
{
    _unmodified = _fingerprint();
    historyOf(_session).setClean();
    setIsModified(false);
}

void SceneChanges::setModified()
{
    _unmodified.clear();
    setIsModified(true);
}

void SceneChanges::setIgnoring(bool ignoring)
{
    _ignoring = ignoring;
}

void SceneChanges::noteContent()
{
    if (_ignoring)
        return;
    setIsModified(true);
    emit changed();
}

void SceneChanges::noteHistory()
{
    // Looking at the whole scene after every step would be felt in a large one.
    if (_modified && historyOf(_session).isClean() && _fingerprint() == _unmodified)
        setIsModified(false);
}

void SceneChanges::setIsModified(bool modified)
{
    if (std::exchange(_modified, modified) != modified)
        emit modifiedChanged(modified);
}
