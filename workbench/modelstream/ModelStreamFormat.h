// SPDX-License-Identifier: MIT
#pragma once

#include <QDataStream>

/// How an imported model looks on its way from one process to another. A head of the magic bytes
/// and the version is followed by frames: a byte for the kind, four for the length, and the
/// content. All numbers are little-endian, all real ones have four bytes.
///
/// Nodes come in pre-order with their level, so neither side needs a stack for the depth. A mesh
/// comes before the first node that shows it: its sizes, then its properties in portions. Any
/// number of Progress frames may stand between the others; Failure or End is the last one.
namespace ModelStream {

constexpr char magic[] = {'S', 'u', 'b', 'n', 'o', 'd', 'e', 's'};
constexpr quint32 version = 1;
constexpr qsizetype headSize = sizeof magic + sizeof version;
constexpr qsizetype frameHeadSize = 5;

/// No frame is larger, which bounds what a reader has to hold back until the frame is whole.
constexpr quint32 frameLimit = 1024 * 1024;
/// What a writer aims at, so that work on both sides of a pipe overlaps.
constexpr qsizetype frameAim = 64 * 1024;
constexpr quint32 nameLimit = 64 * 1024;

enum class Frame : quint8
{
    /// The fraction that is done.
    Progress = 1,
    /// A byte that is 1 if the import was cancelled, then the message in UTF-8.
    Failure,
    /// The numbers of primitives, indices and vertices.
    Mesh,
    Types,
    Lengths,
    Indices,
    Positions,
    Normals,
    /// Any number of whole nodes: a byte for the kind, with namedBit set if there is a name; the
    /// level; the name's length and bytes; then 16 numbers column by column for a transform, or the
    /// number of the mesh for geometry.
    Nodes,
    /// The numbers of nodes, meshes and renamed nodes.
    End
};

enum class Kind : quint8
{
    KeyTransform = 1,
    Transform,
    Group,
    Geometry
};
constexpr quint8 namedBit = 0x80;

/// The kinds of primitives, by the numbers that OpenGL gives them.
enum class Primitive : quint8
{
    Points = 0,
    Lines = 1,
    Triangles = 4,
    Polygon = 9
};

/// Makes a stream write and read numbers as they are sent.
inline void prepare(QDataStream& stream)
{
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
}

} // namespace ModelStream
