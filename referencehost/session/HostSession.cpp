// SPDX-License-Identifier: MIT
#include "referencehost/session/HostSession.h"

#include "host/actions/AC_Manager.h"
#include "host/commands/CO_CommandManager.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/services/ModifierKeyState.h"
#include "referencehost/services/PressedKeys.h"
#include "referencehost/session/EditionStack.h"

#include <QTimer>
#include <QUndoStack>

namespace {

HostSession* currentSession = nullptr;

/// Validators may depend on everything that the change manager tells of, and on preferences.
void keepActionsValid(SC_SessionContext& context)
{
    AC_Manager* actions = context.actionManager();
    TUSceneChangeManager* changes = context.changeManager();
    const auto invalidate = [actions] { actions->invalidateActions(); };
    using Changes = TUSceneChangeManager;
    QObject::connect(changes, &Changes::selectionChanged, changes, invalidate);
    QObject::connect(changes, &Changes::subSelectionChanged, changes, invalidate);
    QObject::connect(changes, &Changes::currentFrameChanged, changes, invalidate);
    QObject::connect(changes, &Changes::currentSceneChanged, changes, invalidate);
    QObject::connect(changes, &Changes::networkChanged, changes, invalidate);
    QObject::connect(changes, &Changes::childrenOrderingChanged, changes, invalidate);
    QObject::connect(changes, &Changes::nodesChanged, changes, invalidate);
    QObject::connect(PR_Preference::instance(), &PR_Preference::preferenceChanged, changes,
                     invalidate);
}

} // namespace

struct HostSession::Private
{
    SC_SessionContext context;
    ModifierKeyState keyState;
    PressedKeys pressedKeys;
    // Last, since scenes use the context until they are gone.
    EditionStack editionStack;
};

HostSession::HostSession()
    : d(std::make_unique<Private>())
{
    Q_ASSERT_X(!currentSession, "HostSession", "only one session can be open at a time");
    currentSession = this;
    keepActionsValid(d->context);
}

HostSession::~HostSession()
{
    closeScene();
    currentSession = nullptr;
}

HostSession* HostSession::current()
{
    return currentSession;
}

SC_SessionContext& HostSession::context()
{
    return d->context;
}

PLUG_EditionStackInterface& HostSession::editionStack()
{
    return d->editionStack;
}

PLUG_KeyStateInterface& HostSession::keyState()
{
    return d->keyState;
}

bool HostSession::isKeyPressed(int key) const
{
    return d->pressedKeys.isPressed(key);
}

TUScene* HostSession::currentScene() const
{
    return d->editionStack.currentScene();
}

TUScene& HostSession::openScene(const QString& name)
{
    auto scene = std::make_unique<TUScene>(name, d->context.changeManager());
    TUScene& opened = *scene;
    replaceScene(std::move(scene));
    return opened;
}

void HostSession::closeScene()
{
    if (currentScene())
        replaceScene(nullptr);
}

void HostSession::replaceScene(std::unique_ptr<TUScene> scene)
{
    TUSceneChangeManager* changes = d->context.changeManager();
    d->editionStack.replaceCurrentScene(std::move(scene));
    changes->emitCurrentSceneChanged(currentScene());
    d->context.selection()->clear();
    d->context.commandManager()->history()->clear();
    changes->notify();

    // Called by a listener, this returns before all others know of the change: one of them may
    // still hold the old scene, so it is kept until they had their turn.
    if (changes->isNotifying())
        QTimer::singleShot(0, changes, [this] { d->editionStack.releaseRetired(); });
    else
        d->editionStack.releaseRetired();
}
