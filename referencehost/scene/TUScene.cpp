// SPDX-License-Identifier: MIT
#include "host/scene/TUScene.h"

#include "host/scene/MO_GroupModule.h"
#include "referencehost/scene/SceneWalk.h"

struct TUScene::Private
{
    explicit Private(TUSceneChangeManager* manager)
        : changeManager(manager)
    {
    }

    TUSceneChangeManager* changeManager;
    MO_GroupModule root{QStringLiteral("Top")};
};

TUScene::TUScene(const QString& name, TUSceneChangeManager* changeManager)
    : SC_SceneCommon(name)
    , d(std::make_unique<Private>(changeManager))
{
    static_cast<MO_Node&>(d->root).setScene(this);
}

TUScene::~TUScene()
{
    // Nodes that look around while they die must not find half a scene.
    for (MO_Node* node : subtreeOf(d->root))
        node->setScene(nullptr);
}

MO_GroupModule* TUScene::rootGroup() const
{
    return &d->root;
}

TUSceneChangeManager* TUScene::changeManager() const
{
    return d->changeManager;
}

void TUScene::accept(MO_AbstractModuleVisitor& visitor) const
{
    for (MO_Node* node : nodesBelow(d->root))
        node->accept(visitor);
}
