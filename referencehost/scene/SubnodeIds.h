// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelNodeKey.h"

#include <OpenSG/OSGNode.h>
#include <QHash>
#include <vector>

/// The integer ids of the subnodes of an element: they count up from 1 in the order in which their
/// keys are first met, and are never given back. Both ways of asking take constant time.
class SubnodeIds
{
public:
    /// Gives ids to the key nodes of the model that have none yet, each before the nodes below it.
    void add(const osg::NodePtr& root);

    /// False, with the result untouched, when there is no such key or id.
    bool idOf(const AT_ModelNodeKey& key, int& id) const;
    bool keyOf(int id, AT_ModelNodeKey& key) const;

private:
    QHash<QString, int> _ids;
    /// The id of a key is its index and one.
    std::vector<AT_ModelNodeKey> _keys;
};
