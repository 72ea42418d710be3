// SPDX-License-Identifier: MIT
#include "referencehost/commands/SetExposures.h"

#include "host/models/TD_CelVq3d.h"

#include <limits>
#include <utility>

SetExposures::SetExposures(MO_ElementModule* element, Exposures exposures)
    : _element(element)
    , _other(std::move(exposures))
{
}

bool SetExposures::empty() const
{
    return !_element.get() || _element->exposures() == _other;
}

bool SetExposures::execute()
{
    if (!_element.get())
        return false;
    const Exposures next = std::exchange(_other, _element->exposures());
    _element->exposeModel(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
                          nullptr);
    for (const MO_ElementModule::Exposure& exposure : next)
        _element->exposeModel(exposure.firstFrame, exposure.lastFrame, exposure.model);
    return true;
}
