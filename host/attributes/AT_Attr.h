// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"
#include "host/attributes/AT_AttrMeta.h"

class MO_Node;

/// A named value of a node, which owns it.
class HOST_EXPORT AT_Attr
{
public:
    AT_Attr(MO_Node* node, const AT_AttrMeta& meta);
    virtual ~AT_Attr();
    AT_Attr(const AT_Attr&) = delete;
    AT_Attr& operator=(const AT_Attr&) = delete;

    const AT_AttrMeta& meta() const { return _meta; }
    /// Never null.
    MO_Node* node() const { return _node; }

private:
    MO_Node* _node;
    AT_AttrMeta _meta;
};
