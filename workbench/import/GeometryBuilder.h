// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeometry.h>
#include <QtGlobal>

struct aiMesh;

/// Turns meshes into geometry cores with types, lengths, indices, positions and normals. Faces
/// that refer to vertices that do not exist are left out, coordinates that are not finite become
/// 0, and normals that the mesh lacks are made from its faces.
class GeometryBuilder
{
public:
    /// Builds everything at once; the mesh is not needed any more afterwards.
    explicit GeometryBuilder(const aiMesh& mesh);

    /// The core, whose reference the builder holds while it lives.
    osg::GeometryPtr geometry() const { return _geometry; }
    qint64 vertices() const { return _vertices; }
    qint64 faces() const { return _faces; }

private:
    void addFaces(const aiMesh& mesh);
    void addVertices(const aiMesh& mesh);
    void addNormals(const aiMesh& mesh);

    osg::GeometryRefPtr _geometry;
    osg::UInt32 _vertices = 0;
    qint64 _faces = 0;
};
