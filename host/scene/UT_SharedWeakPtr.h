// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <memory>

/// An object that weak references may outlive. Deriving from it is all that a class has to do.
class HOST_EXPORT UT_SharedWeakTarget
{
public:
    UT_SharedWeakTarget(const UT_SharedWeakTarget&) = delete;
    UT_SharedWeakTarget& operator=(const UT_SharedWeakTarget&) = delete;

protected:
    UT_SharedWeakTarget();
    virtual ~UT_SharedWeakTarget();

private:
    friend class UT_SharedWeakPtrBase;
    /// Points back at the object while it lives; shared with every reference to it.
    std::shared_ptr<UT_SharedWeakTarget*> _anchor;
};

/// A weak reference without a type. It can be emptied and compared; two references are equal when
/// they were made from the same object, also after that object is gone, so sets of them stay sound.
class HOST_EXPORT UT_SharedWeakPtrBase
{
public:
    UT_SharedWeakPtrBase() = default;
    /// A null target gives an empty reference.
    explicit UT_SharedWeakPtrBase(const UT_SharedWeakTarget* target);

    /// True when the reference was never set, was reset, or its object is gone.
    bool isNull() const { return target() == nullptr; }
    void reset() { _anchor.reset(); }

    friend bool operator==(const UT_SharedWeakPtrBase&, const UT_SharedWeakPtrBase&) = default;
    friend bool operator<(const UT_SharedWeakPtrBase& a, const UT_SharedWeakPtrBase& b)
    {
        return a._anchor < b._anchor;
    }

protected:
    /// The object, or null when it is gone.
    UT_SharedWeakTarget* target() const { return _anchor ? *_anchor : nullptr; }

private:
    std::shared_ptr<UT_SharedWeakTarget*> _anchor;
};

/// A weak reference to a T. It never keeps the object alive; get() is null once the object is gone.
template <class T>
class UT_SharedWeakPtr : public UT_SharedWeakPtrBase
{
public:
    UT_SharedWeakPtr() = default;
    UT_SharedWeakPtr(const T* object)
        : UT_SharedWeakPtrBase(object)
    {
    }

    T* get() const { return static_cast<T*>(target()); }
    T* operator->() const { return get(); }
    explicit operator bool() const { return !isNull(); }
};
