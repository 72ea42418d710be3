// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/import/NodeRoles.h"
#include "workbench/import/UniqueNames.h"
#include "workbench/modelstream/ImportResult.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>
#include <string>
#include <vector>

struct aiNode;
class AssimpReader;
class ImportProgress;

/// Builds the scene graph of one file that a reader has read. It goes through the hierarchy with a
/// list of what is still to do, so the depth of a file costs no stack here. Used once.
class SceneConverter
{
public:
    /// The progress may be null; the conversion takes it from the given fraction to 1.
    SceneConverter(const AssimpReader& reader, ImportProgress* progress, double begin);

    /// The root, with all names unique; NullFC if the import was cancelled.
    osg::NodeRefPtr convert();
    const ImportStatistics& statistics() const { return _statistics; }

    /// Whether the file holds nothing below its root and nothing in it.
    static bool isEmpty(const AssimpReader& reader);

private:
    struct Pending
    {
        const aiNode* node;
        const aiNode* parent;
        osg::NodePtr above;
    };
    struct Named
    {
        osg::NodePtr node;
        std::string name;
    };

    /// NullFC for a node that the reader left out.
    osg::NodePtr makeNode(const Pending& pending);
    osg::NodeCorePtr makeCore(const aiNode& node, NodeRole role);
    void addMeshes(const aiNode& node, const osg::NodePtr& below);
    osg::GeometryPtr geometryOf(unsigned mesh);
    bool goesOn(std::size_t done, std::size_t known);
    void giveNames();

    const AssimpReader& _reader;
    ImportProgress* _progress;
    double _begin;
    NodeRoles _roles;
    ImportStatistics _statistics;
    std::vector<osg::GeometryRefPtr> _geometries;
    std::vector<Named> _keyNames;
    std::vector<Named> _otherNames;
    std::vector<Named> _meshNames;
};
