// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGRefPtr.h>

namespace osg {

/// Sets of fields that mean something for every container.
struct FieldBits
{
    static constexpr BitVector NoField = 0;
    static constexpr BitVector AllFields = ~BitVector(0);
};

/// Who changed a container.
struct ChangedOrigin
{
    static constexpr UInt32 External = 1;
};

/// The base of everything that is shared and counted: nodes, cores, properties. Containers are
/// made by create() of their class, which gives NullFC before osgInit(), and destroyed by their
/// reference count alone. The count is not atomic: a graph belongs to one thread at a time.
class OSG_CORE_API FieldContainer
{
public:
    typedef FieldContainerPtr Ptr;

    FieldContainer(const FieldContainer&) = delete;
    FieldContainer& operator=(const FieldContainer&) = delete;

    static FieldContainerType& getClassType();
    virtual FieldContainerType& getType();
    virtual const FieldContainerType& getType() const;

    /// Called at the end of each edit with the fields that were edited.
    virtual void changed(BitVector whichField, UInt32 origin);

protected:
    FieldContainer() = default;
    virtual ~FieldContainer();

    /// Whether create() may make something: only while the library is started.
    static bool canCreate();

private:
    friend OSG_CORE_API void addRefCP(const FieldContainerPtr& pointer);
    friend OSG_CORE_API void subRefCP(const FieldContainerPtr& pointer);

    static void destroy(FieldContainer* container);

    Int32 _references = 0;
};

typedef RefPtr<FieldContainerPtr> FieldContainerRefPtr;

/// Brackets a change of the given fields. The beginning costs nothing; the end tells the container
/// through changed(). Null is ignored.
OSG_CORE_API void beginEditCP(const FieldContainerPtr& pointer,
                              BitVector whichField = FieldBits::AllFields,
                              UInt32 origin = ChangedOrigin::External);
OSG_CORE_API void endEditCP(const FieldContainerPtr& pointer,
                            BitVector whichField = FieldBits::AllFields,
                            UInt32 origin = ChangedOrigin::External);

/// One edit, from its construction to the end of its scope. Usually written as CPEdit().
class CPEditor
{
public:
    explicit CPEditor(const FieldContainerPtr& pointer, BitVector whichField = FieldBits::AllFields)
        : _pointer(pointer)
        , _whichField(whichField)
    {
        beginEditCP(_pointer, _whichField);
    }
    ~CPEditor() { endEditCP(_pointer, _whichField); }
    CPEditor(const CPEditor&) = delete;
    CPEditor& operator=(const CPEditor&) = delete;

private:
    FieldContainerPtr _pointer;
    BitVector _whichField;
};

} // namespace osg

#define OSG_CPEDIT_JOIN(a, b) a##b
#define OSG_CPEDIT_NAME(line) OSG_CPEDIT_JOIN(cpEditOfLine, line)

/// Edits the given fields of a container until the end of the enclosing block. A statement.
#define CPEdit(pointer, whichField)                                                                \
    const osg::CPEditor OSG_CPEDIT_NAME(__LINE__)((pointer), (whichField))
