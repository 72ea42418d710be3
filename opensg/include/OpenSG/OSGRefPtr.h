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
        : m_pointer(pointer)
    {
        addRefCP(m_pointer);
    }
    RefPtr(const RefPtr& other)
        : RefPtr(other.m_pointer)
    {
    }
    ~RefPtr() { subRefCP(m_pointer); }

    void operator=(const Pointer& pointer)
    {
        // The old target may own the very pointer that we were handed, so let go of it last.
        const Pointer old = m_pointer;
        addRefCP(pointer);
        m_pointer = pointer;
        subRefCP(old);
    }
    void operator=(const RefPtr& other) { *this = other.m_pointer; }

    operator Pointer() const { return m_pointer; }
    Pointer get() const { return m_pointer; }
    auto* operator->() const { return m_pointer.operator->(); }
    auto& operator*() const { return *m_pointer; }

private:
    Pointer m_pointer;
};

} // namespace osg
