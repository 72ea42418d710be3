// SPDX-License-Identifier: MIT

#include "subnodetree/SGV_GraphItem.h"

#include <utility>

SGV_GraphItem::SGV_GraphItem(const QString& name, SGV_GraphItem* parent)
    : _parent(parent)
    , _name(name)
{
}

SGV_GraphItem::~SGV_GraphItem()
{
    // An item is deleted only after its children were taken from it: hierarchies can be deeper than
    // the call stack.
    QList<SGV_GraphItem*> doomed = std::exchange(_children, {});
    while (!doomed.isEmpty()) {
        SGV_GraphItem* item = doomed.takeLast();
        doomed.append(std::exchange(item->_children, {}));
        delete item;
    }
}

SGV_GraphItem* SGV_GraphItem::child(int row) const
{
    return row >= 0 && row < _children.size() ? _children[row] : nullptr;
}

int SGV_GraphItem::row() const
{
    if (!_parent)
        return 0;
    if (_parent->child(_row) == this)
        return _row;
    return static_cast<int>(_parent->_children.indexOf(this));
}

void SGV_GraphItem::append(SGV_GraphItem* child)
{
    child->_row = static_cast<int>(_children.size());
    _children.append(child);
}

void SGV_GraphItem::deleteFirstChild()
{
    if (!_children.isEmpty())
        delete _children.takeFirst();
}

void SGV_GraphItem::setVisibility(quint32 state, bool ancestorDisabled)
{
    _visibilityState = state;
    _ancestorDisabled = ancestorDisabled;
}
