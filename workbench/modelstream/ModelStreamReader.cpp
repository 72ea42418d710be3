// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ModelStreamReader.h"

#include "workbench/modelstream/OneLine.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QtEndian>
#include <algorithm>
#include <cstring>

using namespace ModelStream;

namespace {

/// False unless the content is these numbers and nothing else.
template <class... Numbers>
bool unpack(const QByteArray& content, Numbers&... numbers)
{
    QDataStream stream(content);
    prepare(stream);
    (stream >> ... >> numbers);
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

} // namespace

ModelStreamReader::ModelStreamReader(qint64 memoryLimit)
    : _scene(memoryLimit)
{
}

ImportResult ModelStreamReader::result() const
{
    if (_state == State::Complete && !_failure.error.isEmpty())
        return _failure;
    ImportResult result;
    if (_state == State::Complete) {
        result.root = osg::NodeRefPtr(_scene.root());
        result.statistics = _scene.statistics();
    } else {
        result.error =
            QCoreApplication::translate("ModelStreamReader", "the model arrived damaged");
    }
    return result;
}

ModelStreamReader::State ModelStreamReader::feed(const char* bytes, qsizetype size)
{
    if (size <= 0 || _state == State::Damaged)
        return _state;
    _bytes.append(bytes, size);
    if (_hasHead || readHead()) {
        while (readFrame())
            continue;
    }
    _bytes.remove(0, _done);
    _done = 0;
    return _state;
}

bool ModelStreamReader::readHead()
{
    // Something else is told by its first bytes already, and may never be as long as a head.
    const qsizetype known = std::min<qsizetype>(_bytes.size(), sizeof magic);
    if (std::memcmp(_bytes.constData(), magic, static_cast<std::size_t>(known)) != 0)
        _state = State::Damaged;
    if (_state == State::Damaged || _bytes.size() < headSize)
        return false;
    if (qFromLittleEndian<quint32>(_bytes.constData() + sizeof magic) != version) {
        _state = State::Damaged;
        return false;
    }
    _done = headSize;
    _hasHead = true;
    return true;
}

bool ModelStreamReader::readFrame()
{
    const qsizetype there = _bytes.size() - _done;
    if (there == 0 || _state == State::Damaged)
        return false;
    if (_state == State::Complete) {
        _state = State::Damaged;
        return false;
    }
    if (there < frameHeadSize)
        return false;
    const char* const head = _bytes.constData() + _done;
    const auto size = qFromLittleEndian<quint32>(head + 1);
    if (size > frameLimit) {
        _state = State::Damaged;
        return false;
    }
    if (there < frameHeadSize + qsizetype(size))
        return false;
    const auto kind = Frame(static_cast<quint8>(*head));
    if (!take(kind, QByteArray::fromRawData(head + frameHeadSize, size)))
        _state = State::Damaged;
    _done += frameHeadSize + qsizetype(size);
    return true;
}

bool ModelStreamReader::take(Frame kind, const QByteArray& content)
{
    switch (kind) {
    case Frame::Progress:
        return takeProgress(content);
    case Frame::Failure:
        return takeFailure(content);
    case Frame::Mesh:
        return takeMesh(content);
    case Frame::Nodes:
        return takeNodes(content);
    case Frame::End:
        return takeEnd(content);
    default:
        return _scene.addToMesh(kind, content.constData(), content.size());
    }
}

bool ModelStreamReader::takeProgress(const QByteArray& content)
{
    float fraction = 0.0F;
    // Written so that it is false for what is no number.
    if (!unpack(content, fraction) || !(fraction >= 0.0F && fraction <= 1.0F))
        return false;
    _progress = std::max(_progress, static_cast<double>(fraction));
    return true;
}

bool ModelStreamReader::takeFailure(const QByteArray& content)
{
    if (content.isEmpty() || !_scene.isEmpty() || static_cast<quint8>(content[0]) > 1)
        return false;
    _failure.cancelled = content[0] != 0;
    _failure.error = oneLine(QString::fromUtf8(content.sliced(1)));
    _state = State::Complete;
    return !_failure.error.isEmpty();
}

bool ModelStreamReader::takeMesh(const QByteArray& content)
{
    quint32 primitives = 0;
    quint32 indices = 0;
    quint32 vertices = 0;
    return unpack(content, primitives, indices, vertices) &&
           _scene.startMesh(primitives, indices, vertices);
}

bool ModelStreamReader::takeNodes(const QByteArray& content)
{
    QDataStream stream(content);
    prepare(stream);
    return _scene.addNodes(stream);
}

bool ModelStreamReader::takeEnd(const QByteArray& content)
{
    quint32 nodes = 0;
    quint32 meshes = 0;
    quint32 renamed = 0;
    if (!unpack(content, nodes, meshes, renamed) || !_scene.finish(nodes, meshes, renamed))
        return false;
    _state = State::Complete;
    return true;
}
