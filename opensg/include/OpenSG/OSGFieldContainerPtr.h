// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>

#include <cstddef>
#include <functional>

namespace osg {

class FieldContainer;
class FieldContainerType;

/// The type of NullFC, which is the portable way to write a null pointer of any kind.
class NullFieldContainerPtr
{
};
inline constexpr NullFieldContainerPtr NullFC{};

/// Points to a field container of any type. A pointer is a small value and holds no reference:
/// who keeps one beyond the life of its target's owner calls addRefCP() or uses a RefPtr. Pointers
/// convert implicitly towards this class only; the other way goes through dcast(). The comparisons
/// go by address and work between pointers to different types.
class FieldContainerPtr
{
public:
    FieldContainerPtr() = default;
    FieldContainerPtr(NullFieldContainerPtr) {}
    explicit FieldContainerPtr(const FieldContainer* container)
        : _container(const_cast<FieldContainer*>(container))
    {
    }
    FieldContainerPtr(const FieldContainerPtr&) = default;
    void operator=(FieldContainerPtr other) { _container = other._container; }

    static FieldContainerPtr dcast(const FieldContainerPtr& pointer) { return pointer; }

    FieldContainer* operator->() const { return _container; }
    FieldContainer& operator*() const { return *_container; }
    /// The plain pointer, null for NullFC.
    FieldContainer* getCPtr() const { return _container; }

    explicit operator bool() const { return _container != nullptr; }

    friend bool operator==(const FieldContainerPtr& a, const FieldContainerPtr& b)
    {
        return a._container == b._container;
    }
    friend bool operator==(const FieldContainerPtr& a, std::nullptr_t) { return !a; }
    friend bool operator<(const FieldContainerPtr& a, const FieldContainerPtr& b)
    {
        return std::less<FieldContainer*>()(a._container, b._container);
    }

protected:
    struct Unchecked
    {
    };
    FieldContainerPtr(FieldContainer* container, Unchecked)
        : _container(container)
    {
    }

    /// Whether there is a target and it is of the type or of one derived from it.
    OSG_CORE_API static bool hasType(const FieldContainerPtr& pointer,
                                     const FieldContainerType& type);

    FieldContainer* _container = nullptr;
};

/// Points to a container of one type; Base is the pointer to the type that it derives from. The
/// target may be incomplete until it is really used.
template <class Base, class Target>
class FCPtr : public Base
{
public:
    FCPtr() = default;
    FCPtr(NullFieldContainerPtr) {}
    explicit FCPtr(const Target* target)
        : Base(const_cast<Target*>(target), Unchecked())
    {
    }
    FCPtr(const FCPtr&) = default;
    void operator=(const FCPtr& other) { this->_container = other._container; }

    /// The same object as a pointer of this type; NullFC if it is null or of another type.
    static FCPtr dcast(const FieldContainerPtr& pointer)
    {
        if (!FieldContainerPtr::hasType(pointer, Target::getClassType()))
            return FCPtr();
        return FCPtr(pointer.getCPtr(), Unchecked());
    }

    Target* operator->() const { return getCPtr(); }
    Target& operator*() const { return *getCPtr(); }
    /// The plain pointer, null for NullFC.
    Target* getCPtr() const { return static_cast<Target*>(this->_container); }

protected:
    typedef FieldContainerPtr::Unchecked Unchecked;
    FCPtr(FieldContainer* container, Unchecked unchecked)
        : Base(container, unchecked)
    {
    }
};

/// Takes and gives back a reference. A container starts with none and dies when its count falls to
/// zero or below, so giving back a reference that nobody took destroys it, too. Null is ignored.
OSG_CORE_API void addRefCP(const FieldContainerPtr& pointer);
OSG_CORE_API void subRefCP(const FieldContainerPtr& pointer);

} // namespace osg
