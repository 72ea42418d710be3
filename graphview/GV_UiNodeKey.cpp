// SPDX-License-Identifier: MIT

#include "graphview/GV_UiNodeKey.h"

#include "graphview/GV_UiNode.h"

#include <cstdint>

namespace {

constexpr std::uint64_t fnvOffset = 0xcbf29ce484222325;
constexpr std::uint64_t fnvPrime = 0x100000001b3;

std::uint64_t addByte(std::uint64_t hash, unsigned char byte)
{
    return (hash ^ byte) * fnvPrime;
}

/// FNV-1a over the text as UTF-8. Names are nearly always ASCII, where the code units already are
/// the bytes and no second string has to be made.
std::uint64_t hashText(const QString& text)
{
    std::uint64_t hash = fnvOffset;
    for (const QChar unit : text) {
        if (unit.unicode() >= 0x80) {
            hash = fnvOffset;
            for (const char byte : text.toStdString())
                hash = addByte(hash, static_cast<unsigned char>(byte));
            break;
        }
        hash = addByte(hash, static_cast<unsigned char>(unit.unicode()));
    }
    return hash ^ (hash >> 32);
}

} // namespace

std::size_t GV_UiNodeKey::GV_UiNodeKeyHasher::operator()(const GV_UiNodeKey& key) const
{
    return hashText(key.parentName) ^ (hashText(key.nodeName) << 1);
}

GV_UiNodeKey::GV_UiNodeKey(const GV_UiNode* node)
{
    if (!node)
        return;
    nodeName = node->name();
    if (const GV_UiNode* parent = node->parent())
        parentName = parent->name();
}
