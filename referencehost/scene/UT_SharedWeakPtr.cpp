// SPDX-License-Identifier: MIT
#include "host/scene/UT_SharedWeakPtr.h"

UT_SharedWeakTarget::UT_SharedWeakTarget()
    : _anchor(std::make_shared<UT_SharedWeakTarget*>(this))
{
}

UT_SharedWeakTarget::~UT_SharedWeakTarget()
{
    *_anchor = nullptr;
}

UT_SharedWeakPtrBase::UT_SharedWeakPtrBase(const UT_SharedWeakTarget* target)
{
    if (target)
        _anchor = target->_anchor;
}
