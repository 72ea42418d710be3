// SPDX-License-Identifier: MIT

#include "host/attributes/AT_StringAttr.h"
#include "host/commands/CO_CommandManager.h"
#include "host/commands/CO_MacroCommand.h"
#include "host/commands/tu_node.h"
#include "host/factories/MO_ModuleFactory.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_Model3DUtils.h"
#include "host/models/TD_SceneGraphDumper.h"
#include "host/models/TD_TransformManipulators.h"
#include "host/scene/MO_BaseContext.h"
#include "host/scene/MO_TypeKeys.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_NameGenerator.h"
#include "host/scene/SC_SessionContext.h"
#include "host/selection/SLB_ManipContext.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_SubSelectionUtil.h"
#include "host/services/PLUG_Services.h"
#include "responder/GT_CurrentSubnode.h"
#include "responder/GT_Graph3DResponder.h"
#include "responder/SetLocalValueCmd.h"

#include <QCoreApplication>
#include <memory>
#include <vector>

namespace {

/// How far below its element an output is put, in units of the node network.
constexpr double distanceBelow = 100.0;

/// From which number on, and in which steps, the second output of a name and further ones count.
constexpr int firstNameNumber = 2;
constexpr int nameStep = 1;

/// The manipulator if it is one for subnodes; null otherwise.
std::unique_ptr<TD_NodeWith3DSubNodeManipulator> subnodeManipulatorFor(SLB_NodeInterface* selected)
{
    std::unique_ptr<TD_Module3dTransformManipulator> manipulator(
        TD_Transformation3dUtil::createTransformation3dManipulator(selected));
    auto* forSubnodes = dynamic_cast<TD_NodeWith3DSubNodeManipulator*>(manipulator.get());
    if (!forSubnodes)
        return nullptr;
    static_cast<void>(manipulator.release());
    return std::unique_ptr<TD_NodeWith3DSubNodeManipulator>(forSubnodes);
}

/// The attribute that says which subnode the node follows; null when it has none.
AT_StringAttr* subnodeNameOf(const MO_Node& node)
{
    for (auto attr = node.attrsBegin(); attr != node.attrsEnd(); ++attr) {
        auto* text = dynamic_cast<AT_StringAttr*>(*attr);
        if (text && text->meta().keyword() == QLatin1String("Sub_Node_Name"))
            return text;
    }
    return nullptr;
}

/// A new, detached node of the type; null when the factory makes none or no node.
std::unique_ptr<MO_Node> newNode(const QString& type)
{
    std::unique_ptr<MO_Module> module = MO_ModuleFactorySingleton().create(type);
    auto* node = dynamic_cast<MO_Node*>(module.get());
    if (node)
        static_cast<void>(module.release());
    return std::unique_ptr<MO_Node>(node);
}

} // namespace

void GT_Graph3DResponder::onActionCreateSubNodeTransformation()
{
    SLB_NodeInterface* selected = GT_CurrentSubnode::selected();
    if (!selected)
        return;
    const auto manipulator = subnodeManipulatorFor(selected);
    SC_SessionContext* session = PLUG_Services::getSessionContext();
    if (!manipulator || !session)
        return;
    SLB_ManipContext context = GT_CurrentSubnode::manipContext(session, *selected);
    auto macro = std::make_unique<CO_OrCommand>(false);
    context.attachMacro(macro.get());
    manipulator->createSubNodeTransformations(context, selected);
    if (!macro->empty()) {
        session->commandManager()->execute(macro.release(),
                                           tr("Make Subnode Properties Available"));
    }
}

void GT_Graph3DResponder::onActionCreateSubNodeTransformationValidate(AC_ActionInfo* info)
{
    info->setEnabled(false);
    SLB_NodeWith3DSubNode* node = getNodeWithSubNodes(PLUG_Services::getSelection());
    SC_SessionContext* session = PLUG_Services::getSessionContext();
    if (!node || !session || !subnodeManipulatorFor(node))
        return;
    const SLB_ManipContext context = GT_CurrentSubnode::manipContext(session, *node);
    for (const int id : SL_SubSelectionUtil::getSubSelectedIds(node)) {
        std::uint32_t state = 0;
        if (node->subNodeTransformation(context.frame(), id, state) && state == 0) {
            info->setEnabled(true);
            return;
        }
    }
}

void GT_Graph3DResponder::onActionAddSubTransformationFilter()
{
    const SLB_NodeWith3DSubNode* node = getNodeWithSubNodes(PLUG_Services::getSelection());
    if (!node || !PLUG_Services::getSessionContext())
        return;
    std::vector<AT_ModelNodeKey> keys;
    for (const int id : SL_SubSelectionUtil::getSubSelectedIds(node)) {
        AT_ModelNodeKey key;
        if (node->subNodeKey(id, key))
            keys.push_back(key);
    }
    // Each output is told of at once, and a listener may change the selection then, or the scene.
    const UT_SharedWeakPtr<MO_Node> element(node->selectable());
    for (const AT_ModelNodeKey& key : keys) {
        if (element.get())
            addSubTransformationFilter(*element.get(), key);
    }
}

void GT_Graph3DResponder::addSubTransformationFilter(MO_Node& element,
                                                     const AT_ModelNodeKey& key) const
{
    std::unique_ptr<MO_Node> node = newNode(STRING_KEY_3D_KINEMATIC_OUTPUT);
    TUScene* scene = element.scene();
    if (!node || !scene)
        return;
    node->initialize(scene);
    MO_GroupModule* group = element.parentGroup() ? element.parentGroup() : scene->rootGroup();
    node->setInstanceName(SC_NameGenerator::uniqueName(key.name() + QStringLiteral("-Output"),
                                                       group, firstNameNumber, nameStep));
    node->setX(element.x());
    node->setY(element.y() + distanceBelow);

    const QString name = QCoreApplication::translate("Scene", "Add \"%1\" node")
                             .arg(node->displayName(), 0, QLatin1Char(' '));
    AT_StringAttr* subnodeName = subnodeNameOf(*node);
    MO_Node* added = node.get();
    auto command = std::make_unique<CO_AndCommand>();
    command->append(new tu_node::AddSubNodeCmd(group, node.release()));
    command->append(new tu_node::LinkCmd(added, 0, &element, 0, nullptr));
    if (subnodeName)
        command->append(new tu_attr::SetLocalValueCmd<AT_StringAttr>(subnodeName, key.name()));
    PLUG_Services::getSessionContext()->commandManager()->execute(command.release(), name);
}

void GT_Graph3DResponder::onActionAddSubTransformationFilterValidate(AC_ActionInfo* info)
{
    info->setEnabled(hasSubnodeSelected());
}

void GT_Graph3DResponder::onActionDumpSceneGraphInformation()
{
    const SLB_NodeWith3DSubNode* node = getNodeWithSubNodes(PLUG_Services::getSelection());
    const SC_SessionContext* session = PLUG_Services::getSessionContext();
    if (!node || !session)
        return;
    MO_Node* element = node->selectable();
    const MO_BaseContext context =
        session->currentFrameInterface()->frameContext(element->sceneCommon());
    if (const CEL_SharedPtr<TD_CelVq3d> model = TD_Model3DUtils::get3dModel(context, element))
        TD_SceneGraphDumper().dump(model->rootNodePtr());
}

void GT_Graph3DResponder::onActionDumpSceneGraphInformationValidate(AC_ActionInfo* info)
{
    info->setEnabled(getNodeWithSubNodes(PLUG_Services::getSelection()) != nullptr);
}
