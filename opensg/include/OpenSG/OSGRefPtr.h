// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

namespace osg {

/// Owns one reference to a container for as long as it points there, where a plain pointer owns
/// none. It is made explicitly and read as the pointer that it holds, so it goes wherever that
/// one goes.
template <class Pointer>
class RefPtr
{
public:
    RefPtr() = default;
    explicit RefPtr(const Pointer& pointer)
        : _pointer(pointer)
    {
        addRefCP(_pointer);
    }
    RefPtr(const RefPtr& other)
        : RefPtr(other._pointer)
    {
    }
    ~RefPtr() { subRefCP(_pointer); }

    void operator=(const Pointer& pointer)
    {
        // The old target may own the very pointer that we were handed, so let go of it last.
        const Pointer old = _pointer;
        addRefCP(pointer);
        _pointer = pointer;
        subRefCP(old);
    }
    void operator=(const RefPtr& other) { *this = other._pointer; }

    operator Pointer() const { return _pointer; }
    Pointer get() const { return _pointer; }
    auto* operator->() const { return _pointer.operator->(); }
    auto& operator*() const { return *_pointer; }

private:
    Pointer _pointer;
};

} // namespace osg
