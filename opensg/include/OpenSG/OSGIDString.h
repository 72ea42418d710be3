// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>

#include <cstring>

namespace osg {

/// The name of a type: a view of a string that lives as long as the program, usually a literal.
/// It owns nothing and costs nothing to copy.
class IDString
{
public:
    IDString() = default;
    /// The characters are not copied. Null makes an empty string.
    explicit IDString(const Char8* characters)
        : _characters(characters ? characters : "")
    {
    }

    /// Never null.
    const Char8* str() const { return _characters; }

    bool operator==(const IDString& other) const
    {
        return std::strcmp(_characters, other._characters) == 0;
    }

private:
    const Char8* _characters = "";
};

} // namespace osg
