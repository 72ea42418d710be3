// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <vector>

/// A set of positive ids that knows the order in which they came. Adding, removing and asking take
/// constant time on average, also for very many.
class OrderedIds
{
public:
    bool empty() const { return _places.isEmpty(); }
    bool contains(int id) const { return _places.contains(id); }

    /// In the order of adding; valid until the next change.
    const std::vector<int>& list() const;

    /// The id must not be in the set.
    void add(int id);
    /// The id must be in the set.
    void remove(int id);
    void clear();

private:
    void closeGaps() const;

    // A removed id leaves a gap in the list, which is closed when somebody looks.
    mutable QHash<int, qsizetype> _places;
    mutable std::vector<int> _list;
};
