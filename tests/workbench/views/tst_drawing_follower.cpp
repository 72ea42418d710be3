// SPDX-License-Identifier: MIT
#include "workbench/views/DrawingFollower.h"

#include "graphview/GV_TreeWalk.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "referencehost/commands/SetExposures.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/ViewDock.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QUndoStack>

/// An element that shows one model on some frames and another one on others.
class tst_drawing_follower : public WindowTest
{
    Q_OBJECT

private:
    static osg::NodePtr part(const char* name, const osg::NodePtr& below = osg::NullFC)
    {
        const osg::NodePtr node = osg::makeCoredNode<osg::KeyTransform>();
        osg::setName(node, name);
        node->addChild(below == osg::NullFC ? osg::makeCoredNode<osg::Geometry>() : below);
        return node;
    }
    static QStringList names(const GV_GraphXViewQt& view)
    {
        QStringList found;
        GV_TreeWalk walk(view.controller()->uiInfo()->rootUiNode());
        while (const GV_UiNode* node = walk.next()) {
            if (node->isSgNode())
                found << node->name();
        }
        return found;
    }
    static GV_UiNode* nodeOf(const GV_GraphXViewQt& view, const QString& name)
    {
        GV_TreeWalk walk(view.controller()->uiInfo()->rootUiNode());
        while (GV_UiNode* node = walk.next()) {
            if (node->name() == name)
                return node;
        }
        return nullptr;
    }
    void goTo(int frame)
    {
        context().currentFrameInterface()->setCurrentFrame(_session->currentScene(), frame);
        context().changeManager()->notify();
    }
    /// From frame 10 on, a box in a lid in place of the robot.
    void exposeBox()
    {
        const auto box = std::make_shared<TD_CelVq3d>(part("Lid", part("Box")));
        auto exposures = _robot->exposures();
        exposures.push_back({10, 20, box});
        context().commandManager()->execute(new SetExposures(_robot, exposures),
                                            QStringLiteral("Expose"));
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void the_tree_is_that_of_the_drawing_at_the_frame()
    {
        const QStringList robot = names(graph());
        QVERIFY(robot.size() > 30);
        exposeBox();
        QCOMPARE(names(graph()), robot);
        goTo(10);
        QCOMPARE(names(graph()), (QStringList{"Lid", "Box"}));
        goTo(21);
        QCOMPARE(names(graph()), robot);
    }

    void an_edit_at_the_current_frame_and_its_undo_are_followed()
    {
        const QStringList robot = names(graph());
        goTo(12);
        exposeBox();
        QCOMPARE(names(graph()), (QStringList{"Lid", "Box"}));
        context().commandManager()->history()->undo();
        QCOMPARE(names(graph()), robot);
        context().commandManager()->history()->redo();
        QCOMPARE(names(graph()), (QStringList{"Lid", "Box"}));
    }

    void every_graph_view_follows()
    {
        exposeBox();
        auto* other = dynamic_cast<GV_GraphXViewQt*>(_window->openGraphView()->view()->widget());
        QVERIFY(other);
        goTo(15);
        QCOMPARE(names(*other), (QStringList{"Lid", "Box"}));
    }

    void branches_of_one_name_stay_folded_and_the_selection_is_shown()
    {
        exposeBox();
        subSelect(QStringLiteral("Torso"));
        nodeOf(graph(), QStringLiteral("Torso"))->setCollapsed(true);
        graph().controller()->uiInfo()->calculateGeometricData();
        // The same parts, in another drawing.
        auto exposures = _robot->exposures();
        const auto twin = std::make_shared<TD_CelVq3d>(part("Torso", part("Head")));
        exposures.push_back({30, 40, twin});
        context().commandManager()->execute(new SetExposures(_robot, exposures),
                                            QStringLiteral("Expose"));
        goTo(30);
        QCOMPARE(names(graph()), (QStringList{"Torso", "Head"}));
        QVERIFY(nodeOf(graph(), QStringLiteral("Torso"))->isCollapsed());
        QVERIFY(graph().controller()->uiInfo()->isSubNodeSelected(
            nodeOf(graph(), QStringLiteral("Torso"))));
    }

    void folding_outlives_a_drawing_that_has_no_such_part()
    {
        exposeBox();
        nodeOf(graph(), QStringLiteral("Torso"))->setCollapsed(true);
        graph().controller()->uiInfo()->calculateGeometricData();
        goTo(10);
        QCOMPARE(names(graph()), (QStringList{"Lid", "Box"}));
        goTo(1);
        QVERIFY(nodeOf(graph(), QStringLiteral("Torso"))->isCollapsed());
        QVERIFY(!nodeOf(graph(), QStringLiteral("Hips"))->isCollapsed());
    }

    void a_frame_without_a_drawing_is_left_alone()
    {
        auto exposures = _robot->exposures();
        exposures.front().lastFrame = 5;
        context().commandManager()->execute(new SetExposures(_robot, exposures),
                                            QStringLiteral("Trim"));
        const QStringList robot = names(graph());
        goTo(6);
        QCOMPARE(names(graph()), QStringList());
        goTo(5);
        QCOMPARE(names(graph()), robot);
    }
};

QTEST_MAIN(tst_drawing_follower)
#include "tst_drawing_follower.moc"
