// SPDX-License-Identifier: MIT
// The smallest application that has everything: a scene with one model, both views on it, a menu of
// actions, undo and redo.

#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/actions/AC_Manager.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUScene.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"
#include "responder/GT_Graph3DResponder.h"
#include "subnodetree/SGV_Graph3DView.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QSplitter>
#include <QUndoStack>
#include <initializer_list>
#include <memory>

namespace {

/// An action names a slot and who has it: the views and the responder each go by a name of their
/// own. What can be done at the moment is found out by asking them, so nothing here enables or
/// disables anything.
constexpr char definitions[] = R"(
<definitions>
  <action id="HIDE" responder="GV_GraphView" slot="onActionHideNodes" text="&amp;Hide"
          shortcuts="H"/>
  <action id="SHOW" responder="GV_GraphView" slot="onActionShowNodes" text="&amp;Show"
          shortcuts="Shift+H"/>
  <action id="PARENT" responder="graph3dresponder" slot="onActionSelectParent"
          text="Select &amp;Parent" shortcuts="Alt+Up"/>
  <action id="CHILD" responder="graph3dresponder" slot="onActionSelectChild"
          text="Select First &amp;Child" shortcuts="Alt+Down"/>
  <menu id="SUBNODES" text="&amp;Subnodes">
    <item action="HIDE"/>
    <item action="SHOW"/>
    <separator/>
    <item action="PARENT"/>
    <item action="CHILD"/>
  </menu>
</definitions>)";

/// A part that can be selected and hidden, with a shape of its own. It is the KeyTransform that
/// makes it a subnode; nodes with other cores are how the model is made, and stay in the
/// background.
osg::NodePtr newPart(const char* name, std::initializer_list<osg::NodePtr> below = {})
{
    osg::NodePtr part = osg::makeCoredNode<osg::KeyTransform>();
    osg::setName(part, name);
    part->addChild(osg::makeCoredNode<osg::Geometry>());
    for (const osg::NodePtr& child : below)
        part->addChild(child);
    return part;
}

osg::NodePtr newLamp()
{
    return newPart("Base",
                   {newPart("LowerArm", {newPart("UpperArm", {newPart("Shade"), newPart("Bulb")}),
                                         newPart("LowerSpring")}),
                    newPart("Switch")});
}

/// Puts the model into the scene, to be seen on the frames from 1 to 100, and selects it: the views
/// show what is selected.
void addModel(HostSession& session, const QString& name, const osg::NodePtr& root)
{
    auto element = std::make_unique<MO_ElementModule>(name);
    element->exposeModel(1, 100, std::make_shared<TD_CelVq3d>(root));
    MO_Node* node = session.currentScene()->rootGroup()->insertNode(std::move(element));

    // The views hear of the change when the scope ends, once, however much is selected in it.
    const SL_Selection::BatchSelectionModeScope scope(session.context().selection());
    session.context().selection()->add(node);
}

/// Graph view and subnode tree side by side. They do not know each other: what is selected in one
/// is selected in the host, and the other follows that.
QWidget* newViews(SC_SessionContext& context, QWidget* parent)
{
    auto* views = new QSplitter(parent);

    auto* tree = new SGV_Graph3DView(context.actionManager(), views, &context);
    tree->init();
    views->addWidget(tree);

    auto* graph = new GV_GraphXViewQt(context.actionManager(), views, &context);
    graph->init(new GV_GraphXViewCtrl(graph, &context));
    views->addWidget(graph);

    views->setSizes({250, 650});
    return views;
}

void addMenus(SC_SessionContext& context, QMainWindow& window)
{
    // Every change that views and responder make is a step in the host's history.
    const QUndoStack* history = context.commandManager()->history();
    QMenu* edit = window.menuBar()->addMenu(QStringLiteral("&Edit"));
    QAction* undo = history->createUndoAction(edit);
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = history->createRedoAction(edit);
    redo->setShortcut(QKeySequence::Redo);
    edit->addActions({undo, redo});

    // The responder needs no view to belong to, only somebody who keeps it as long as the menu.
    new GT_Graph3DResponder(context.actionManager(), &window);
    QString error;
    if (!context.actionManager()->loadDefinitions(definitions, &error))
        qFatal("%s", qUtf8Printable(error));
    window.menuBar()->addMenu(
        context.actionManager()->createMenu(QStringLiteral("SUBNODES"), &window));
}

} // namespace

int main(int argc, char** argv)
{
    // The scene graph has to know its types before a node is made.
    osg::osgInit(argc, argv);
    const QApplication application(argc, argv);

    // The session outlives the window, since views listen to it until they are gone.
    HostSession session;
    session.openScene(QStringLiteral("Scene"));
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Minimal Host"));
    window.resize(900, 500);
    window.setCentralWidget(newViews(session.context(), &window));
    addMenus(session.context(), window);
    addModel(session, QStringLiteral("Lamp"), newLamp());
    window.show();

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--screenshot"))
        return window.grab().save(arguments.at(2)) ? 0 : 1;
    return QApplication::exec();
}
