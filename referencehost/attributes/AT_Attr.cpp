// SPDX-License-Identifier: MIT
#include "host/attributes/AT_Attr.h"

AT_Attr::AT_Attr(MO_Node* node, const AT_AttrMeta& meta)
    : _node(node)
    , _meta(meta)
{
}

AT_Attr::~AT_Attr() = default;
