// SPDX-License-Identifier: MIT
#include "host/attributes/AT_StringAttr.h"

AT_StringAttr::AT_StringAttr(MO_Node* node, const AT_AttrMeta& meta)
    : AT_Attr(node, meta)
{
}

AT_StringAttr::~AT_StringAttr() = default;

bool AT_StringAttr::setLocalValue(const QString& value)
{
    if (value == _value)
        return false;
    _value = value;
    return true;
}
