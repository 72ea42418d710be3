// SPDX-License-Identifier: MIT
#include "referencehost/selection/OrderedIds.h"

namespace {

constexpr int Gap = 0;

} // namespace

const std::vector<int>& OrderedIds::list() const
{
    closeGaps();
    return _list;
}

void OrderedIds::add(int id)
{
    // Gaps that nobody looks at must not pile up.
    if (_list.size() > 2 * static_cast<std::size_t>(_places.size()) + 16)
        closeGaps();
    _places.insert(id, static_cast<qsizetype>(_list.size()));
    _list.push_back(id);
}

void OrderedIds::remove(int id)
{
    _list[static_cast<std::size_t>(_places.take(id))] = Gap;
}

void OrderedIds::clear()
{
    _places.clear();
    _list.clear();
}

void OrderedIds::closeGaps() const
{
    if (_list.size() == static_cast<std::size_t>(_places.size()))
        return;
    std::erase(_list, Gap);
    for (std::size_t i = 0; i < _list.size(); ++i)
        _places[_list[i]] = static_cast<qsizetype>(i);
}
