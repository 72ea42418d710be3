// SPDX-License-Identifier: MIT
#include "FilesTesting.h"

#include "host/attributes/AT_StringAttr.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_SceneGraphDumper.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"

#include <QTextStream>
#include <QUndoStack>
#include <vector>

namespace {

/// A bit for bit picture of the number, whose sign of zero does not matter.
QString exact(double number)
{
    return QString::asprintf("%a", number == 0.0 ? 0.0 : number);
}

/// Where a node stands: the positions in its groups from the root down.
QString placeOf(const MO_Node* node)
{
    QStringList positions;
    for (; node && node->parentGroup(); node = node->parentGroup())
        positions.prepend(QString::number(node->parentGroup()->indexOf(node)));
    return positions.join(u'/');
}

QString quoted(const QString& text)
{
    return QString::fromLatin1(text.toUtf8().toHex(' ')) + QStringLiteral(" (%1)").arg(text.size());
}

void dumpElement(QTextStream& out, const MO_ElementModule& element, const ModelLibrary& library)
{
    out << "  editable " << element.isEditable() << '\n';
    for (const MO_ElementModule::Exposure& exposure : element.exposures()) {
        out << "  shows " << exposure.firstFrame << " to " << exposure.lastFrame << " of "
            << library.originOf(exposure.model).path << '\n'
            << TD_SceneGraphDumper::text(exposure.model->rootNodePtr()) << '\n';
    }
    for (const int frame : element.seqMetaFrames()) {
        out << "  settings from " << frame << '\n';
        for (const auto& [key, data] : element.seqMeta(frame)->records()) {
            out << "    " << quoted(key.name()) << ' ' << data.visible << data.localVisible
                << data.hasTransformation;
            for (osg::UInt32 i = 0; i < 16; ++i)
                out << ' ' << exact(data.transformation[i / 4][i % 4]);
            out << '\n';
        }
    }
}

void dumpNode(QTextStream& out, const MO_Node& node, const ModelLibrary& library)
{
    out << placeOf(&node) << ' ' << node.typeName() << ' ' << quoted(node.instanceName()) << " at "
        << exact(node.x()) << ' ' << exact(node.y()) << " ports " << node.nInPorts() << ' '
        << node.nOutPorts() << '\n';
    for (auto it = node.attrsBegin(); it != node.attrsEnd(); ++it) {
        out << "  attribute " << (*it)->meta().keyword() << ' '
            << quoted(dynamic_cast<const AT_StringAttr&>(**it).localValue()) << '\n';
    }
    if (const auto* element = dynamic_cast<const MO_ElementModule*>(&node))
        dumpElement(out, *element, library);
    for (int i = 0; i < node.nOutPorts(); ++i) {
        for (const MO_Port* port : node.outPort(i)->dstPorts()) {
            int index = 0;
            while (port->node()->inPort(index) != port)
                ++index;
            out << "  output " << i << " to " << placeOf(port->node()) << ' ' << index << '\n';
        }
    }
}

void dumpSelected(QTextStream& out, const MO_Node& node)
{
    out << "selected " << placeOf(&node);
    const auto* element = dynamic_cast<const MO_ElementModule*>(&node);
    for (const int id : node.selInterface()->subSelectedIds()) {
        AT_ModelNodeKey key;
        if (element && element->getNodeKeyForSelId(id, key))
            out << " " << quoted(key.name());
    }
    out << '\n';
}

} // namespace

QString dumpOf(HostSession& session, const ModelLibrary& library)
{
    QString text;
    QTextStream out(&text);
    const TUScene* scene = session.currentScene();
    out << "scene " << quoted(scene->name()) << " frame "
        << session.context().currentFrameInterface()->currentFrame(scene) << " undo steps "
        << session.context().commandManager()->history()->count() << '\n';
    std::vector<const MO_Node*> pending{scene->rootGroup()};
    while (!pending.empty()) {
        const MO_Node* node = pending.back();
        pending.pop_back();
        dumpNode(out, *node, library);
        if (const auto* group = dynamic_cast<const MO_GroupModule*>(node)) {
            for (const MO_Node* child : group->nodes())
                pending.push_back(child);
        }
    }
    for (const MO_Node* node : session.context().selection()->nodes())
        dumpSelected(out, *node);
    out.flush();
    return text;
}
