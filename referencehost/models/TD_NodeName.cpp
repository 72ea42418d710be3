// SPDX-License-Identifier: MIT
#include "host/models/TD_NodeName.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <QStringDecoder>
#include <cstring>

namespace {

/// Null when the bytes are not UTF-8 throughout.
QString readAsUtf8(QByteArrayView bytes)
{
    // Without the flag a byte order mark is dropped, and two different names would read alike.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                       QStringConverter::Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString() : text;
}

} // namespace

QString TD_nodeName(const osg::NodePtr& node)
{
    const osg::Char8* name = osg::getName(node);
    if (!name)
        return QString();

    // Nearly every name is ASCII and this runs for each node of large models, so the bytes are
    // widened and judged in one pass. Widened bytes are also what Latin-1 means.
    const auto length = static_cast<qsizetype>(std::strlen(name));
    QString latin1(length, Qt::Uninitialized);
    QChar* out = latin1.data();
    unsigned char allBits = 0;
    for (qsizetype i = 0; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(name[i]);
        allBits |= byte;
        out[i] = QChar(char16_t(byte));
    }
    if (allBits < 0x80)
        return latin1;
    const QString utf8 = readAsUtf8(QByteArrayView(name, length));
    return utf8.isNull() ? latin1 : utf8;
}
