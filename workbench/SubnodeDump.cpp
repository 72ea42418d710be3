// SPDX-License-Identifier: MIT

#include "workbench/SubnodeDump.h"

#include "host/models/TD_NodeName.h"

#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGNodeCore.h>
#include <QTextStream>
#include <vector>

namespace {

constexpr int spacesALevel = 2;

struct PendingNode
{
    osg::NodePtr node;
    int level;
};

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

QString typeName(const osg::NodePtr& node)
{
    const osg::NodeCorePtr core = node->getCore();
    return core == osg::NullFC ? QStringLiteral("no core")
                               : QString::fromLatin1(core->getType().getCName());
}

bool isKeyNode(const osg::NodePtr& node)
{
    const osg::NodeCorePtr core = node->getCore();
    return core != osg::NullFC && core->getType().isDerivedFrom(osg::KeyTransform::getClassType());
}

} // namespace

SubnodeDump::SubnodeDump(QTextStream& out, bool everyNode)
    : _out(out)
    , _everyNode(everyNode)
{
}

void SubnodeDump::write(const QString& title, const osg::NodePtr& root)
{
    _out << onOneLine(title) << '\n';
    if (root == osg::NullFC)
        return;
    std::vector<PendingNode> pending{{root, 1}};
    while (!pending.empty()) {
        const PendingNode next = pending.back();
        pending.pop_back();
        const bool shown = _everyNode || isKeyNode(next.node);
        if (shown) {
            const QString name = TD_nodeName(next.node);
            _out << QString(next.level * spacesALevel, u' ')
                 << (name.isEmpty() ? QStringLiteral("(no name)") : onOneLine(name));
            if (_everyNode)
                _out << " [" << typeName(next.node) << ']';
            _out << '\n';
        }
        const int childLevel = shown ? next.level + 1 : next.level;
        for (osg::UInt32 i = next.node->getNChildren(); i > 0; --i)
            pending.push_back({next.node->getChild(i - 1), childLevel});
    }
}
