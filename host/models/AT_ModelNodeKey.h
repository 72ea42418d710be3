// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The host's key of a subnode, made from the name of its scene-graph node. A value; a key without
/// a name is empty and belongs to no subnode.
class AT_ModelNodeKey
{
public:
    AT_ModelNodeKey() = default;
    explicit AT_ModelNodeKey(const QString& name)
        : _name(name)
    {
    }

    const QString& name() const { return _name; }
    bool empty() const { return _name.isEmpty(); }

    friend bool operator==(const AT_ModelNodeKey& a, const AT_ModelNodeKey& b)
    {
        return a._name == b._name;
    }
    friend bool operator<(const AT_ModelNodeKey& a, const AT_ModelNodeKey& b)
    {
        return a._name < b._name;
    }

private:
    QString _name;
};
