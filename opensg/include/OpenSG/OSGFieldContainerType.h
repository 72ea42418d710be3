// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGIDString.h>

namespace osg {

/// Describes one class of field containers: its name and the type that it derives from. There is
/// one object for each class, a static of that class, found as X::getClassType(); types are equal
/// if they are the same object. Parents are named rather than pointed to, because types are
/// constructed in any order; osgInit() looks them up.
class OSG_CORE_API FieldContainerType
{
public:
    /// Enters the type into the library's list. Both strings must outlive it; a null parent name
    /// makes a type at the top. A type made after osgInit() has its parent at once.
    explicit FieldContainerType(const Char8* name, const Char8* parentName = nullptr);
    ~FieldContainerType();
    FieldContainerType(const FieldContainerType&) = delete;
    FieldContainerType& operator=(const FieldContainerType&) = delete;

    const Char8* getCName() const { return _name.str(); }
    const IDString& getName() const { return _name; }

    /// Null for the type at the top, and for every type before osgInit().
    FieldContainerType* getParent() const { return _parent; }

    /// True for the type itself and for every type that it derives from.
    bool isDerivedFrom(const FieldContainerType& other) const
    {
        for (const FieldContainerType* type = this; type; type = type->_parent) {
            if (type == &other)
                return true;
        }
        return false;
    }

    bool operator==(const FieldContainerType& other) const { return this == &other; }

private:
    friend struct TypeRegistry;

    IDString _name;
    IDString _parentName;
    FieldContainerType* _parent = nullptr;
    FieldContainerType* _nextRegistered = nullptr;
};

} // namespace osg
