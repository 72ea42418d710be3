// SPDX-License-Identifier: MIT
#pragma once

#include "host/attributes/AT_AttrMeta.h"
#include "host/commands/CO_Command.h"
#include "host/scene/MO_Node.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QString>

namespace tu_attr {

/// Sets the local value of an attribute, whose node must outlive the command.
template <class Attr>
class SetLocalValueCmd : public CO_Command
{
public:
    SetLocalValueCmd(Attr* attr, const QString& value)
        : _attr(attr)
        , _value(value)
    {
    }

    /// Exchanges the value with the one that the attribute has. False when they are the same.
    bool execute() override
    {
        const QString previous = _attr->localValue();
        if (!_attr->setLocalValue(_value))
            return false;
        MO_Node* node = _attr->node();
        if (TUScene* scene = node->scene(); scene && scene->changeManager())
            scene->changeManager()->emitNodeChanged(node);
        if (_attr->meta().isNodeDirtyOnChange())
            node->setDirty();
        _value = previous;
        return true;
    }

private:
    Attr* _attr;
    QString _value;
};

} // namespace tu_attr
