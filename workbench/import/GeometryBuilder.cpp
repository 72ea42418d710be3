// SPDX-License-Identifier: MIT
#include "workbench/import/GeometryBuilder.h"

#include <assimp/mesh.h>
#include <cmath>
#include <vector>

namespace {

// Primitives have the numbers that OpenGL gives them.
constexpr osg::UInt32 points = 0x0000;
constexpr osg::UInt32 lines = 0x0001;
constexpr osg::UInt32 triangles = 0x0004;
constexpr osg::UInt32 polygon = 0x0009;

osg::UInt32 primitiveOf(unsigned corners)
{
    switch (corners) {
    case 1:
        return points;
    case 2:
        return lines;
    case 3:
        return triangles;
    default:
        return polygon;
    }
}

float finite(float value)
{
    return std::isfinite(value) ? value : 0.0F;
}

bool isUsable(const aiFace& face, unsigned vertices)
{
    if (face.mNumIndices == 0 || !face.mIndices)
        return false;
    for (unsigned i = 0; i < face.mNumIndices; ++i) {
        if (face.mIndices[i] >= vertices)
            return false;
    }
    return true;
}

/// The sum of the normals of the faces around each vertex, large faces counting more.
std::vector<aiVector3D> normalsFromFaces(const aiMesh& mesh, unsigned vertices)
{
    std::vector<aiVector3D> normals(vertices);
    if (!mesh.mVertices)
        return normals;
    for (unsigned i = 0; mesh.mFaces && i < mesh.mNumFaces; ++i) {
        const aiFace& face = mesh.mFaces[i];
        if (face.mNumIndices < 3 || !isUsable(face, vertices))
            continue;
        const aiVector3D& first = mesh.mVertices[face.mIndices[0]];
        aiVector3D normal;
        for (unsigned j = 2; j < face.mNumIndices; ++j) {
            normal += (mesh.mVertices[face.mIndices[j - 1]] - first) ^
                      (mesh.mVertices[face.mIndices[j]] - first);
        }
        for (unsigned j = 0; j < face.mNumIndices; ++j)
            normals[face.mIndices[j]] += normal;
    }
    for (aiVector3D& normal : normals) {
        const float length = normal.Length();
        // Vertices without a face still need a direction, or lighting divides by zero.
        normal = std::isnormal(length) ? normal / length : aiVector3D(0, 0, 1);
    }
    return normals;
}

} // namespace

GeometryBuilder::GeometryBuilder(const aiMesh& mesh)
    : _geometry(osg::Geometry::create())
    , _vertices(mesh.mVertices ? mesh.mNumVertices : 0)
{
    const osg::GeometryPtr core = _geometry;
    osg::beginEditCP(core);
    addVertices(mesh);
    addNormals(mesh);
    addFaces(mesh);
    osg::endEditCP(core);
}

void GeometryBuilder::addFaces(const aiMesh& mesh)
{
    const osg::GeoPTypesPtr types = osg::GeoPTypesUI8::create();
    const osg::GeoPLengthsPtr lengths = osg::GeoPLengthsUI32::create();
    const osg::GeoIndicesPtr indices = osg::GeoIndicesUI32::create();
    _geometry->setTypes(types);
    _geometry->setLengths(lengths);
    _geometry->setIndices(indices);

    // Faces of one kind in a row make one primitive, polygons one each.
    osg::UInt32 current = polygon;
    osg::UInt32 length = 0;
    const auto finish = [&] {
        if (length == 0)
            return;
        types->push_back(current);
        lengths->push_back(length);
        length = 0;
    };
    for (unsigned i = 0; mesh.mFaces && i < mesh.mNumFaces; ++i) {
        const aiFace& face = mesh.mFaces[i];
        if (!isUsable(face, _vertices))
            continue;
        const osg::UInt32 primitive = primitiveOf(face.mNumIndices);
        if (primitive != current || primitive == polygon)
            finish();
        current = primitive;
        length += face.mNumIndices;
        for (unsigned j = 0; j < face.mNumIndices; ++j)
            indices->push_back(face.mIndices[j]);
        ++_faces;
    }
    finish();
}

void GeometryBuilder::addVertices(const aiMesh& mesh)
{
    const osg::GeoPositionsPtr positions = osg::GeoPositions3f::create();
    _geometry->setPositions(positions);
    positions->resize(_vertices);
    for (osg::UInt32 i = 0; i < _vertices; ++i) {
        const aiVector3D& at = mesh.mVertices[i];
        positions->setValue(osg::Pnt3f(finite(at.x), finite(at.y), finite(at.z)), i);
    }
}

void GeometryBuilder::addNormals(const aiMesh& mesh)
{
    const osg::GeoNormalsPtr normals = osg::GeoNormals3f::create();
    _geometry->setNormals(normals);
    normals->resize(_vertices);
    std::vector<aiVector3D> made;
    if (!mesh.mNormals)
        made = normalsFromFaces(mesh, _vertices);
    const aiVector3D* const all = mesh.mNormals ? mesh.mNormals : made.data();
    for (osg::UInt32 i = 0; i < _vertices; ++i)
        normals->setValue(osg::Vec3f(finite(all[i].x), finite(all[i].y), finite(all[i].z)), i);
}
