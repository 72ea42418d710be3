// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ModelStreamReader.h"
#include "workbench/modelstream/ModelStreamWriter.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QBuffer>
#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

QByteArray encoded(const ImportResult& result)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ModelStreamWriter writer(buffer);
    require(writer.writeResult(result));
    return buffer.data();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using State = ModelStreamReader::State;
    constexpr qint64 memory = 16 * 1024 * 1024;
    constexpr qsizetype portion = 7;
    static const bool isStarted = osg::osgInit(0, nullptr);
    require(isStarted);

    const auto* const bytes = reinterpret_cast<const char*>(data);
    const auto end = static_cast<qsizetype>(size);
    ModelStreamReader whole(memory);
    whole.feed(bytes, end);
    ModelStreamReader slow(memory);
    for (qsizetype at = 0; at < end; at += portion)
        slow.feed(bytes + at, std::min(portion, end - at));
    require(whole.state() == slow.state());

    const ImportResult result = whole.result();
    require(result.succeeded() == (result.root != osg::NullFC));
    if (whole.state() != State::Complete) {
        require(!result.succeeded());
        return 0;
    }

    // What was accepted can be sent on, and says the same again.
    const QByteArray sent = encoded(result);
    ModelStreamReader again(memory);
    require(again.feed(sent.constData(), sent.size()) == State::Complete);
    require(encoded(again.result()) == sent);
    return 0;
}
