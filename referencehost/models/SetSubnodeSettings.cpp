// SPDX-License-Identifier: MIT
#include "referencehost/models/SetSubnodeSettings.h"

SetSubnodeSettings::SetSubnodeSettings(MO_ElementModule* element, int frame,
                                       const AT_ModelData& settings)
    : _element(element)
    , _frame(frame)
    , _other(std::make_unique<AT_ModelData>(settings))
{
}

bool SetSubnodeSettings::empty() const
{
    return !_element.get();
}

bool SetSubnodeSettings::execute()
{
    if (empty())
        return false;
    _other = _element->setSeqMeta(_frame, std::move(_other));
    return true;
}
