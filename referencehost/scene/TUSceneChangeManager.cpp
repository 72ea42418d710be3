// SPDX-License-Identifier: MIT
#include "host/scene/TUSceneChangeManager.h"

#include "host/scene/MO_Node.h"

#include <QPointer>
#include <optional>
#include <utility>

struct TUSceneChangeManager::Private
{
    /// Set when the scene changed, also to none; the scene may be gone before that is told.
    std::optional<UT_SharedWeakPtr<TUScene>> currentScene;
    bool currentFrame = false;
    TUNodeSet network;
    TUNodeSet childrenOrdering;
    TUNodeSet nodes;
    TUNodeSet instanceNames;
    bool selection = false;
    bool subSelection = false;
    bool notifying = false;

    bool tellNext(TUSceneChangeManager& manager);
};

/// Tells the first kind of change that is noted; false when there is none. A kind is forgotten
/// before it is told, so that listeners can note it again; the manager may be gone afterwards.
bool TUSceneChangeManager::Private::tellNext(TUSceneChangeManager& manager)
{
    if (const auto scene = std::exchange(currentScene, std::nullopt))
        emit manager.currentSceneChanged(scene->get());
    else if (std::exchange(currentFrame, false))
        emit manager.currentFrameChanged();
    else if (const TUNodeSet set = std::exchange(network, {}); !set.empty())
        emit manager.networkChanged(set);
    else if (const TUNodeSet ordered = std::exchange(childrenOrdering, {}); !ordered.empty())
        emit manager.childrenOrderingChanged(ordered);
    else if (const TUNodeSet changed = std::exchange(nodes, {}); !changed.empty())
        emit manager.nodesChanged(changed);
    else if (const TUNodeSet named = std::exchange(instanceNames, {}); !named.empty())
        emit manager.nodeInstanceNamesChanged(named);
    else if (std::exchange(selection, false))
        emit manager.selectionChanged();
    else if (std::exchange(subSelection, false))
        emit manager.subSelectionChanged();
    else
        return false;
    return true;
}

TUSceneChangeManager::TUSceneChangeManager(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

TUSceneChangeManager::~TUSceneChangeManager() = default;

void TUSceneChangeManager::emitSelectionChanged()
{
    d->selection = true;
}

void TUSceneChangeManager::emitSubSelectionChanged()
{
    d->subSelection = true;
}

void TUSceneChangeManager::emitCurrentFrameChanged()
{
    d->currentFrame = true;
}

void TUSceneChangeManager::emitCurrentSceneChanged(TUScene* scene)
{
    d->currentScene = UT_SharedWeakPtr<TUScene>(scene);
}

void TUSceneChangeManager::emitNodeChanged(MO_Node* node)
{
    if (node)
        d->nodes.insert(node);
}

void TUSceneChangeManager::emitNodeInstanceNameChanged(MO_Node* node)
{
    if (node)
        d->instanceNames.insert(node);
}

void TUSceneChangeManager::emitNetworkChanged(MO_Node* node)
{
    if (node)
        d->network.insert(node);
}

void TUSceneChangeManager::emitChildrenOrderingChanged(MO_Node* node)
{
    if (node)
        d->childrenOrdering.insert(node);
}

void TUSceneChangeManager::notify()
{
    // Telling from inside a listener would show the listeners after it old news after new.
    if (d->notifying)
        return;
    d->notifying = true;
    const QPointer<TUSceneChangeManager> alive(this);
    while (alive && d->tellNext(*this)) {
    }
    if (alive)
        d->notifying = false;
}

bool TUSceneChangeManager::isNotifying() const
{
    return d->notifying;
}
