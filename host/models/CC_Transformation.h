// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelData.h"

#include <memory>
#include <vector>

/// Something that bends or moves parts of a drawing: here, the settings of the subnodes of a model.
/// A value that never changes; comparing compares what it does.
class CC_Deformation
{
public:
    explicit CC_Deformation(const AT_ModelData& settings)
        : _settings(settings)
    {
    }

    const AT_ModelData& settings() const { return _settings; }

    friend bool operator==(const CC_Deformation&, const CC_Deformation&) = default;

private:
    AT_ModelData _settings;
};

/// What is done to a drawing before it is shown. A value.
class CC_Transformation
{
public:
    /// Deformations take effect in the order of adding; null is ignored.
    void addDeformation(std::shared_ptr<const CC_Deformation> deformation)
    {
        if (deformation)
            _deformations.push_back(std::move(deformation));
    }
    const std::vector<std::shared_ptr<const CC_Deformation>>& deformations() const
    {
        return _deformations;
    }

private:
    std::vector<std::shared_ptr<const CC_Deformation>> _deformations;
};
