// SPDX-License-Identifier: MIT
#include "host/scene/MO_GroupModule.h"

#include "host/scene/MO_ModuleVisitor.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/scene/MO_NodePrivate.h"
#include "referencehost/scene/SceneWalk.h"

#include <algorithm>

MO_GroupModule::MO_GroupModule(const QString& instanceName)
    : MO_Node(instanceName)
{
}

MO_GroupModule::~MO_GroupModule()
{
    // Groups may be nested more deeply than the stack is, so each one is emptied before it dies.
    std::vector<std::unique_ptr<MO_Node>> dying = std::move(_nodes);
    while (!dying.empty()) {
        const std::unique_ptr<MO_Node> node = std::move(dying.back());
        dying.pop_back();
        node->d->parentGroup = nullptr;
        if (auto* group = dynamic_cast<MO_GroupModule*>(node.get())) {
            std::ranges::move(group->_nodes, std::back_inserter(dying));
            group->_nodes.clear();
        }
    }
}

QString MO_GroupModule::typeName() const
{
    return QStringLiteral("GROUP");
}

void MO_GroupModule::accept(MO_AbstractModuleVisitor& visitor)
{
    visitor.visit(this);
}

std::vector<MO_Node*> MO_GroupModule::nodes() const
{
    std::vector<MO_Node*> plain;
    plain.reserve(_nodes.size());
    for (const std::unique_ptr<MO_Node>& node : _nodes)
        plain.push_back(node.get());
    return plain;
}

int MO_GroupModule::indexOf(const MO_Node* node) const
{
    if (!node || node->d->parentGroup != this)
        return -1;
    const auto it = std::ranges::find(_nodes, node, &std::unique_ptr<MO_Node>::get);
    return static_cast<int>(it - _nodes.begin());
}

MO_Node* MO_GroupModule::insertNode(std::unique_ptr<MO_Node> node, int position)
{
    if (!node)
        return nullptr;
    MO_Node* inserted = node.get();
    const bool append = position < 0 || static_cast<std::size_t>(position) > _nodes.size();
    _nodes.insert(append ? _nodes.end() : _nodes.begin() + position, std::move(node));
    inserted->d->parentGroup = this;
    if (scene()) {
        for (MO_Node* entering : subtreeOf(*inserted))
            entering->setScene(scene());
    }
    if (TUSceneChangeManager* changes = changeManagerOf(*this))
        changes->emitNetworkChanged(inserted);
    return inserted;
}

std::unique_ptr<MO_Node> MO_GroupModule::takeNode(MO_Node* node)
{
    const int index = indexOf(node);
    if (index < 0)
        return nullptr;
    for (MO_Node* leaving : subtreeOf(*node)) {
        if (SL_Selection* selection = leaving->d->selection)
            selection->remove(leaving);
        if (scene())
            leaving->setScene(nullptr);
    }
    if (TUSceneChangeManager* changes = changeManagerOf(*this))
        changes->emitNetworkChanged(node);
    std::unique_ptr<MO_Node> taken = std::move(_nodes[static_cast<std::size_t>(index)]);
    _nodes.erase(_nodes.begin() + index);
    node->d->parentGroup = nullptr;
    return taken;
}

bool MO_GroupModule::moveNode(MO_Node* node, int position)
{
    const int from = indexOf(node);
    const int to = std::clamp(position, 0, std::max(0, static_cast<int>(_nodes.size()) - 1));
    if (from < 0 || from == to)
        return false;
    std::unique_ptr<MO_Node> moved = std::move(_nodes[static_cast<std::size_t>(from)]);
    _nodes.erase(_nodes.begin() + from);
    _nodes.insert(_nodes.begin() + to, std::move(moved));
    if (TUSceneChangeManager* changes = changeManagerOf(*this))
        changes->emitChildrenOrderingChanged(node);
    return true;
}
