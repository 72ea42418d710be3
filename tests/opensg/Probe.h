// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGTransform.h>

#include <vector>

/// A transform that reports its life and its edits. Sitting in a node as its core, it dies with
/// that node, so it tells of nodes, too. A type that does not come from the library, as well.
class Probe : public osg::Transform
{
public:
    typedef osg::FCPtr<osg::TransformPtr, Probe> Ptr;
    struct Edit
    {
        osg::BitVector fields;
        osg::UInt32 origin;
        bool operator==(const Edit&) const = default;
    };

    static osg::FieldContainerType& getClassType() { return s_type; }
    osg::FieldContainerType& getType() override { return s_type; }
    const osg::FieldContainerType& getType() const override { return s_type; }

    static Ptr create() { return canCreate() ? Ptr(new Probe) : Ptr(); }

    void changed(osg::BitVector whichField, osg::UInt32 origin) override
    {
        edits.push_back({whichField, origin});
    }

    /// How many of them live.
    static inline int alive = 0;
    std::vector<Edit> edits;

protected:
    Probe() { ++alive; }
    ~Probe() override { --alive; }

private:
    static inline osg::FieldContainerType s_type{"Probe", "Transform"};
};
