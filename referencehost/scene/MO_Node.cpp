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

QString MO_Node::displayName() const
{
    return d->instanceName;
}

void MO_Node::initialize(TUScene* scene)
{
    setScene(scene);
}

bool MO_Node::isDirty() const
{
    return d->dirty;
}

void MO_Node::setDirty(bool dirty)
{
    d->dirty = dirty;
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

int MO_Node::nInPorts() const
{
    return static_cast<int>(d->inPorts.size());
}

int MO_Node::nOutPorts() const
{
    return static_cast<int>(d->outPorts.size());
}

MO_Port* MO_Node::inPort(int index) const
{
    return index >= 0 && index < nInPorts() ? d->inPorts[index].get() : nullptr;
}

MO_Port* MO_Node::outPort(int index) const
{
    return index >= 0 && index < nOutPorts() ? d->outPorts[index].get() : nullptr;
}

MO_Port* MO_Node::addPort(MO_Port::Direction direction)
{
    auto& ports = direction == MO_Port::eInput ? d->inPorts : d->outPorts;
    ports.push_back(std::make_unique<MO_Port>(this, direction));
    return ports.back().get();
}

MO_Node::AttrIterator MO_Node::attrsBegin() const
{
    return d->plainAttrs.cbegin();
}

MO_Node::AttrIterator MO_Node::attrsEnd() const
{
    return d->plainAttrs.cend();
}

void MO_Node::addAttr(std::unique_ptr<AT_Attr> attr)
{
    d->plainAttrs.push_back(attr.get());
    d->attrs.push_back(std::move(attr));
}

SC_SceneMetrics MO_Node::sceneMetrics() const
{
    return {};
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
