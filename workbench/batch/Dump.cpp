// SPDX-License-Identifier: MIT

#include "workbench/batch/Dump.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <utility>

namespace {

constexpr int spacesALevel = 2;

QString onOneLine(const QString& name)
{
    QString line;
    line.reserve(name.size());
    for (const QChar character : name) {
        if (character.category() == QChar::Other_Control)
            line += QStringLiteral("\\x%1").arg(character.unicode(), 2, 16, QChar(u'0'));
        else
            line += character;
    }
    return line;
}

QString textLine(const ListedNode& node)
{
    QString line = QString(node.depth * spacesALevel, u' ');
    line += node.name.isEmpty() ? QStringLiteral("(no name)") : onOneLine(node.name);
    line +=
        QStringLiteral(" [%1]").arg(node.type.isEmpty() ? QStringLiteral("no core") : node.type);
    const std::pair<bool, const char*> marks[] = {{node.isKey, " key"},
                                                  {node.disabled, " disabled"},
                                                  {node.shapeHidden, " shape-hidden"},
                                                  {node.hasProperties, " properties"},
                                                  {node.selected, " selected"}};
    for (const auto& [isSet, word] : marks) {
        if (isSet)
            line += QLatin1String(word);
    }
    return line;
}

/// As JSON writes it, with the quotes.
QString quoted(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.sliced(1, array.size() - 2));
}

QString jsonLine(const ListedNode& node)
{
    const QJsonObject object{{QStringLiteral("depth"), node.depth},
                             {QStringLiteral("name"), node.name},
                             {QStringLiteral("type"), node.type},
                             {QStringLiteral("key"), node.isKey},
                             {QStringLiteral("disabled"), node.disabled},
                             {QStringLiteral("shapeHidden"), node.shapeHidden},
                             {QStringLiteral("properties"), node.hasProperties},
                             {QStringLiteral("selected"), node.selected}};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

Dump::Dump(QTextStream& out, Format format, int frame)
    : _out(out)
    , _format(format)
{
    if (_format == Json) {
        _out << "{\n\"format\": \"subnode-dump\",\n\"version\": 1,\n\"frame\": " << frame
             << ",\n\"models\": [";
    }
}

Dump::~Dump()
{
    if (_format == Json)
        _out << "\n]\n}\n";
}

void Dump::writeModel(const QString& element, const std::vector<ListedNode>& nodes)
{
    if (_format == Text) {
        _out << onOneLine(element) << '\n';
        for (const ListedNode& node : nodes)
            _out << textLine(node) << '\n';
        return;
    }
    _out << (_isFirst ? "\n" : ",\n") << "{\"element\": " << quoted(element) << ", \"nodes\": [";
    _isFirst = false;
    const char* separator = "\n";
    for (const ListedNode& node : nodes) {
        _out << separator << jsonLine(node);
        separator = ",\n";
    }
    _out << (nodes.empty() ? "]}" : "\n]}");
}
