// SPDX-License-Identifier: MIT
#include "host/models/TD_SceneGraphDumper.h"

#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"
#include "referencehost/services/Diagnostics.h"

#include <OpenSG/OSGTransform.h>
#include <QCoreApplication>
#include <QTextStream>
#include <algorithm>
#include <vector>

namespace {

constexpr int indentation = 2;
/// Deeper nodes stand below each other, or a deep chain would be mostly blanks.
constexpr int deepestIndented = 100;
constexpr int matrixRows = 4;

void writeMatrix(QTextStream& out, const osg::Matrix& matrix)
{
    // Stored by columns, written by rows.
    for (int row = 0; row < matrixRows; ++row) {
        out << (row == 0 ? " [" : "; ");
        for (int column = 0; column < matrixRows; ++column)
            out << (column == 0 ? "" : " ") << matrix[column][row];
    }
    out << ']';
}

void writeNode(QTextStream& out, const osg::NodePtr& node, int depth)
{
    const osg::NodeCorePtr core = node->getCore();
    const QString name = TD_nodeName(node);
    out << QString(std::min(depth, deepestIndented) * indentation, u' ')
        << (name.isEmpty() ? QStringLiteral("-") : name) << " ("
        << (core == osg::NullFC ? "no core" : core->getType().getCName()) << ')';
    if (TD_SceneGraphUtil::isKeySubnode(node))
        out << " *";
    out << ' ' << node->getNChildren();
    if (core != osg::NullFC && core->getType().isDerivedFrom(osg::Transform::getClassType())) {
        const osg::Matrix matrix = osg::TransformPtr::dcast(core)->getMatrix();
        if (!(matrix == osg::Matrix()))
            writeMatrix(out, matrix);
    }
    out << '\n';
}

} // namespace

QString TD_SceneGraphDumper::text(const osg::NodePtr& root)
{
    QString result;
    QTextStream out(&result);
    if (root == osg::NullFC) {
        out << QCoreApplication::translate("TD_SceneGraphDumper", "There is no scene graph.")
            << '\n';
        return result;
    }
    struct Placed
    {
        osg::NodePtr node;
        int depth;
    };
    std::vector<Placed> pending{{root, 0}};
    while (!pending.empty()) {
        const Placed next = pending.back();
        pending.pop_back();
        writeNode(out, next.node, next.depth);
        for (osg::UInt32 i = next.node->getNChildren(); i > 0; --i)
            pending.push_back({next.node->getChild(i - 1), next.depth + 1});
    }
    return result;
}

void TD_SceneGraphDumper::dump(const osg::NodePtr& root) const
{
    Diagnostics::write(text(root));
}
