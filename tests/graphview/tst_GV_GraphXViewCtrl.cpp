// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "tests/graphview/ShownModels.h"
#include "tests/graphview/StageTest.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>

namespace {

using namespace ModelBuilder;

} // namespace

/// What the host tells, and what the view then shows.
class tst_GV_GraphXViewCtrl : public StageTest
{
    Q_OBJECT

private:
    QString tree()
    {
        const GV_UiNode* root = _stage->graph().rootUiNode();
        return root ? outline(root) : QString();
    }

private slots:
    void shows_nothing_before_it_is_told()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->select({&element});
        GV_GraphXViewCtrl fresh(&_stage->view(), &_stage->context());
        QVERIFY(fresh.uiInfo()->isEmpty());
        QCOMPARE(fresh.uiInfo()->visibleGraphIx(), -1);
        QVERIFY(fresh.uiInfo()->selectedNodes().empty());
        QVERIFY(!fresh.isExtendedDisplay());
    }

    void takes_the_display_mode_from_the_preferences()
    {
        PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
        const auto reset = qScopeGuard(
            [] { PR_Preference::instance()->reset(QStringLiteral("GV_EXTENDED_DISPLAY")); });
        _stage->select(
            {&_stage->addElement(QStringLiteral("robot"), model(group("a", {geometry("b")})))});
        QVERIFY(controller()->isExtendedDisplay());
        QCOMPARE(tree(), QStringLiteral("robot(a(b))"));
    }

    void shows_a_header_for_each_model_in_the_order_of_the_scene()
    {
        _stage->addElement(QStringLiteral("first"));
        _stage->addEmptyElement(QStringLiteral("without model"));
        _stage->addPeg(QStringLiteral("peg"));
        auto group = std::make_unique<MO_GroupModule>(QStringLiteral("group"));
        auto nested = std::make_unique<MO_ElementModule>(QStringLiteral("nested"));
        nested->exposeModel(1, 10, robotModel());
        group->insertNode(std::move(nested));
        _stage->scene().rootGroup()->insertNode(std::move(group));
        _stage->addElement(QStringLiteral("last"));

        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("first"), QStringLiteral("nested"),
                                                 QStringLiteral("last")}));
        QCOMPARE(tree(), QString());
    }

    void shows_the_tree_of_the_model_selected_first()
    {
        MO_ElementModule& a = _stage->addElement(QStringLiteral("a"), model(shapedKey("in_a")));
        MO_ElementModule& b = _stage->addElement(QStringLiteral("b"), model(shapedKey("in_b")));
        MO_Node& peg = _stage->addPeg(QStringLiteral("peg"));
        _stage->view();
        _stage->select({&peg, &b, &a});
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("a"), QStringLiteral("[b]")}));
        QCOMPARE(tree(), QStringLiteral("b(in_b)"));
        QCOMPARE(_stage->selectedNames(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void shows_the_tree_of_the_model_selected_last_once_the_frame_changes()
    {
        MO_ElementModule& a = _stage->addElement(QStringLiteral("a"));
        MO_ElementModule& b = _stage->addElement(QStringLiteral("b"));
        _stage->view();
        _stage->select({&b, &a});
        _stage->goToFrame(2);
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("[a]"), QStringLiteral("b")}));
        controller()->selectionChanged();
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("a"), QStringLiteral("[b]")}));
    }

    void a_network_change_goes_back_to_the_model_selected_first()
    {
        MO_ElementModule& a = _stage->addElement(QStringLiteral("a"));
        MO_ElementModule& b = _stage->addElement(QStringLiteral("b"));
        _stage->view();
        _stage->select({&b, &a});
        _stage->goToFrame(2);
        const auto change = [this] { controller()->networkChanged(); };
        QVERIFY(repaints(change) > 0);
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("a"), QStringLiteral("[b]")}));
        QCOMPARE(repaints(change), 0);
    }

    void a_frame_without_a_selected_model_shows_no_tree()
    {
        MO_ElementModule& walk = _stage->addElement(QStringLiteral("walk"), robotModel(), 1, 10);
        _stage->addElement(QStringLiteral("other"));
        _stage->view();
        _stage->select({&walk});
        _stage->goToFrame(11);
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("other")));
        QCOMPARE(tree(), QString());
    }

    void the_selection_stands_when_the_frame_returns_to_a_drawing()
    {
        MO_ElementModule& walk = _stage->addElement(QStringLiteral("walk"), robotModel(), 1, 10);
        _stage->view();
        _stage->select({&walk});
        _stage->subSelect(walk, {QStringLiteral("hand"), QStringLiteral("leg")});
        const QStringList selected{QStringLiteral("hand"), QStringLiteral("leg"),
                                   QStringLiteral("walk")};
        QCOMPARE(_stage->selectedNames(), selected);
        _stage->goToFrame(11);
        QVERIFY(_stage->headers().isEmpty());
        QCOMPARE(_stage->selectedNames(), selected);
        _stage->goToFrame(10);
        QCOMPARE(_stage->selectedNames(), selected);
        QVERIFY(_stage->graph().isSubNodeSelected(_stage->node(QStringLiteral("hand"))));
        for (const auto& [key, node] : _stage->graph().selectedNodes())
            QCOMPARE(node, _stage->node(key.nodeName));
    }

    void a_header_stays_selected_when_its_drawing_returns_below_another_tree()
    {
        MO_ElementModule& walk = _stage->addElement(QStringLiteral("walk"), robotModel(), 1, 10);
        MO_ElementModule& other = _stage->addElement(QStringLiteral("other"));
        _stage->view();
        _stage->select({&walk, &other});
        _stage->goToFrame(11);
        _stage->goToFrame(10);
        _stage->subSelect(other, {QStringLiteral("leg")});
        QCOMPARE(_stage->headers(),
                 QStringList({QStringLiteral("walk"), QStringLiteral("[other]")}));
        QCOMPARE(
            _stage->selectedNames(),
            QStringList({QStringLiteral("leg"), QStringLiteral("other"), QStringLiteral("walk")}));
    }

    void frame_and_network_changes_leave_the_marks_and_folds_alone()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        _stage->subSelect(element, {QStringLiteral("hand")});
        GV_UiNode* arm = _stage->node(QStringLiteral("arm"));
        arm->setCollapsed(true);
        _stage->graph().clearSelection(false);
        QCOMPARE(repaints([&] { _stage->goToFrame(2); }), 0);
        QCOMPARE(repaints([&] { controller()->networkChanged(); }), 0);
        QVERIFY(_stage->selectedNames().isEmpty());
        QCOMPARE(_stage->node(QStringLiteral("arm")), arm);
        QVERIFY(arm->isCollapsed());
    }

    void an_element_without_a_model_that_is_selected_clears_the_marks_and_repaints()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        MO_Node& peg = _stage->addPeg(QStringLiteral("peg"));
        _stage->view();
        _stage->select({&element});
        _stage->subSelect(element, {QStringLiteral("arm")});
        QVERIFY(repaints([&] { _stage->select({&peg}); }) > 0);
        QVERIFY(_stage->selectedNames().isEmpty());
        // The same when nothing but a mark has to go.
        _stage->graph().setHeaderNodeSelected(&element);
        QVERIFY(repaints([&] { controller()->selectionChanged(); }) > 0);
        QVERIFY(_stage->selectedNames().isEmpty());
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("robot")));
    }

    void a_locked_element_is_shown_without_a_mark()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        element.setEditable(false);
        _stage->view();
        _stage->select({&element});
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("[robot]")));
        QVERIFY(_stage->selectedNames().isEmpty());
    }

    void a_sub_selection_with_no_model_selected_clears_the_marks_without_a_repaint()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        _stage->select({});
        _stage->graph().setHeaderNodeSelected(&element);
        QCOMPARE(repaints([&] { controller()->subSelectionChanged(); }), 0);
        QVERIFY(_stage->selectedNames().isEmpty());
    }

    void marks_the_first_node_of_each_sub_selected_name()
    {
        MO_ElementModule& element = _stage->addElement(
            QStringLiteral("robot"), model(key("body", {key("left", {shapedKey("hand")}),
                                                        key("right", {shapedKey("hand")})})));
        // The keys of all drawings are known, also of those that are not shown.
        element.exposeModel(500, 600, model(shapedKey("elsewhere")));
        _stage->view();
        _stage->select({&element});
        QVERIFY(repaints([&] {
                    _stage->subSelect(element, {QStringLiteral("elsewhere"), QStringLiteral("hand"),
                                                QStringLiteral("body")});
                }) > 0);
        QCOMPARE(
            _stage->selectedNames(),
            QStringList({QStringLiteral("body"), QStringLiteral("hand"), QStringLiteral("robot")}));
        const GV_UiNode* left = _stage->node(QStringLiteral("left"));
        QVERIFY(_stage->graph().isSubNodeSelected(*left->childrenBegin()));
        const GV_UiNode* right = _stage->node(QStringLiteral("right"));
        QVERIFY(!_stage->graph().isSubNodeSelected(*right->childrenBegin()));
    }

    void a_sub_selection_taken_back_takes_the_marks_back()
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"));
        _stage->view();
        _stage->select({&element});
        _stage->subSelect(element, {QStringLiteral("arm")});
        element.selInterface()->clearSubSelection();
        QVERIFY(repaints([&] { _stage->notify(); }) > 0);
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("robot")));
    }

    void a_sub_selection_of_a_model_that_is_not_open_leaves_no_mark()
    {
        MO_ElementModule& open = _stage->addElement(QStringLiteral("open"));
        MO_ElementModule& closed = _stage->addElement(QStringLiteral("closed"));
        _stage->view();
        _stage->select({&open, &closed});
        _stage->subSelect(closed, {QStringLiteral("arm")});
        QCOMPARE(_stage->selectedNames(),
                 QStringList({QStringLiteral("closed"), QStringLiteral("open")}));
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrl)
#include "tst_GV_GraphXViewCtrl.moc"
