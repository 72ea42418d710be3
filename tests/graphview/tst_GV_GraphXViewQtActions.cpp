// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_WorldViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "tests/graphview/CanvasTest.h"
#include "tests/graphview/ShownModels.h"

#include <QMetaMethod>
#include <QPen>

namespace {

const QString cornerKey = QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER");
const QString stateKey = QStringLiteral("GV_WORLD_VIEW_STARTING_STATE");
const QString leg = QStringLiteral("leg");
const QString hand = QStringLiteral("hand");
const QString robot = QStringLiteral("robot");

} // namespace

/// The panel as a responder: what menus and shortcuts reach it by, and when.
class tst_GV_GraphXViewQtActions : public CanvasTest
{
    Q_OBJECT

private:
    AC_ActionInfo validated(const char* slot, std::optional<int> argument = std::nullopt)
    {
        AC_ActionInfo info(slot, AC_ActionInfo::eValidate, argument);
        AC_Responder& responder = view();
        if (responder.perform(&info) != AC_Performed)
            qWarning("%s was not validated.", slot);
        return info;
    }
    bool isEnabled(const char* slot) { return validated(slot).isEnabled(); }
    AC_Result perform(const char* slot, std::optional<int> argument = std::nullopt)
    {
        AC_ActionInfo info(slot, AC_ActionInfo::ePerform, argument);
        AC_Responder& responder = view();
        return responder.perform(&info);
    }
    /// Which of the actions on the visibility of nodes can be chosen.
    QString visibilityActions()
    {
        QStringList enabled;
        for (const char* slot :
             {"onActionShowNodes", "onActionHideNodes", "onActionHideAllOtherNodes"}) {
            if (isEnabled(slot))
                enabled.append(QString::fromLatin1(slot + qstrlen("onAction")));
        }
        return enabled.join(u' ');
    }
    QStringList foldActions()
    {
        QStringList enabled;
        for (const char* slot : {"onActionCollapseAllNodes", "onActionExpandAllNodes"}) {
            if (isEnabled(slot))
                enabled.append(QString::fromLatin1(slot));
        }
        return enabled;
    }

private slots:
    void cleanup()
    {
        for (const QString& key : {cornerKey, stateKey, QStringLiteral("GV_EXTENDED_DISPLAY")})
            PR_Preference::instance()->reset(key);
        StageTest::cleanup();
    }

    void the_host_finds_every_action_and_notification_in_this_order()
    {
        const QStringList wanted{
            QStringLiteral("onActionZoomIn()"),
            QStringLiteral("onActionZoomOut()"),
            QStringLiteral("onActionResetZoom()"),
            QStringLiteral("onActionResetPan()"),
            QStringLiteral("onActionResetView()"),
            QStringLiteral("selectAll()"),
            QStringLiteral("deselect()"),
            QStringLiteral("onActionFrameSelected()"),
            QStringLiteral("onActionFrameSelectedValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionToggleDislayMode()"),
            QStringLiteral("onActionToggleDislayModeValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionShowNodes()"),
            QStringLiteral("onActionShowNodesValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionHideNodes()"),
            QStringLiteral("onActionHideNodesValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionHideAllOtherNodes()"),
            QStringLiteral("onActionHideAllOtherNodesValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionCollapseAllNodes()"),
            QStringLiteral("onActionCollapseAllNodesValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionExpandAllNodes()"),
            QStringLiteral("onActionExpandAllNodesValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionShowHideWorldView()"),
            QStringLiteral("onActionShowHideWorldViewValidate(AC_ActionInfo*)"),
            QStringLiteral("onActionMoveWorld(int)"),
            QStringLiteral("onActionMoveWorldValidate(int,AC_ActionInfo*)"),
            QStringLiteral("nodesChanged(TUNodeSet)"),
            QStringLiteral("nodesNameChanged(TUNodeSet)"),
            QStringLiteral("networkChanged()"),
            QStringLiteral("mouseAction()"),
            QStringLiteral("marqueeRect()"),
            QStringLiteral("onActionAnimateSubnode()"),
            QStringLiteral("onActionAnimateSubnodeValidate(AC_ActionInfo*)"),
            QStringLiteral("onSelectionChanged()"),
            QStringLiteral("onSubSelectionChanged()"),
            QStringLiteral("onCurrentFrameChanged()"),
            QStringLiteral("onCurrentSceneChanged(TUScene*)"),
            QStringLiteral("onPreferenceChanged()")};
        const QMetaObject& meta = GV_GraphXViewQt::staticMetaObject;
        QStringList found;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            found.append(QString::fromLatin1(meta.method(i).methodSignature()));
        QCOMPARE(found, wanted);
    }

    void actions_without_conditions_are_always_enabled()
    {
        for (const char* slot :
             {"onActionZoomIn", "onActionZoomOut", "onActionResetZoom", "onActionResetPan",
              "onActionResetView", "selectAll", "deselect"}) {
            const AC_ActionInfo info = validated(slot);
            QVERIFY2(info.isEnabled(), slot);
            QVERIFY2(!info.isChecked(), slot);
            QCOMPARE(info.text(), QString());
            QCOMPARE(info.responder(), static_cast<AC_Responder*>(&view()));
        }
    }

    void zoom_and_pan_actions_are_reached_by_name()
    {
        QCOMPARE(perform("onActionZoomIn"), AC_Performed);
        QCOMPARE(factor(), std::pow(2.0, 4 / 32.0));
        QCOMPARE(perform("onActionResetPan"), AC_Performed);
        QCOMPARE(pan(), (Math::Point2d{2, 2}));
        QCOMPARE(factor(), std::pow(2.0, 4 / 32.0));
        QCOMPARE(perform("onActionResetZoom"), AC_Performed);
        QCOMPARE(factor(), 1.0);
        QCOMPARE(perform("onActionZoomOut"), AC_Performed);
        QCOMPARE(factor(), std::pow(2.0, -4 / 32.0));
        QCOMPARE(perform("onActionResetView"), AC_Performed);
        QCOMPARE(view().transform(), QTransform::fromTranslate(2, 2));
    }

    void an_unknown_action_is_left_to_others()
    {
        for (const char* slot :
             {"onActionFly", "onActionToggleDisplayMode", "onactionzoomin", ""}) {
            QCOMPARE(perform(slot), AC_NotHandled);
            AC_ActionInfo info(slot, AC_ActionInfo::eValidate);
            QCOMPARE(view().perform(&info), AC_NotHandled);
        }
        // Nor does an action take an argument that its slot has not, or go without.
        QCOMPARE(perform("onActionZoomIn", 1), AC_NotHandled);
        QCOMPARE(perform("onActionMoveWorld"), AC_NotHandled);
        QCOMPARE(factor(), 1.0);
    }

    void framing_needs_a_selection()
    {
        MO_ElementModule& element = _stage->addElement(robot);
        QVERIFY(!isEnabled("onActionFrameSelected"));
        _stage->select({&element});
        QVERIFY(isEnabled("onActionFrameSelected"));
        QCOMPARE(perform("onActionFrameSelected"), AC_Performed);
        QCOMPARE(pan(), (Math::Point2d{0, 0}));
        _stage->select({});
        QVERIFY(!isEnabled("onActionFrameSelected"));
    }

    void select_all_and_deselect_reach_the_controller()
    {
        addSelected(robotModel());
        QCOMPARE(perform("selectAll"), AC_Performed);
        QCOMPARE(_stage->selectedNames(),
                 QStringList({QStringLiteral("arm"), QStringLiteral("body"), hand, leg, robot}));
        QCOMPARE(perform("deselect"), AC_Performed);
        QCOMPARE(_stage->selectedNames(), QStringList());
    }

    void the_display_mode_is_checked_while_every_node_is_shown()
    {
        addSelected(robotModel());
        const char* slot = "onActionToggleDislayMode";
        QVERIFY(validated(slot).isEnabled());
        QCOMPARE(validated(slot).isChecked(), std::optional(false));
        QCOMPARE(perform(slot), AC_Performed);
        QVERIFY(controller()->isExtendedDisplay());
        QVERIFY(validated(slot).isEnabled());
        QCOMPARE(validated(slot).isChecked(), std::optional(true));
        QCOMPARE(perform(slot), AC_Performed);
        QCOMPARE(validated(slot).isChecked(), std::optional(false));
    }

    void nodes_can_be_shown_or_hidden_as_they_are_the_other_way()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {leg});
        const QString whenShown = QStringLiteral("HideNodes HideAllOtherNodes");
        QCOMPARE(visibilityActions(), whenShown);
        QCOMPARE(perform("onActionHideNodes"), AC_Performed);
        QVERIFY(controller()->nodeHasState(GV_GraphXViewCtrl::eHidden, _stage->node(leg)));
        QCOMPARE(visibilityActions(), QStringLiteral("ShowNodes HideAllOtherNodes"));
        QCOMPARE(perform("onActionShowNodes"), AC_Performed);
        QVERIFY(controller()->nodeHasState(GV_GraphXViewCtrl::eVisible, _stage->node(leg)));
        QCOMPARE(visibilityActions(), whenShown);
        QCOMPARE(perform("onActionHideAllOtherNodes"), AC_Performed);
        QVERIFY(controller()->nodeHasState(GV_GraphXViewCtrl::eVisible, _stage->node(leg)));
        QVERIFY(controller()->nodeHasState(GV_GraphXViewCtrl::eHidden, _stage->node(hand)));
        QCOMPARE(visibilityActions(), QStringLiteral("HideNodes"));
    }

    void a_mixed_selection_can_be_shown_and_hidden()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {leg, hand});
        _stage->setVisible(element, {hand}, false);
        QVERIFY(isEnabled("onActionShowNodes"));
        QVERIFY(isEnabled("onActionHideNodes"));
    }

    void without_a_tree_there_is_nothing_to_show_hide_or_fold()
    {
        _stage->addElement(robot);
        QCOMPARE(visibilityActions(), QString());
        QCOMPARE(foldActions(), QStringList());
    }

    void all_is_collapsed_or_expanded_where_something_is_not()
    {
        addSelected(robotModel());
        const QString collapse = QStringLiteral("onActionCollapseAllNodes");
        const QString expand = QStringLiteral("onActionExpandAllNodes");
        QCOMPARE(foldActions(), QStringList(collapse));
        _stage->node(QStringLiteral("arm"))->setCollapsed(true);
        _stage->graph().calculateGeometricData();
        QCOMPARE(foldActions(), QStringList({collapse, expand}));
        QCOMPARE(perform("onActionCollapseAllNodes"), AC_Performed);
        QVERIFY(controller()->hasSubNodeWithCollapsedState(true));
        QVERIFY(_stage->node(QStringLiteral("body"))->isCollapsed());
        QVERIFY(foldActions().contains(expand));
        QCOMPARE(perform("onActionExpandAllNodes"), AC_Performed);
        QVERIFY(!_stage->node(QStringLiteral("body"))->isCollapsed());
        QCOMPARE(foldActions(), QStringList(collapse));
    }

    void the_overview_is_shown_or_hidden_and_the_text_says_which()
    {
        const char* slot = "onActionShowHideWorldView";
        QVERIFY(!view().worldView()->isHidden());
        for (const bool shown : {false, true}) {
            // The panel itself need not be on the screen for that.
            if (shown)
                view().show();
            QCOMPARE(validated(slot).text(), QStringLiteral("Hide Navigator"));
            QVERIFY(validated(slot).isEnabled());
            QCOMPARE(perform(slot), AC_Performed);
            QVERIFY(view().worldView()->isHidden());
            QCOMPARE(validated(slot).text(), QStringLiteral("Show Navigator"));
            QVERIFY(validated(slot).isEnabled());
            QVERIFY(!validated(slot).isChecked());
            QCOMPARE(perform(slot), AC_Performed);
            QVERIFY(!view().worldView()->isHidden());
        }
    }

    void the_overview_goes_to_a_corner_while_it_is_shown()
    {
        view().resize(500, 300);
        for (const int corner : {3, 1, 2, 0}) {
            QCOMPARE(perform("onActionMoveWorld", corner), AC_Performed);
            QCOMPARE(view().worldView()->corner(), corner);
            for (int other = 0; other < 4; ++other) {
                const AC_ActionInfo info = validated("onActionMoveWorld", other);
                QVERIFY(info.isEnabled());
                QCOMPARE(info.isChecked(), std::optional(other == corner));
            }
        }
        perform("onActionShowHideWorldView");
        QVERIFY(!validated("onActionMoveWorld", 3).isEnabled());
        QCOMPARE(validated("onActionMoveWorld", 0).isChecked(), std::optional(true));
        perform("onActionMoveWorld", 3);
        QCOMPARE(view().worldView()->corner(), 0);
    }

    void animating_does_nothing()
    {
        MO_ElementModule& element = addSelected(robotModel());
        _stage->subSelect(element, {leg});
        const QStringList before = _stage->selectedNames();
        const AC_ActionInfo info = validated("onActionAnimateSubnode");
        QVERIFY(info.isEnabled());
        QVERIFY(!info.isChecked());
        QCOMPARE(info.text(), QString());
        QCOMPARE(repaints([this] { perform("onActionAnimateSubnode"); }), 0);
        QCOMPARE(perform("onActionAnimateSubnode"), AC_Performed);
        QCOMPARE(_stage->selectedNames(), before);
    }

    void the_marquee_is_a_thin_dashed_line_that_takes_no_mouse()
    {
        const QGraphicsRectItem* marquee = marqueeItem(view());
        QVERIFY(marquee);
        QCOMPARE(marquee->pen(),
                 QPen(QBrush(Qt::black), 0, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin));
        QCOMPARE(marquee->brush(), QBrush(Qt::NoBrush));
        QCOMPARE(marquee->acceptedMouseButtons(), Qt::NoButton);
        QVERIFY(!marquee->isVisible());
    }

    void the_overview_starts_where_and_as_the_preferences_say()
    {
        QCOMPARE(view().worldView()->size(), QSize(100, 100));
        QCOMPARE(view().worldView()->corner(), 3);
        PR_Preference::instance()->setEnum(cornerKey, 2);
        PR_Preference::instance()->setBoolValue(stateKey, false);
        QWidget parent;
        auto* clone = dynamic_cast<GV_GraphXViewQt*>(view().clone(&parent));
        QVERIFY(clone);
        QCOMPARE(clone->worldView()->corner(), 2);
        QVERIFY(clone->worldView()->isHidden());
        QVERIFY(!view().worldView()->isHidden());
        QCOMPARE(view().worldView()->corner(), 3);
    }

    void a_clone_has_a_zoom_of_its_own()
    {
        view().onActionZoomIn();
        QWidget parent;
        auto* clone = dynamic_cast<GV_GraphXViewQt*>(view().clone(&parent));
        QVERIFY(clone);
        QCOMPARE(clone->transform(), QTransform::fromTranslate(2, 2));
        QCOMPARE(clone->mouseAction(), GV_GraphXViewQt::eMouseNone);
        clone->onActionZoomOut();
        QCOMPARE(factor(), std::pow(2.0, 4 / 32.0));
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtActions)
#include "tst_GV_GraphXViewQtActions.moc"
