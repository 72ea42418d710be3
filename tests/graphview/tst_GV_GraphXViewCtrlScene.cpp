// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "tests/graphview/StageTest.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>

/// Scenes, elements and names that come, change and go while a view looks at them.
class tst_GV_GraphXViewCtrlScene : public StageTest
{
    Q_OBJECT

private slots:
    void a_renamed_element_renames_its_header_and_repaints()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->addElement(QStringLiteral("other"));
        _stage->view();
        element.setInstanceName(QStringLiteral("machine"));
        QVERIFY(repaints([&] { _stage->notify(); }) > 0);
        QCOMPARE(_stage->headers(),
                 QStringList({QStringLiteral("machine"), QStringLiteral("other")}));
    }

    void a_renamed_header_gets_a_label_that_fits()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        const QString longName = QStringLiteral("a_robot_with_a_name_that_is_far_too_long");
        element.setInstanceName(longName);
        _stage->notify();
        const GV_UiNode* header = _stage->graph().rootUiNode();
        QCOMPARE(header->name(), longName);
        QVERIFY(!header->displayName().isEmpty());
        QVERIFY(header->displayName().size() < longName.size());
        element.setInstanceName(QStringLiteral("robot"));
        _stage->notify();
        QVERIFY(header->displayName().isEmpty());
    }

    void a_renamed_element_that_is_not_shown_causes_no_repaint()
    {
        _stage->addElement(QStringLiteral("robot"));
        MO_ElementModule& other = _stage->addEmptyElement(QStringLiteral("other"));
        MO_Node& peg = _stage->addPeg(QStringLiteral("peg"));
        _stage->view();
        other.setInstanceName(QStringLiteral("renamed"));
        peg.setInstanceName(QStringLiteral("renamed too"));
        QCOMPARE(repaints([&] { _stage->notify(); }), 0);
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("robot")));
    }

    void a_locked_element_disables_its_header_and_repaints()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        const GV_UiNode* header = _stage->graph().rootUiNode();
        QVERIFY(header->isEditable());
        element.setEditable(false);
        QVERIFY(repaints([&] { _stage->notify(); }) > 0);
        QVERIFY(!header->isEditable());
        element.setEditable(true);
        _stage->notify();
        QVERIFY(header->isEditable());
    }

    void a_changed_element_that_is_not_shown_causes_no_repaint()
    {
        _stage->addElement(QStringLiteral("robot"));
        MO_ElementModule& other = _stage->addEmptyElement(QStringLiteral("other"));
        _stage->view();
        other.setEditable(false);
        QCOMPARE(repaints([&] { _stage->notify(); }), 0);
    }

    void notices_of_nodes_that_are_gone_are_skipped()
    {
        _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        TUNodeSet gone;
        {
            const MO_ElementModule brief(QStringLiteral("brief"));
            gone.insert(UT_SharedWeakPtr<MO_Node>(&brief));
        }
        gone.insert(UT_SharedWeakPtr<MO_Node>());
        QCOMPARE(repaints([&] {
                     controller()->nodesChanged(gone);
                     controller()->nodesNameChanged(gone);
                     controller()->nodesChanged({});
                     controller()->nodesNameChanged({});
                 }),
                 0);
    }

    void an_element_that_comes_gets_a_header_and_one_that_goes_loses_it()
    {
        MO_ElementModule& first = _stage->addElement(QStringLiteral("first"));
        _stage->view();
        _stage->select({&first});
        MO_ElementModule& second = _stage->addElement(QStringLiteral("second"));
        QCOMPARE(_stage->headers(),
                 QStringList({QStringLiteral("[first]"), QStringLiteral("second")}));
        QVERIFY(repaints([&] { _stage->remove(second); }) > 0);
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("[first]")));
    }

    void the_open_model_can_be_deleted()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->addElement(QStringLiteral("other"));
        _stage->view();
        _stage->select({&element});
        _stage->subSelect(element, {QStringLiteral("hand")});
        _stage->remove(element);
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("other")));
        QCOMPARE(_stage->graph().visibleGraphIx(), -1);
        QVERIFY(_stage->selectedNames().isEmpty());
        QCOMPARE(_stage->graph().selectionRect(), Math::Rect2d());
    }

    void everything_may_be_told_while_an_element_is_gone_but_still_shown()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        _stage->subSelect(element, {QStringLiteral("hand")});
        // The element dies without a word from the change manager.
        element.parentGroup()->takeNode(&element).reset();
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("[robot]")));
        QVERIFY(!_stage->graph().visibleGraphModelNode());
        QCOMPARE(repaints([&] { controller()->subSelectionChanged(); }), 0);
        controller()->nodesChanged({});
        controller()->nodesNameChanged({});
        controller()->currentFrameChanged();
        QVERIFY(_stage->headers().isEmpty());
        controller()->networkChanged();
        controller()->selectionChanged();
        QVERIFY(_stage->selectedNames().isEmpty());
    }

    void another_scene_takes_the_place_of_the_one_before()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        _stage->session().openScene(QStringLiteral("second"));
        QVERIFY(_stage->graph().isEmpty());
        QVERIFY(_stage->selectedNames().isEmpty());
        MO_ElementModule& next = _stage->addElement(QStringLiteral("next"));
        _stage->select({&next});
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("[next]")));
    }

    void a_closed_scene_empties_the_view()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        _stage->session().closeScene();
        QVERIFY(_stage->graph().isEmpty());
        QCOMPARE(_stage->graph().visibleGraphIx(), -1);
    }

    void without_a_scene_every_notice_leaves_the_view_empty()
    {
        _stage->session().closeScene();
        GV_GraphXViewCtrl& control = *controller();
        const std::vector<std::function<void()>> notices{
            [&] { control.selectionChanged(); },      [&] { control.subSelectionChanged(); },
            [&] { control.currentFrameChanged(); },   [&] { control.networkChanged(); },
            [&] { control.currentSceneChanged({}); }, [&] { control.nodesChanged({}); },
            [&] { control.nodesNameChanged({}); }};
        for (const auto& notice : notices) {
            notice();
            QVERIFY(control.uiInfo()->isEmpty());
        }
    }

    void a_scene_opened_after_the_view_is_found()
    {
        _stage->session().closeScene();
        _stage->view();
        _stage->session().openScene(QStringLiteral("late"));
        _stage->addElement(QStringLiteral("robot"));
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("robot")));
    }

    void a_null_scene_is_asked_for_again()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        controller()->currentSceneChanged(nullptr);
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("[robot]")));
    }

    void a_given_scene_is_shown_whichever_is_being_edited()
    {
        _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        TUScene aside(QStringLiteral("aside"), nullptr);
        auto element = std::make_unique<MO_ElementModule>(QStringLiteral("prop"));
        element->exposeModel(1, 1, robotModel());
        aside.rootGroup()->insertNode(std::move(element));
        controller()->currentSceneChanged(&aside);
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("prop")));
        controller()->currentSceneChanged(&_stage->scene());
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("robot")));
    }

    void a_changed_order_of_the_scene_changes_the_order_of_the_headers()
    {
        MO_ElementModule& a = _stage->addElement(QStringLiteral("a"));
        MO_ElementModule& b = _stage->addElement(QStringLiteral("b"));
        _stage->view();
        _stage->select({&b});
        MO_GroupModule* root = _stage->scene().rootGroup();
        root->insertNode(root->takeNode(&a));
        _stage->context().changeManager()->emitChildrenOrderingChanged(&a);
        QVERIFY(repaints([&] { _stage->notify(); }) > 0);
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("[b]"), QStringLiteral("a")}));
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlScene)
#include "tst_GV_GraphXViewCtrlScene.moc"
