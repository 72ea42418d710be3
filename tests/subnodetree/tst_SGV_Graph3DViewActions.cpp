// SPDX-License-Identifier: MIT

#include "host/actions/AC_ActionInfo.h"
#include "host/actions/AC_Manager.h"
#include "tests/subnodetree/TreeTest.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QCursor>
#include <QMenu>

namespace {

using namespace ModelBuilder;

/// Key nodes with other nodes around them.
CEL_SharedPtr<TD_CelVq3d> dressedModel()
{
    return model(
        group("scene", {key("arm", {transform("shift", {shapedKey("hand")})}), shapedKey("leg")}));
}

} // namespace

/// What the panel's menus can do: expand and collapse, copy a name, show the whole scene graph.
class tst_SGV_Graph3DViewActions : public TreeTest
{
    Q_OBJECT

private:
    SGV_Graph3DView& panel() { return _stage->panel(); }

    /// What the validator of the slot says.
    AC_ActionInfo validated(const char* slot)
    {
        AC_ActionInfo info(slot, AC_ActionInfo::eValidate);
        AC_Responder& responder = panel();
        if (responder.perform(&info) != AC_Performed)
            qWarning("'%s' is not handled.", slot);
        return info;
    }
    bool performs(const char* slot) { return _stage->perform(slot) == AC_Performed; }
    bool isDebugModeChecked()
    {
        return validated("onActionToggleDebugMode").isChecked().value_or(false);
    }
    static QString clipboard() { return QApplication::clipboard()->text(); }

    bool defineMenus()
    {
        return _stage->context().actionManager()->loadDefinitions(
            "<definitions>"
            "<action id='COPY' responder='SGV_GraphView' slot='onActionCopySubNodeName' "
            "text='Copy Name'/>"
            "<action id='DEBUG' responder='SGV_GraphView' slot='onActionToggleDebugMode' "
            "text='Debug' checkable='true'/>"
            "<menu id='3D_GRAPH_POPUP_MENU' text='Subnodes'>"
            "<item action='COPY'/><separator/><item action='DEBUG'/></menu>"
            "<menu id='3D_GRAPH_VIEW_MENU' text='View'><item action='DEBUG'/></menu>"
            "</definitions>");
    }
    QMenu* popup() { return panel().menu(TULayoutView::ePopupMenu); }
    void askForMenu(QContextMenuEvent::Reason reason, const QPoint& position)
    {
        QWidget* viewport = _stage->tree().viewport();
        QContextMenuEvent event(reason, position, viewport->mapToGlobal(position));
        QCoreApplication::sendEvent(viewport, &event);
    }

private slots:
    void init()
    {
        TreeTest::init();
        QApplication::clipboard()->setText(QStringLiteral("before"));
    }
    void cleanup()
    {
        if (QWidget* open = QApplication::activePopupWidget())
            open->close();
        TreeTest::cleanup();
    }

    void all_rows_collapse_and_expand()
    {
        addRobot();
        panel().onActionCollapseAll();
        QVERIFY(_stage->expandedRows().isEmpty());
        panel().onActionExpandAll();
        QCOMPARE(_stage->expandedRows(), names("body arm"));
        QVERIFY(performs("onActionCollapseAll"));
        QVERIFY(_stage->expandedRows().isEmpty());
        QVERIFY(performs("onActionExpandAll"));
        QCOMPARE(_stage->expandedRows(), names("body arm"));
    }

    void the_selected_rows_collapse_and_expand()
    {
        MO_ElementModule& element = addSelected(
            model(key("body", {key("arm", {shapedKey("hand")}), key("leg", {shapedKey("foot")}),
                               key("neck", {shapedKey("head")})})));
        _stage->subSelect(element, names("arm neck hand"));
        QVERIFY(performs("onActionCollapseSelection"));
        QCOMPARE(_stage->expandedRows(), names("body leg"));
        QVERIFY(performs("onActionExpandSelection"));
        QCOMPARE(_stage->expandedRows(), names("body arm leg neck"));
        panel().onActionCollapseAll();
        panel().onActionExpandSelection();
        QCOMPARE(_stage->expandedRows(), names("arm neck"));
        panel().onActionExpandAll();
        panel().onActionCollapseSelection();
        QCOMPARE(_stage->expandedRows(), names("body leg"));
        QCOMPARE(_stage->subSelected(), names("arm neck hand"));
        QVERIFY(_stage->lastStep().isEmpty());
    }

    void without_a_selection_no_row_collapses()
    {
        addRobot();
        panel().onActionCollapseSelection();
        QCOMPARE(_stage->expandedRows(), names("body arm"));
        panel().onActionCollapseAll();
        panel().onActionExpandSelection();
        QVERIFY(_stage->expandedRows().isEmpty());
    }

    void the_name_of_the_current_row_is_copied()
    {
        MO_ElementModule& element = addRobot();
        _stage->addOutput(QS("out"), QS("hand"), element);
        QVERIFY(_stage->show());
        _stage->click(QS("hand"));
        QCOMPARE(_stage->row(QS("hand")).data().toString(), QS("hand*"));
        panel().onActionCopySubNodeName();
        QCOMPARE(clipboard(), QS("hand"));
        // The current row need not be a selected one.
        _stage->click(QS("leg"));
        _stage->click(QS("leg"), Qt::ControlModifier);
        QVERIFY(_stage->selectedRows().isEmpty());
        QVERIFY(performs("onActionCopySubNodeName"));
        QCOMPARE(clipboard(), QS("leg"));
    }

    void without_a_current_row_an_empty_text_is_copied()
    {
        addRobot();
        _stage->tree().setCurrentIndex(QModelIndex());
        panel().onActionCopySubNodeName();
        QCOMPARE(clipboard(), QString());
    }

    void a_name_can_be_copied_only_while_a_row_is_current()
    {
        addRobot();
        QVERIFY(!validated("onActionCopySubNodeName").isEnabled());
        QVERIFY(_stage->show());
        _stage->click(QS("arm"));
        QVERIFY(validated("onActionCopySubNodeName").isEnabled());
        AC_ActionInfo info("onActionCopySubNodeName", AC_ActionInfo::eValidate);
        _stage->select({});
        panel().onActionCopySubNodeNameValidate(&info);
        QVERIFY(!info.isEnabled());
        QCOMPARE(clipboard(), QS("before"));
    }

    void debug_mode_shows_every_node_and_is_checked()
    {
        addSelected(dressedModel());
        QCOMPARE(_stage->outline(), QS("arm(hand) leg"));
        QVERIFY(!isDebugModeChecked());
        QVERIFY(validated("onActionToggleDebugMode").isChecked().has_value());
        panel().onActionToggleDebugMode();
        QVERIFY(isDebugModeChecked());
        QVERIFY(_stage->outline().startsWith(QS("scene(arm(shift(hand")));
        // Everything that the model is made of, the two nameless shapes included.
        QCOMPARE(_stage->rows().size(), 7);
        QCOMPARE(_stage->expandedRows(), names("scene arm shift hand leg"));
        QVERIFY(performs("onActionToggleDebugMode"));
        QVERIFY(!isDebugModeChecked());
        QCOMPARE(_stage->outline(), QS("arm(hand) leg"));
        QCOMPARE(_stage->expandedRows(), names("arm"));
    }

    void debug_mode_keeps_the_sub_selection()
    {
        MO_ElementModule& element = addSelected(dressedModel());
        QVERIFY(_stage->show());
        _stage->click(QS("leg"));
        _stage->click(QS("hand"), Qt::ControlModifier);
        const QSignalSpy spy(&panel(), &SGV_Graph3DView::subSelectionChanged);
        for (int time = 0; time < 3; ++time) {
            panel().onActionToggleDebugMode();
            QCOMPARE(_stage->subSelected(), names("leg hand"));
            QCOMPARE(_stage->selectedRows(), names("hand leg"));
        }
        QCOMPARE(_stage->path(), QS(" robot > scene > leg"));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(_stage->history().count(), 2);
        element.selInterface()->clearSubSelection();
        _stage->notify();
        panel().onActionToggleDebugMode();
        QVERIFY(_stage->subSelected().isEmpty());
    }

    void debug_mode_keeps_what_a_filter_hides()
    {
        MO_ElementModule& element = addSelected(dressedModel());
        _stage->subSelect(element, names("leg hand"));
        _stage->filter(QS("s"));
        QVERIFY(_stage->rows().isEmpty());
        panel().onActionToggleDebugMode();
        // Rows that lead to a row with the text are shown.
        QCOMPARE(_stage->outline(), QS("scene(arm(shift))"));
        QVERIFY(_stage->selectedRows().isEmpty());
        QCOMPARE(_stage->subSelected(), names("leg hand"));
        _stage->filter(QS("hand"));
        QCOMPARE(_stage->selectedRows(), names("hand"));
        panel().onActionToggleDebugMode();
        QCOMPARE(_stage->outline(), QS("arm(hand)"));
        QCOMPARE(_stage->selectedRows(), names("hand"));
        _stage->filter(QString());
        QCOMPARE(_stage->selectedRows(), names("hand leg"));
        QCOMPARE(_stage->subSelected(), names("leg hand"));
        QVERIFY(_stage->lastStep().isEmpty());
    }

    void debug_mode_keeps_the_annotations()
    {
        MO_ElementModule& element = addSelected(dressedModel());
        _stage->addOutput(QS("out"), QS("leg"), element);
        _stage->setVisible(element, {QS("leg")}, false);
        const QVariant color = _stage->row(QS("leg")).data(Qt::ForegroundRole);
        panel().onActionToggleDebugMode();
        QCOMPARE(_stage->row(QS("leg")).data().toString(), QS("leg*"));
        QCOMPARE(_stage->row(QS("leg")).data(Qt::ForegroundRole), color);
        QVERIFY(_stage->row(QS("arm")).data(Qt::ForegroundRole) != color);
    }

    void debug_mode_outlives_other_selections()
    {
        addSelected(dressedModel());
        panel().onActionToggleDebugMode();
        MO_ElementModule& other = _stage->addElement(QS("other"), dressedModel());
        _stage->select({});
        QVERIFY(isDebugModeChecked());
        _stage->select({&other});
        QCOMPARE(_stage->rows().size(), 7);
    }

    void debug_mode_needs_a_selected_node()
    {
        addSelected(dressedModel());
        _stage->select({});
        panel().onActionToggleDebugMode();
        QVERIFY(!isDebugModeChecked());
        MO_Node& peg = _stage->addPeg(QS("peg"));
        _stage->select({&peg});
        panel().onActionToggleDebugMode();
        QVERIFY(isDebugModeChecked());
        QVERIFY(_stage->rows().isEmpty());
    }

    void rows_that_are_no_subnodes_cannot_be_clicked()
    {
        addSelected(dressedModel());
        QVERIFY(_stage->show());
        panel().onActionToggleDebugMode();
        _stage->click(QS("hand"));
        _stage->click(QS("shift"), Qt::ControlModifier);
        QCOMPARE(_stage->subSelected(), names("hand"));
        QCOMPARE(_stage->history().count(), 1);
        panel().selectAll();
        QCOMPARE(sorted(_stage->subSelected()), names("arm hand leg"));
    }

    void all_rows_are_selected_and_deselected_by_name()
    {
        addRobot();
        QVERIFY(performs("selectAll"));
        QCOMPARE(sorted(_stage->subSelected()), names("arm body hand leg"));
        QVERIFY(performs("deselect"));
        QVERIFY(_stage->subSelected().isEmpty());
        QCOMPARE(_stage->history().count(), 2);
    }

    void what_it_cannot_do_it_does_not_take()
    {
        _stage->panel();
        QVERIFY(_stage->perform("onActionFly") != AC_Performed);
    }

    void the_menu_opens_at_the_cursor()
    {
        addRobot();
        QVERIFY(_stage->show());
        QVERIFY(defineMenus());
        QVERIFY(panel().menu(TULayoutView::eViewMenu));
        for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
            for (const QPoint& cursor : {QPoint(211, 97), QPoint(30, 305)}) {
                QCursor::setPos(cursor);
                askForMenu(reason, QPoint(5, 5));
                QVERIFY(popup());
                QVERIFY(popup()->isVisible());
                QCOMPARE(QApplication::activePopupWidget(), static_cast<QWidget*>(popup()));
                QCOMPARE(popup()->pos(), cursor);
                popup()->close();
            }
        }
    }

    void the_menu_shows_what_can_be_done_now()
    {
        addRobot();
        QVERIFY(_stage->show());
        QVERIFY(defineMenus());
        // With the focus a first row became the current one.
        _stage->tree().setCurrentIndex(QModelIndex());
        panel().onCustomContextMenu(QPoint());
        QVERIFY(!popup()->actions().first()->isEnabled());
        QVERIFY(!popup()->actions().last()->isChecked());
        popup()->close();
        _stage->click(QS("hand"));
        panel().onCustomContextMenu(QPoint());
        QVERIFY(popup()->actions().first()->isEnabled());
        popup()->actions().first()->trigger();
        QCOMPARE(clipboard(), QS("hand"));
        popup()->actions().last()->trigger();
        popup()->close();
        panel().onCustomContextMenu(QPoint());
        QVERIFY(popup()->actions().last()->isChecked());
    }

    void without_a_definition_no_menu_opens()
    {
        addRobot();
        QVERIFY(_stage->show());
        panel().onCustomContextMenu(QPoint());
        QVERIFY(!popup());
        QVERIFY(!QApplication::activePopupWidget());
    }
};

QTEST_MAIN(tst_SGV_Graph3DViewActions)
#include "tst_SGV_Graph3DViewActions.moc"
