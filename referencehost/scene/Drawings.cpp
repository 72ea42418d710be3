// SPDX-License-Identifier: MIT
#include "referencehost/scene/Drawings.h"

#include <iterator>

bool Drawings::expose(int first, int last, const Model& model)
{
    if (first > last)
        return false;
    const bool changed = cut(first, last) || model;
    if (model)
        _ranges.insert_or_assign(first, Range{last, model});
    return changed;
}

/// Leaves the frames from first to last without a model; false when they had none.
bool Drawings::cut(int first, int last)
{
    auto it = _ranges.upper_bound(first);
    if (it != _ranges.begin() && std::prev(it)->second.last >= first)
        --it;
    bool changed = false;
    while (it != _ranges.end() && it->first <= last) {
        const int start = it->first;
        const Range range = it->second;
        it = _ranges.erase(it);
        changed = true;
        // A remainder lies outside the cut, so there is a frame before or after to end it at.
        if (start < first)
            _ranges.insert_or_assign(start, Range{first - 1, range.model});
        if (range.last > last)
            it = _ranges.insert_or_assign(last + 1, Range{range.last, range.model}).first;
    }
    return changed;
}

Drawings::Model Drawings::at(int frame) const
{
    const auto after = _ranges.upper_bound(frame);
    if (after == _ranges.begin())
        return nullptr;
    const Range& range = std::prev(after)->second;
    return frame <= range.last ? range.model : nullptr;
}

std::vector<MO_ElementModule::Exposure> Drawings::exposures() const
{
    std::vector<MO_ElementModule::Exposure> all;
    for (const auto& [first, range] : _ranges)
        all.push_back({first, range.last, range.model});
    return all;
}
