// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelNodeData.h"
#include "host/models/AT_ModelNodeKey.h"

#include <algorithm>
#include <map>

/// The settings of a model's subnodes at a frame: one record for each subnode that differs, or
/// once differed, from how it was modelled. A value.
class AT_ModelData
{
public:
    using Records = std::map<AT_ModelNodeKey, AT_ModelNodeData>;

    /// The record of the subnode; null when it has none. Valid until that record is removed.
    const AT_ModelNodeData* nodeData(const AT_ModelNodeKey& key) const
    {
        const auto it = _records.find(key);
        return it == _records.end() ? nullptr : &it->second;
    }

    /// All records, in the order of their keys.
    const Records& records() const { return _records; }

    void setNodeData(const AT_ModelNodeKey& key, const AT_ModelNodeData& data)
    {
        _records.insert_or_assign(key, data);
    }
    void removeNodeData(const AT_ModelNodeKey& key) { _records.erase(key); }

    /// Whether a subnode is moved from where it was modelled.
    bool hasSubTransformations() const
    {
        return std::any_of(_records.begin(), _records.end(), [](const auto& record) {
            return !(record.second.transformation == osg::Matrix());
        });
    }

    friend bool operator==(const AT_ModelData&, const AT_ModelData&) = default;

private:
    Records _records;
};
