// SPDX-License-Identifier: MIT
#include "referencehost/scene/SubnodeIds.h"

#include "host/models/TD_NodeName.h"

#include <OpenSG/OSGKeyTransform.h>

namespace {

bool isKeyNode(const osg::NodePtr& node)
{
    const osg::NodeCorePtr core = node->getCore();
    return core != osg::NullFC && core->getType().isDerivedFrom(osg::KeyTransform::getClassType());
}

} // namespace

void SubnodeIds::add(const osg::NodePtr& root)
{
    // Models may be deeper than the stack is.
    std::vector<osg::NodePtr> pending;
    if (root != osg::NullFC)
        pending.push_back(root);
    while (!pending.empty()) {
        const osg::NodePtr node = pending.back();
        pending.pop_back();
        if (isKeyNode(node)) {
            const AT_ModelNodeKey key(TD_nodeName(node));
            if (!key.empty() && !_ids.contains(key.name())) {
                _keys.push_back(key);
                _ids.insert(key.name(), static_cast<int>(_keys.size()));
            }
        }
        for (osg::UInt32 i = node->getNChildren(); i > 0; --i)
            pending.push_back(node->getChild(i - 1));
    }
}

bool SubnodeIds::idOf(const AT_ModelNodeKey& key, int& id) const
{
    const auto it = _ids.constFind(key.name());
    if (it == _ids.constEnd())
        return false;
    id = *it;
    return true;
}

bool SubnodeIds::keyOf(int id, AT_ModelNodeKey& key) const
{
    if (id < 1 || static_cast<std::size_t>(id) > _keys.size())
        return false;
    key = _keys[static_cast<std::size_t>(id) - 1];
    return true;
}
