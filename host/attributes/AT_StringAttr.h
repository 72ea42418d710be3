// SPDX-License-Identifier: MIT
#pragma once

#include "host/attributes/AT_Attr.h"

/// An attribute whose value is a text.
class HOST_EXPORT AT_StringAttr : public AT_Attr
{
public:
    AT_StringAttr(MO_Node* node, const AT_AttrMeta& meta);
    ~AT_StringAttr() override;

    /// The value itself, whatever may animate it.
    QString localValue() const { return _value; }
    /// Takes effect at once and notes no change; commands do. False when the value is that already.
    bool setLocalValue(const QString& value);

private:
    QString _value;
};
