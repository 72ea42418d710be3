// SPDX-License-Identifier: MIT
#include "Mutator.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// Numbers at which something happens.
constexpr quint32 edges[] = {0,      1,          2,          0x7f,       0x80,      0xff,
                             0xffff, 0x7fffffff, 0x80000000, 0xffffffff, 0x7fc00000};

} // namespace

Mutator::Mutator(QByteArrayList seeds, quint32 number)
    : _seeds(std::move(seeds))
    , _random(number)
{
}

QByteArray Mutator::next()
{
    constexpr qsizetype mostChanges = 5;
    QByteArray input = _seeds[below(_seeds.size())];
    for (qsizetype left = 1 + below(mostChanges); left > 0; --left)
        change(input);
    return input;
}

void Mutator::change(QByteArray& input)
{
    constexpr qsizetype longest = 64;
    const qsizetype at = below(input.size() + 1);
    const qsizetype size = std::min(below(longest), input.size() - at);
    const QByteArray& other = _seeds[below(_seeds.size())];
    switch (below(6)) {
    case 0:
        if (at < input.size())
            input[at] = static_cast<char>(_random());
        break;
    case 1:
        if (at < input.size())
            input[at] = static_cast<char>(input[at] ^ (1 << below(8)));
        break;
    case 2:
        if (at + qsizetype(sizeof(quint32)) <= input.size()) {
            const quint32 edge = edges[below(std::size(edges))];
            input.replace(at, sizeof edge,
                          QByteArray(reinterpret_cast<const char*>(&edge), sizeof edge));
        }
        break;
    case 3:
        input.remove(at, size);
        break;
    case 4:
        input.insert(at, other.mid(below(other.size() + 1), below(longest)));
        break;
    default:
        input.insert(at, input.mid(at, size));
        break;
    }
}

qsizetype Mutator::below(qsizetype end)
{
    return static_cast<qsizetype>(_random() % static_cast<quint64>(end));
}
