// SPDX-License-Identifier: MIT
#include "host/scene/MO_Node.h"

#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/scene/MO_NodePrivate.h"
#include "referencehost/scene/SceneWalk.h"

MO_Node::MO_Node(const QString& instanceName)
    : d(std::make_unique<Private>())
{
    d->instanceName = instanceName;
}

MO_Node::~MO_Node()
{
    if (d->selection)
        d->selection->remove(this);
}

QString MO_Node::instanceName() const
{
    return d->instanceName;
}

void MO_Node::setInstanceName(const QString& name)
{
    if (name == d->instanceName)
        return;
    d->instanceName = name;
    if (TUSceneChangeManager* changes = changeManagerOf(*this))
        changes->emitNodeInstanceNameChanged(this);
}

double MO_Node::x() const
{
    return d->x;
}

double MO_Node::y() const
{
    return d->y;
}

void MO_Node::setX(double x)
{
    if (x == d->x)
        return;
    d->x = x;
    if (TUSceneChangeManager* changes = changeManagerOf(*this))
        changes->emitNodeChanged(this);
}

void MO_Node::setY(double y)
{
    if (y == d->y)
        return;
    d->y = y;
    if (TUSceneChangeManager* changes = changeManagerOf(*this))
        changes->emitNodeChanged(this);
}

MO_GroupModule* MO_Node::parentGroup() const
{
    return d->parentGroup;
}

TUScene* MO_Node::scene() const
{
    return d->scene;
}

SC_SceneCommon* MO_Node::sceneCommon() const
{
    return d->scene;
}

SLB_NodeInterface* MO_Node::selInterface() const
{
    return d->selInterface;
}

void MO_Node::setScene(TUScene* scene)
{
    d->scene = scene;
}
