// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ModelStreamFormat.h"

#include <OpenSG/OSGGeometry.h>

/// Puts a mesh together from portions of its properties, none of which is trusted. Memory is taken
/// only as portions arrive, whatever sizes were announced. Owns a reference of the geometry.
class MeshAssembler
{
public:
    /// The sizes are those of the whole mesh.
    MeshAssembler(quint32 primitives, quint32 indices, quint32 vertices);

    /// What a mesh of these sizes takes, in bytes.
    static qint64 cost(quint32 primitives, quint32 indices, quint32 vertices);

    /// False for a kind of frame that belongs to no mesh, for values that no mesh may have, and for
    /// more of them than announced.
    bool add(ModelStream::Frame kind, const char* content, qsizetype size);
    /// Whether everything announced has come.
    bool isComplete() const;
    /// False unless the primitives of the complete mesh use its indices up exactly. Counts faces.
    bool isSound();

    osg::GeometryPtr geometry() const { return _geometry; }
    qint64 vertices() const { return _vertices; }
    /// Known once the mesh was found to be sound.
    qint64 faces() const { return _faces; }

private:
    bool hasLegalTypes(const char* content, qsizetype size) const;

    quint32 _primitives;
    quint32 _indices;
    quint32 _vertices;
    qint64 _faces = 0;
    osg::GeometryRefPtr _geometry;
    osg::GeoPTypesUI8Ptr _typeList;
    osg::GeoPLengthsUI32Ptr _lengthList;
    osg::GeoIndicesUI32Ptr _indexList;
    osg::GeoPositions3fPtr _positionList;
    osg::GeoNormals3fPtr _normalList;
};
